/// What several fuzz targets share.
#pragma once

#include "velkor/xml/QORIDOMDocument.h"
#include "velkor/xml/QORIDOMElement.h"
#include "velkor/xml/QORIDOMNodeList.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace velkor::test {

inline void require(bool condition, int line = __builtin_LINE()) {
    if (condition) return;
    std::fprintf(stderr, "line %d does not hold\n", line);
    std::abort();
}

inline QORIXMLDOMDocumentBuilder_var builder() {
    QORIXMLDOMDocumentBuilder_var result;
    require(CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, result) == S_OK);
    return result;
}

/// Empty when the text is no document.
inline QORIDOMDocument_var parsed(std::string_view text) {
    QORIXMLSAX2Factory_var factory;
    QORIXMLInputSource_var source;
    QORIDOMDocument_var document;
    require(CreateQORIXMLSAX2Factory(CLSID_XML4C5_SAX, factory) == S_OK);
    require(factory->CreateInputSourceFromText(text, "fuzz", source) == S_OK);
    const HRESULT result = builder()->Parse(source, document, {}, {}, {}, {});
    require(SUCCEEDED(result) != document.IsNull());
    return document;
}

template <class Use>
void forEach(const QORIDOMNodeList_var& nodes, Use use) {
    unsigned int length = 0;
    require(nodes->GetLength(length) == S_OK);
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var node;
        require(nodes->Item(i, node) == S_OK && !node.IsNull());
        use(node);
    }
}
/// Elements of a tag anywhere in a document or element.
template <class Parent, class Use>
void forEachElement(const Parent& parent, const char* tag, Use use) {
    QORIDOMNodeList_var nodes;
    require(parent->GetElementsByTagName(tag, nodes) == S_OK);
    forEach(nodes, [&](const QORIDOMNode_var& node) { use(QORIDOMElement_var(node)); });
}

inline QORUnicodeString attribute(const QORIDOMElement_var& element, const char* name) {
    QORUnicodeString value;
    require(element->GetAttribute(name, value) == S_OK);
    return value;
}

} // namespace velkor::test
