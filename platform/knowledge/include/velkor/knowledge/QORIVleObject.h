/// An object whose knowledge attributes can be read.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

class VELKOR_PLATFORM_API QORIVleObject : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// The value of an attribute in words. A failure, `value` untouched, when there is no such attribute.
    virtual HRESULT GetAttributeText(const QORUnicodeString& name, QORUnicodeString& value) = 0;
};
using QORIVleObject_var = QORInterface_var<QORIVleObject>;

/// Reads attributes of PLM objects.
class VELKOR_PLATFORM_API QORVleObjectAttrReadServices {
public:
    /// The value of a knowledge attribute in words. E_UNEXPECTED for an empty object; the object's failures are passed
    /// on.
    static HRESULT GetValueAsString(const QORIVleObject_var& object, const QORUnicodeString& name,
                                    QORUnicodeString& value);
};
