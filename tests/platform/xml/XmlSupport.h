/// Short forms of what the tests ask of documents again and again.
#pragma once

#include "velkor/exchangelog/MessageLog.h"
#include "velkor/xml/QORIDOMAttr.h"
#include "velkor/xml/QORIDOMDocument.h"
#include "velkor/xml/QORIDOMDocumentType.h"
#include "velkor/xml/QORIDOMElement.h"
#include "velkor/xml/QORIDOMNodeList.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"
#include "velkor/xml/QORIXMLXPathFactory.h"

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

/// The document as text, without white space of the writer's making.
inline std::string text(const QORIDOMDocument_var& document) {
    QORUnicodeString result;
    EXPECT_EQ(builder()->WriteToText(document, result, list({"QORIndentation"}), list({"0"})), S_OK);
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
inline std::string name(const QORIDOMNode_var& node) {
    return node.IsNull() ? "none" : told(node, &QORIDOMNode::GetNodeName);
}
inline std::string value(const QORIDOMNode_var& node) {
    return node.IsNull() ? "none" : told(node, &QORIDOMNode::GetNodeValue);
}
/// Its name, or its value where it has no name of its own.
inline std::string nameOrValue(const QORIDOMNode_var& node) {
    return name(node).starts_with('#') ? value(node) : name(node);
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
inline QORIDOMNode_var first(const QORIDOMNode_var& node) {
    return got<QORIDOMNode_var>(node, &QORIDOMNode::GetFirstChild);
}
inline QORIDOMNode_var next(const QORIDOMNode_var& node) {
    return got<QORIDOMNode_var>(node, &QORIDOMNode::GetNextSibling);
}

inline std::vector<std::string> names(const QORIDOMNodeList_var& nodes) {
    std::vector<std::string> result;
    unsigned int length = 0;
    EXPECT_EQ(nodes->GetLength(length), S_OK);
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var node;
        EXPECT_EQ(nodes->Item(i, node), S_OK);
        result.push_back(nameOrValue(node));
    }
    QORIDOMNode_var none;
    EXPECT_EQ(nodes->Item(length, none), S_OK);
    EXPECT_TRUE(none.IsNull());
    return result;
}
inline std::vector<std::string> children(const QORIDOMNode_var& node) {
    return names(got<QORIDOMNodeList_var>(node, &QORIDOMNode::GetChildNodes));
}

} // namespace velkor::xml::test
