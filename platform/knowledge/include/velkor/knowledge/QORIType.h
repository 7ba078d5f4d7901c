/// Types of the host's knowledge: PLM types and their specializations.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

class VELKOR_PLATFORM_API QORIType : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    virtual HRESULT GetName(QORUnicodeString& name) = 0; ///< The type's name.
};
using QORIType_var = QORInterface_var<QORIType>;
