/// Which entity and property are used in place of others for objects of a type. A library implements it; a host
/// asks any object for it, or makes the component "ExchangeIFCCustomMappingServices".
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

class VELKOR_PLATFORM_API QORIExchangeIFCCustomMappingServices : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// Reads the custom mapping document; to be called before the first lookup.
    virtual HRESULT LoadCustomMapping() = 0;
    /// IFC_MAPPING_MAPPED with the outputs set, or IFC_MAPPING_NONE. The scope is the name of a type followed by
    /// "_Import" or "_Export".
    virtual HRESULT GetCustomMapping(const QORUnicodeString& iEntity, const QORUnicodeString& iProperty,
                                     const QORUnicodeString& iScope, QORUnicodeString& oEntity,
                                     QORUnicodeString& oProperty) = 0;
};
using QORIExchangeIFCCustomMappingServices_var = QORInterface_var<QORIExchangeIFCCustomMappingServices>;
