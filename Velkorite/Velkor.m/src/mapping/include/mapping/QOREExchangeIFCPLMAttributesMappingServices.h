/// The mapping of PLM attributes to properties, from all its documents, read once per process.
#pragma once

#include "velkor/exchangeservices/QORIExchangeIFCPLMAttributesMappingServices.h"

class QOREExchangeIFCPLMAttributesMappingServices final : public QORIExchangeIFCPLMAttributesMappingServices {
    VELKOR_DECLARE_CLASS

public:
    HRESULT LoadMapping() override;
    HRESULT GetIFCPropertyFromPLMAttribute(const QORUnicodeString& iPLMType, const QORUnicodeString& iPLMAttribute,
                                           QORUnicodeString& oPropertySetName, QORUnicodeString& oIFCProperty) override;
};
