/// A node of an XML document (DOM Level 2 Core).
///
/// What holds for all DOM interfaces here: results are S_OK or a failure; what a node lacks is an empty
/// text or an empty pointer with S_OK. A node keeps its document alive. The same node is the same object
/// however it was reached. A node that was taken out of the tree stays usable until its document
/// goes. A document and its nodes are for one thread at a time. Text that XML cannot hold (control
/// characters, bytes that are not UTF-8) is refused with E_INVALIDARG.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"
#include "velkor/xml/DomTypes.h"

class VELKOR_PLATFORM_API QORIDOMNode : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// What kinds of nodes there are.
    enum NodeType : unsigned short {
        ELEMENT_NODE = 1,
        ATTRIBUTE_NODE = 2,
        TEXT_NODE = 3,
        CDATA_SECTION_NODE = 4,
        ENTITY_REFERENCE_NODE = 5,
        PROCESSING_INSTRUCTION_NODE = 7,
        COMMENT_NODE = 8,
        DOCUMENT_NODE = 9,
        DOCUMENT_TYPE_NODE = 10,
    };

    virtual HRESULT GetNodeType(unsigned short& type) = 0; ///< Which kind it is, a NodeType.
    /// The name with its prefix of an element or attribute, the target of a processing instruction,
    /// the document type's name, else "#document", "#text", "#cdata-section" or "#comment".
    virtual HRESULT GetNodeName(QORUnicodeString& name) = 0;
    /// The text of an attribute, text, CDATA section, comment or processing instruction; empty for
    /// every other node, elements among them.
    virtual HRESULT GetNodeValue(QORUnicodeString& value) = 0;
    /// Without effect on a node that has no value.
    virtual HRESULT SetNodeValue(const QORUnicodeString& value) = 0;
    /// The text of all text and CDATA sections below the node; of another node its value.
    virtual HRESULT GetTextContent(QORUnicodeString& text) = 0;
    virtual HRESULT GetNamespaceURI(QORUnicodeString& uri) = 0; ///< URI of its namespace; empty without one.
    virtual HRESULT GetPrefix(QORUnicodeString& prefix) = 0;    ///< Prefix of its name; empty without one.
    /// The name without its prefix of an element or attribute, else empty.
    virtual HRESULT GetLocalName(QORUnicodeString& name) = 0;

    /// An attribute has neither parent nor siblings nor children.
    virtual HRESULT GetParentNode(QORIDOMNode_var& parent) = 0;
    /// The list follows later changes of the document.
    virtual HRESULT GetChildNodes(QORIDOMNodeList_var& children) = 0;
    virtual HRESULT GetFirstChild(QORIDOMNode_var& child) = 0; ///< The first node below it; null when there is none.
    virtual HRESULT GetLastChild(QORIDOMNode_var& child) = 0;  ///< The last node below it; null when there is none.
    /// The node in front of it; null when there is none.
    virtual HRESULT GetPreviousSibling(QORIDOMNode_var& sibling) = 0;
    virtual HRESULT GetNextSibling(QORIDOMNode_var& sibling) = 0; ///< The node behind it; null when there is none.
    virtual HRESULT HasChildNodes(bool& has) = 0;                 ///< Whether there are nodes below it.
    virtual HRESULT GetOwnerDocument(QORIDOMDocument_var& document) = 0; ///< The document that it is of.

    /// Puts a node of the same document before `reference`, at the end when that is empty, taking it
    /// away from where it stood. E_INVALIDARG when the node may not stand there.
    virtual HRESULT InsertBefore(const QORIDOMNode_var& node, const QORIDOMNode_var& reference) = 0;
    virtual HRESULT AppendChild(const QORIDOMNode_var& node) = 0; ///< Puts a node behind the last one below it.
    /// E_INVALIDARG when the node is not a child of this one.
    virtual HRESULT RemoveChild(const QORIDOMNode_var& node) = 0;

    /// Line of the file on which the node begins, counted from 1; 0 when the node was not read.
    virtual HRESULT GetLineNumber(int& line) = 0;
};
