/// XML documents: made, read, queried and written.
///
///     QORIDOMDocument_var document;
///     if (FAILED(QORIFCDXXMLServices::GetDOMDocument(path, document))) …
///     QORIDOMNodeList_var mappings;
///     QORIFCDXXMLServices::GetNodeList(document, "IfcMapping/CustomMapping", mappings);
///
/// All give S_OK on success and pass the failures of the parser on. What the parser has to say about
/// a file or an expression is in the host's exchange log. Every failure is reported as an assertion as well, but
/// for one: GetNode and GetNodeValue report no E_INVALIDARG that says how many nodes an expression selects. The
/// form of GetAttributeValue that takes an expression does report it, with the expression as the message.
///
/// Expressions are XPath 1.0. Four prefixes are bound, whatever the document declares: "gml" (GML 3.2,
/// OGC 07-036), "epsg" (the EPSG dataset), "gmd" and "gco" (ISO/TS 19139:2007, schemas of 2005).
#pragma once

#include "VelkorExport.h"

#include "velkor/text/QORUnicodeString.h"
#include "velkor/xml/QORIDOMDocument.h"
#include "velkor/xml/QORIDOMElement.h"
#include "velkor/xml/QORIDOMNodeList.h"

class VELKOR_API QORIFCDXXMLServices {
public:
    /// A new document whose document element has the name `rootName`.
    static HRESULT CreateDOMDocument(const QORUnicodeString& rootName, QORIDOMDocument_var& document);
    /// The document of a file.
    static HRESULT GetDOMDocument(const QORUnicodeString& path, QORIDOMDocument_var& document);
    /// Writes a document to a file: UTF-8, carriage return and line feed, two blanks per level.
    static HRESULT WriteDOMDocument(const QORIDOMDocument_var& document, const QORUnicodeString& path);

    /// All nodes that an expression selects, in the order of the document. An empty document raises
    /// the object modeler's null-pointer error.
    static HRESULT GetNodeList(const QORIDOMDocument_var& document, const char* xpath, QORIDOMNodeList_var& nodes);
    /// The one node that an expression selects; E_INVALIDARG when it selects none or several.
    static HRESULT GetNode(const QORIDOMDocument_var& document, const char* xpath, QORIDOMNode_var& node);
    /// The value of that node; when it is empty, as an element's is, that of its first child alone.
    /// E_UNEXPECTED when there is none.
    static HRESULT GetNodeValue(const QORIDOMDocument_var& document, const char* xpath, QORUnicodeString& value);
    /// An attribute of that node, empty when it is absent; E_UNEXPECTED when the node is no element.
    static HRESULT GetAttributeValue(const QORIDOMDocument_var& document, const char* xpath,
                                     const QORUnicodeString& attributeName, QORUnicodeString& value);
    /// The same of a given node.
    static HRESULT GetAttributeValue(const QORIDOMNode_var& node, const QORUnicodeString& attributeName,
                                     QORUnicodeString& value);
};
