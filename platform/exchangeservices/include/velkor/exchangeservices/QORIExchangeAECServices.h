/// Neutral identifiers, IFC types and PLM types, translated into each other. A library implements it; a host
/// asks any object for it, or makes the component "ExchangeAECServices".
///
/// S_FALSE means that the document has no such neutral identifier. "DEFAULT" is what the three translations
/// from objects and types answer when no entry fits.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORString.h"
#include "velkor/text/QORUnicodeString.h"

class VELKOR_PLATFORM_API QORIExchangeAECServices : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// Reads the document of correspondences anew.
    virtual HRESULT LoadAECResource() = 0;
    /// The PLM type of a neutral identifier.
    virtual HRESULT GetPLMTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oPLMType) = 0;
    /// The attribute and value that the PLM side of a neutral identifier carries; both empty for none.
    virtual HRESULT GetPLMValuationFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oAttribute,
                                                 QORUnicodeString& oValue) = 0;
    /// The IFC type of a neutral identifier.
    virtual HRESULT GetIFCTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oIFCType) = 0;
    /// Of a QORIPLMNavOccurrence.
    virtual HRESULT GetNeutralIDFromPLMObject(const QORBaseUnknown_var& iObject, QORUnicodeString& oNeutralID) = 0;
    /// Of a QORIExchangeObject with QORIExchangeUserProperties.
    virtual HRESULT GetNeutralIDFromIFCObject(const QORBaseUnknown_var& iObject, QORUnicodeString& oNeutralID) = 0;
    /// The PLM type of an IFC type, by the entry whose condition has the value.
    virtual HRESULT GetPLMTypeFromIFCType(const QORUnicodeString& iIFCType, const QORUnicodeString& iConditionValue,
                                          QORUnicodeString& oPLMType) = 0;
    virtual HRESULT GetObjectTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oObjectType) = 0;
};
using QORIExchangeAECServices_var = QORInterface_var<QORIExchangeAECServices>;
