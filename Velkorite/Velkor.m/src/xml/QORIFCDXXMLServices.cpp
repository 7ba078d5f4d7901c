#include "QORIFCDXXMLServices.h"

#include "foundation/Results.h"
#include "velkor/xml/QORIDOMDocumentType.h"
#include "velkor/xml/QORIDOMImplementation.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"
#include "velkor/xml/QORIXMLXPathFactory.h"
#include "xml/ParserOptions.h"
#include "xml/XmlNodes.h"

namespace {

using namespace velkor::library;

constexpr Pair writerOptions[] = {
    {"QOREncoding", "UTF-8"}, {"QORLineSeparator", "\r\n"}, {"QORIndentation", "2"}, {"QORIndentationCharacter", " "}};

constexpr Pair namespaces[] = {{"gml", "http://www.opengis.net/gml/3.2"},
                               {"epsg", "urn:x-ogp:spec:schema-xsd:EPSG:1.0:dataset"},
                               {"gmd", "http://www.isotc211.org/2005/gmd"},
                               {"gco", "http://www.isotc211.org/2005/gco"}};

/// The builder that reads and writes; whether making it succeeded counts less than whether it is there.
HRESULT makeBuilder(QORIXMLDOMDocumentBuilder_var& builder) {
    CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, builder);
    return reported(given(S_OK, builder));
}

} // namespace

HRESULT QORIFCDXXMLServices::CreateDOMDocument(const QORUnicodeString& rootName, QORIDOMDocument_var& document) {
    QORIXMLDOMDocumentBuilder_var builder;
    RETURN_IF_FAILED(reported(given(CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C_DOM, builder), builder)));
    RETURN_IF_FAILED(reported(given(builder->CreateDocument(document), document)));

    QORIDOMImplementation_var implementation;
    builder->GetDOMImplementation(implementation);
    RETURN_IF_FAILED(reported(given(S_OK, implementation)));
    implementation->CreateDocument("", rootName, QORIDOMDocumentType_var(), document);
    return reported(given(S_OK, document));
}

HRESULT QORIFCDXXMLServices::GetDOMDocument(const QORUnicodeString& path, QORIDOMDocument_var& document) {
    QORIXMLDOMDocumentBuilder_var builder;
    RETURN_IF_FAILED(makeBuilder(builder));
    const ParallelLists options(parserOptions);
    const HRESULT result = builder->Parse(path, document, options.first, options.second, QORIXMLEntityResolver_var(),
                                          QORIXMLErrorHandler_var());
    return reported(given(result, document));
}

HRESULT QORIFCDXXMLServices::WriteDOMDocument(const QORIDOMDocument_var& document, const QORUnicodeString& path) {
    QORIXMLDOMDocumentBuilder_var builder;
    RETURN_IF_FAILED(makeBuilder(builder));
    const ParallelLists options(writerOptions);
    RETURN_IF_FAILED(reported(builder->Write(document, path, options.first, options.second)));
    return S_OK;
}

HRESULT QORIFCDXXMLServices::GetNodeList(const QORIDOMDocument_var& document, const char* xpath,
                                         QORIDOMNodeList_var& nodes) {
    const QORIXMLXPathFactory_var factory = document;
    QORIXMLXPathExpression_var expression;
    RETURN_IF_FAILED(reported(given(factory->CreateXPathExpression(xpath, expression), expression)));
    const ParallelLists bound(namespaces);
    RETURN_IF_FAILED(reported(expression->SetNamespaces(bound.first, bound.second)));
    return reported(given(expression->Evaluate(nodes), nodes));
}

HRESULT QORIFCDXXMLServices::GetNode(const QORIDOMDocument_var& document, const char* xpath, QORIDOMNode_var& node) {
    const NodeRange nodes = select(document, xpath);
    RETURN_IF_FAILED(reported(nodes.result()));
    if (nodes.length() != 1) return E_INVALIDARG;
    const ListedNode only = nodes[0];
    node = only.node;
    return reported(only.result);
}

HRESULT QORIFCDXXMLServices::GetNodeValue(const QORIDOMDocument_var& document, const char* xpath,
                                          QORUnicodeString& value) {
    QORIDOMNode_var node;
    const HRESULT result = GetNode(document, xpath, node);
    if (result == E_INVALIDARG) return result;
    RETURN_IF_FAILED(reported(given(result, node)));
    QORUnicodeString name;
    RETURN_IF_FAILED(reported(node->GetNodeName(name)));
    RETURN_IF_FAILED(reported(nodeValue(node, value)));
    return S_OK;
}

HRESULT QORIFCDXXMLServices::GetAttributeValue(const QORIDOMDocument_var& document, const char* xpath,
                                               const QORUnicodeString& attributeName, QORUnicodeString& value) {
    QORIDOMNode_var node;
    RETURN_IF_FAILED(reported(GetNode(document, xpath, node), SourcePlace::here(), xpath));
    return reported(GetAttributeValue(node, attributeName, value));
}

HRESULT QORIFCDXXMLServices::GetAttributeValue(const QORIDOMNode_var& node, const QORUnicodeString& attributeName,
                                               QORUnicodeString& value) {
    QORIDOMElement_var element;
    RETURN_IF_FAILED(asElement(node, element));
    RETURN_IF_FAILED(reported(element->GetAttribute(attributeName, value)));
    return S_OK;
}
