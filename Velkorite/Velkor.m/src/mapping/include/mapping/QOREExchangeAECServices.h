/// Neutral identifiers, IFC types and PLM types, translated by one document per process.
#pragma once

#include "velkor/exchangeservices/QORIExchangeAECServices.h"

class QOREExchangeAECServices final : public QORIExchangeAECServices {
    VELKOR_DECLARE_CLASS

public:
    HRESULT LoadAECResource() override;
    HRESULT GetPLMTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oPLMType) override;
    HRESULT GetPLMValuationFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oAttribute,
                                         QORUnicodeString& oValue) override;
    HRESULT GetIFCTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oIFCType) override;
    HRESULT GetNeutralIDFromPLMObject(const QORBaseUnknown_var& iObject, QORUnicodeString& oNeutralID) override;
    HRESULT GetNeutralIDFromIFCObject(const QORBaseUnknown_var& iObject, QORUnicodeString& oNeutralID) override;
    HRESULT GetPLMTypeFromIFCType(const QORUnicodeString& iIFCType, const QORUnicodeString& iConditionValue,
                                  QORUnicodeString& oPLMType) override;
    HRESULT GetObjectTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oObjectType) override;
};
