/// An element and its attributes.
///
/// Declarations of namespaces ("xmlns", "xmlns:p") are read like attributes by GetAttribute and
/// HasAttribute; they are no nodes.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/xml/QORIDOMNode.h"

class VELKOR_PLATFORM_API QORIDOMElement : public QORIDOMNode {
    VELKOR_DECLARE_CLASS

public:
    /// The name with its prefix.
    virtual HRESULT GetTagName(QORUnicodeString& name) = 0;
    /// Value of the attribute with this name, prefix included; empty when it is absent.
    virtual HRESULT GetAttribute(const QORUnicodeString& name, QORUnicodeString& value) = 0;
    /// Whether it has an attribute of a name.
    virtual HRESULT HasAttribute(const QORUnicodeString& name, bool& has) = 0;
    /// The attribute's node; empty when it is absent.
    virtual HRESULT GetAttributeNode(const QORUnicodeString& name, QORIDOMAttr_var& attribute) = 0;
    /// All attributes in the order of the document.
    virtual HRESULT GetAttributes(QORIDOMNodeList_var& attributes) = 0;
    /// E_INVALIDARG when the name is none, has a prefix that is not bound here, or declares a namespace.
    virtual HRESULT SetAttribute(const QORUnicodeString& name, const QORUnicodeString& value) = 0;
    /// Nothing when it is absent.
    virtual HRESULT RemoveAttribute(const QORUnicodeString& name) = 0;
    /// Elements below this one with a name, prefix included, in the order of the document; "*" means
    /// all. The list follows later changes of the document.
    virtual HRESULT GetElementsByTagName(const QORUnicodeString& name, QORIDOMNodeList_var& elements) = 0;
};
