/// The dictionary of the host's types.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORListValQORUnicodeString.h"

class VELKOR_PLATFORM_API QORITypeDictionary : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// Appends the names of all types, in the order in which the host made them known.
    virtual HRESULT ListTypeNames(QORListValQORUnicodeString& names) = 0;
};
using QORITypeDictionary_var = QORInterface_var<QORITypeDictionary>;

/// Where the host's type dictionary is asked for.
class VELKOR_PLATFORM_API QORGlobalFunctions {
public:
    /// Empty when the host has made no types known.
    static QORITypeDictionary_var GetTypeDictionary();
};
