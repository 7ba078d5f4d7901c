/// Under which property set and property an attribute of a PLM type is written. A library implements it; a host
/// asks any object for it, or makes the component "ExchangeIFCPLMAttributesMappingServices".
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

class VELKOR_PLATFORM_API QORIExchangeIFCPLMAttributesMappingServices : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// Reads the mapping documents unless that has been done. S_OK.
    virtual HRESULT LoadMapping() = 0;
    /// S_OK, or E_FAIL with the outputs untouched when nothing is known of the attribute.
    virtual HRESULT GetIFCPropertyFromPLMAttribute(const QORUnicodeString& iPLMType,
                                                   const QORUnicodeString& iPLMAttribute,
                                                   QORUnicodeString& oPropertySetName,
                                                   QORUnicodeString& oIFCProperty) = 0;
};
using QORIExchangeIFCPLMAttributesMappingServices_var = QORInterface_var<QORIExchangeIFCPLMAttributesMappingServices>;
