/// A document. It also offers QORIDOMDocumentTraversal and QORIXMLXPathFactory, to be had by query.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/xml/QORIDOMNode.h"

class VELKOR_PLATFORM_API QORIDOMDocument : public QORIDOMNode {
    VELKOR_DECLARE_CLASS

public:
    virtual HRESULT GetDocumentElement(QORIDOMElement_var& element) = 0; ///< The root element; null when there is none.
    /// Empty for a document without document type.
    virtual HRESULT GetDoctype(QORIDOMDocumentType_var& type) = 0;
    virtual HRESULT GetImplementation(QORIDOMImplementation_var& implementation) = 0; ///< What makes documents.
    /// Elements of the whole document with a name, prefix included; "*" means all.
    virtual HRESULT GetElementsByTagName(const QORUnicodeString& name, QORIDOMNodeList_var& elements) = 0;

    /// New nodes of this document, to be put into it by AppendChild or InsertBefore. E_INVALIDARG for
    /// a name or text that XML does not allow there.
    virtual HRESULT CreateElement(const QORUnicodeString& name, QORIDOMElement_var& element) = 0;
    /// An element that declares its namespace itself. A prefix needs a namespace.
    virtual HRESULT CreateElementNS(const QORUnicodeString& uri, const QORUnicodeString& qualifiedName,
                                    QORIDOMElement_var& element) = 0;
    /// A text, not yet in the tree.
    virtual HRESULT CreateTextNode(const QORUnicodeString& text, QORIDOMNode_var& node) = 0;
    /// A CDATA section, not yet in the tree.
    virtual HRESULT CreateCDATASection(const QORUnicodeString& text, QORIDOMNode_var& node) = 0;
    /// A comment, not yet in the tree.
    virtual HRESULT CreateComment(const QORUnicodeString& text, QORIDOMNode_var& node) = 0;
    /// A processing instruction, not yet in the tree.
    virtual HRESULT CreateProcessingInstruction(const QORUnicodeString& target, const QORUnicodeString& text,
                                                QORIDOMNode_var& node) = 0;
};
