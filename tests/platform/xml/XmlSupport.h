/// Short forms of what the tests ask of documents again and again.
#pragma once

#include "exchangelog/MessageLog.h"
#include "xml/QORIDOMAttr.h"
#include "xml/QORIDOMDocument.h"
#include "xml/QORIDOMDocumentType.h"
#include "xml/QORIDOMElement.h"
#include "xml/QORIDOMNodeList.h"
#include "xml/QORIXMLDOMDocumentBuilder.h"
#include "xml/QORIXMLXPathFactory.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace velkor::xml::test {

/// The exchange log of a test.
class Log : public exchangelog::MessageLog {
public:
    explicit Log(int level = 9) : MessageLog(level) { exchangelog::setExchangeErr(this); }
    ~Log() override { exchangelog::setExchangeErr(nullptr); }
    std::vector<std::string> texts() const {
        std::vector<std::string> result;
        for (const auto& message : messages()) result.push_back(message.text);
        return result;
    }
};

inline QORIXMLDOMDocumentBuilder_var builder() {
    QORIXMLDOMDocumentBuilder_var result;
    EXPECT_EQ(CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, result), S_OK);
    return result;
}

inline HRESULT read(std::string_view bytes, QORIDOMDocument_var& document,
                    const QORIXMLErrorHandler_var& handler = {}) {
    QORIXMLSAX2Factory_var factory;
    QORIXMLInputSource_var source;
    EXPECT_EQ(CreateQORIXMLSAX2Factory(CLSID_XML4C5_SAX, factory), S_OK);
    EXPECT_EQ(factory->CreateInputSourceFromText(bytes, "text", source), S_OK);
    return builder()->Parse(source, document, {}, {}, {}, handler);
}

inline QORIDOMDocument_var read(std::string_view bytes) {
    QORIDOMDocument_var document;
    EXPECT_EQ(read(bytes, document), S_OK) << bytes;
    return document;
}

inline QORListValQORUnicodeString list(const std::vector<const char*>& texts) {
    QORListValQORUnicodeString result;
    for (const char* text : texts) result.Append(text);
    return result;
}

/// The document as text; without white space of the writer's making unless `indentation` is given.
inline std::string text(const QORIDOMDocument_var& document, const char* indentation = "0") {
    QORUnicodeString result;
    EXPECT_EQ(builder()->WriteToText(document, result, list({"QORIndentation"}), list({indentation})), S_OK);
    std::string_view bytes = result.utf8();
    const std::string_view declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    EXPECT_TRUE(bytes.starts_with(declaration)) << bytes;
    bytes.remove_prefix(declaration.size());
    return std::string(bytes);
}

template <class Object, class Get>
std::string told(const Object& object, Get get) {
    QORUnicodeString result = "untouched";
    EXPECT_EQ(((object.get())->*get)(result), S_OK);
    return std::string(result.utf8());
}
template <class Node>
std::string name(const Node& node) {
    return node.IsNull() ? "none" : told(QORIDOMNode_var(node), &QORIDOMNode::GetNodeName);
}
template <class Node>
std::string value(const Node& node) {
    return node.IsNull() ? "none" : told(QORIDOMNode_var(node), &QORIDOMNode::GetNodeValue);
}

template <class Result, class Object, class Get>
Result got(const Object& object, Get get) {
    Result result;
    EXPECT_EQ(((object.get())->*get)(result), S_OK);
    return result;
}
inline QORIDOMElement_var root(const QORIDOMDocument_var& document) {
    return got<QORIDOMElement_var>(document, &QORIDOMDocument::GetDocumentElement);
}
template <class Node>
QORIDOMNode_var first(const Node& node) {
    return got<QORIDOMNode_var>(node, &QORIDOMNode::GetFirstChild);
}
template <class Node>
QORIDOMNode_var next(const Node& node) {
    return got<QORIDOMNode_var>(node, &QORIDOMNode::GetNextSibling);
}

/// Names of the nodes of a list, values where a node has no name of its own.
inline std::vector<std::string> names(const QORIDOMNodeList_var& nodes) {
    std::vector<std::string> result;
    unsigned int length = 0;
    EXPECT_EQ(nodes->GetLength(length), S_OK);
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var node;
        EXPECT_EQ(nodes->Item(i, node), S_OK);
        result.push_back(name(node).starts_with('#') ? value(node) : name(node));
    }
    QORIDOMNode_var none;
    EXPECT_EQ(nodes->Item(length, none), S_OK);
    EXPECT_TRUE(none.IsNull());
    return result;
}
template <class Node>
std::vector<std::string> children(const Node& node) {
    return names(got<QORIDOMNodeList_var>(node, &QORIDOMNode::GetChildNodes));
}

} // namespace velkor::xml::test
