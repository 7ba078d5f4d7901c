#include "QORIFCDXXMLServices.h"

#include "ReportedResult.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/xml/QORIDOMDocumentType.h"
#include "velkor/xml/QORIDOMImplementation.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"
#include "velkor/xml/QORIXMLXPathFactory.h"

#include <initializer_list>

namespace {

struct Pair {
    const char* first;
    const char* second;
};

constexpr Pair parserOptions[] = {{"QORDoValidation", "false"}, {"QOREnableNameSpaces", "true"}};

constexpr Pair writerOptions[] = {
    {"QOREncoding", "UTF-8"}, {"QORLineSeparator", "\r\n"}, {"QORIndentation", "2"}, {"QORIndentationCharacter", " "}};

constexpr Pair namespaces[] = {{"gml", "http://www.opengis.net/gml/3.2"},
                               {"epsg", "urn:x-ogp:spec:schema-xsd:EPSG:1.0:dataset"},
                               {"gmd", "http://www.isotc211.org/2005/gmd"},
                               {"gco", "http://www.isotc211.org/2005/gco"}};

/// Pairs as the two parallel lists that the parser takes.
struct ParallelLists {
    template <std::size_t count>
    explicit ParallelLists(const Pair (&pairs)[count]) {
        for (const Pair& pair : pairs) {
            first.Append(pair.first);
            second.Append(pair.second);
        }
    }
    QORListValQORUnicodeString first;
    QORListValQORUnicodeString second;
};

} // namespace

HRESULT QORIFCDXXMLServices::CreateDOMDocument(const QORUnicodeString& rootName, QORIDOMDocument_var& document) {
    QORIXMLDOMDocumentBuilder_var builder;
    HRESULT result = CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C_DOM, builder);
    if (FAILED(result)) return REPORTED(result);
    if (builder.IsNull()) return REPORTED(E_UNEXPECTED);

    result = builder->CreateDocument(document);
    if (FAILED(result)) return REPORTED(result);
    if (document.IsNull()) return REPORTED(E_UNEXPECTED);

    QORIDOMImplementation_var implementation;
    builder->GetDOMImplementation(implementation);
    if (implementation.IsNull()) return REPORTED(E_UNEXPECTED);
    implementation->CreateDocument("", rootName, QORIDOMDocumentType_var(), document);
    return document.IsNull() ? REPORTED(E_UNEXPECTED) : S_OK;
}

HRESULT QORIFCDXXMLServices::GetDOMDocument(const QORUnicodeString& path, QORIDOMDocument_var& document) {
    QORIXMLDOMDocumentBuilder_var builder;
    CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, builder);
    if (builder.IsNull()) return REPORTED(E_UNEXPECTED);

    const ParallelLists options(parserOptions);
    const HRESULT result = builder->Parse(path, document, options.first, options.second, QORIXMLEntityResolver_var(),
                                          QORIXMLErrorHandler_var());
    if (FAILED(result)) return REPORTED(result);
    return document.IsNull() ? REPORTED(E_UNEXPECTED) : S_OK;
}

HRESULT QORIFCDXXMLServices::WriteDOMDocument(const QORIDOMDocument_var& document, const QORUnicodeString& path) {
    QORIXMLDOMDocumentBuilder_var builder;
    CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, builder);
    if (builder.IsNull()) return REPORTED(E_UNEXPECTED);

    const ParallelLists options(writerOptions);
    const HRESULT result = builder->Write(document, path, options.first, options.second);
    return FAILED(result) ? REPORTED(result) : S_OK;
}

HRESULT QORIFCDXXMLServices::GetNodeList(const QORIDOMDocument_var& document, const char* xpath,
                                         QORIDOMNodeList_var& nodes) {
    const QORIXMLXPathFactory_var factory = document;
    QORIXMLXPathExpression_var expression;
    HRESULT result = factory->CreateXPathExpression(xpath, expression);
    if (FAILED(result)) return REPORTED(result);
    if (expression.IsNull()) return REPORTED(E_UNEXPECTED);

    const ParallelLists bound(namespaces);
    result = expression->SetNamespaces(bound.first, bound.second);
    if (FAILED(result)) return REPORTED(result);
    result = expression->Evaluate(nodes);
    if (FAILED(result)) return REPORTED(result);
    return nodes.IsNull() ? REPORTED(E_UNEXPECTED) : S_OK;
}

HRESULT QORIFCDXXMLServices::GetNode(const QORIDOMDocument_var& document, const char* xpath, QORIDOMNode_var& node) {
    QORIDOMNodeList_var nodes;
    HRESULT result = GetNodeList(document, xpath, nodes);
    if (FAILED(result)) return REPORTED(result);
    if (nodes.IsNull()) return REPORTED(E_UNEXPECTED);
    unsigned int length = 0;
    result = nodes->GetLength(length);
    if (FAILED(result)) return REPORTED(result);
    if (length != 1) return E_INVALIDARG;
    result = nodes->Item(0, node);
    if (FAILED(result)) return REPORTED(result);
    return node.IsNull() ? REPORTED(E_UNEXPECTED) : S_OK;
}

HRESULT QORIFCDXXMLServices::GetNodeValue(const QORIDOMDocument_var& document, const char* xpath,
                                          QORUnicodeString& value) {
    QORIDOMNode_var node;
    HRESULT result = GetNode(document, xpath, node);
    if (result == E_INVALIDARG) return E_INVALIDARG;
    if (FAILED(result)) return REPORTED(result);
    if (node.IsNull()) return REPORTED(E_UNEXPECTED);

    QORUnicodeString name;
    result = node->GetNodeName(name);
    if (FAILED(result)) return REPORTED(result);
    result = node->GetNodeValue(value);
    if (FAILED(result)) return REPORTED(result);
    if (value.GetLengthInChar() >= 1) return S_OK;

    // An element has no value of its own; that of its first child stands for it.
    QORIDOMNode_var child;
    result = node->GetFirstChild(child);
    if (FAILED(result)) return REPORTED(result);
    if (child.IsNull()) return REPORTED(E_UNEXPECTED);
    result = child->GetNodeValue(value);
    return FAILED(result) ? REPORTED(result) : S_OK;
}

HRESULT QORIFCDXXMLServices::GetAttributeValue(const QORIDOMDocument_var& document, const char* xpath,
                                               const QORUnicodeString& attributeName, QORUnicodeString& value) {
    QORIDOMNode_var node;
    HRESULT result = GetNode(document, xpath, node);
    if (FAILED(result)) {
        __OmyAssertionFailed(VELKOR_SOURCE_UNIT, __LINE__, xpath);
        return result;
    }
    result = GetAttributeValue(node, attributeName, value);
    return FAILED(result) ? REPORTED(result) : S_OK;
}

HRESULT QORIFCDXXMLServices::GetAttributeValue(const QORIDOMNode_var& node, const QORUnicodeString& attributeName,
                                               QORUnicodeString& value) {
    if (node.IsNull()) return REPORTED(E_UNEXPECTED);
    const QORIDOMElement_var element = node;
    if (element.IsNull()) return REPORTED(E_UNEXPECTED);
    const HRESULT result = element->GetAttribute(attributeName, value);
    return FAILED(result) ? REPORTED(result) : S_OK;
}
