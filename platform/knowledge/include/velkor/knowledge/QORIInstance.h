/// An object of the host's PLM.
#pragma once

#include "velkor/knowledge/QORIType.h"
#include "velkor/PlatformExport.h"

class VELKOR_PLATFORM_API QORIInstance : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// The object's knowledge type.
    virtual HRESULT GetType(QORIType_var& type) = 0;
};
using QORIInstance_var = QORInterface_var<QORIInstance>;
