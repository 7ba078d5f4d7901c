/// A place in the product structure at which a PLM object occurs.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"

class VELKOR_PLATFORM_API QORIPLMNavOccurrence : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// The object that occurs here; it has QORIInstance.
    virtual HRESULT GetRelatedObject(QORBaseUnknown_var& object) = 0;
};
using QORIPLMNavOccurrence_var = QORInterface_var<QORIPLMNavOccurrence>;
