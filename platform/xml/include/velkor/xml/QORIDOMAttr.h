/// An attribute.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/xml/QORIDOMNode.h"

class VELKOR_PLATFORM_API QORIDOMAttr : public QORIDOMNode {
    VELKOR_DECLARE_CLASS

public:
    virtual HRESULT GetName(QORUnicodeString& name) = 0;         ///< Name of the attribute.
    virtual HRESULT GetValue(QORUnicodeString& value) = 0;       ///< Value of the attribute.
    virtual HRESULT SetValue(const QORUnicodeString& value) = 0; ///< Gives it another value.
    /// Empty for an attribute that was removed.
    virtual HRESULT GetOwnerElement(QORIDOMElement_var& element) = 0;
};
