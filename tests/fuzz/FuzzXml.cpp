// Documents that the input holds: parsed, walked, queried, changed and written. The first line says
// what is changed, the second is an XPath expression, the rest is the document.

#include "FuzzSupport.h"
#include "velkor/xml/QORIDOMDocumentTraversal.h"
#include "velkor/xml/QORIDOMDocumentType.h"
#include "velkor/xml/QORIDOMNodeFilter.h"
#include "velkor/xml/QORIDOMNodeIterator.h"
#include "velkor/xml/QORIXMLXPathFactory.h"
#include "velkor/xml/XmlEvents.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using namespace velkor::test;

using Nodes = std::vector<QORIDOMNode_var>;

/// Empty when the document cannot be written.
std::string written(const QORIDOMDocument_var& document, const char* indentation) {
    QORListValQORUnicodeString names, values;
    names.Append("QORIndentation");
    values.Append(indentation);
    QORUnicodeString text;
    const HRESULT result = builder()->WriteToText(document, text, names, values);
    require(SUCCEEDED(result) || text.IsEmpty());
    return std::string(text.utf8());
}

Nodes walked(const QORIDOMDocument_var& document) {
    QORIDOMNodeIterator_var iterator;
    const QORIDOMDocumentTraversal_var traversal = document;
    require(traversal->CreateNodeIterator(document, QORDOMNodeFilterType::SHOW_ALL, {}, true, iterator) == S_OK);
    Nodes nodes;
    QORIDOMNode_var node;
    while (iterator->NextNode(node) == S_OK && !node.IsNull()) nodes.push_back(node);
    // The way back shows the same nodes.
    for (std::size_t i = nodes.size(); i > 0; --i) {
        require(iterator->PreviousNode(node) == S_OK && node == nodes[i - 1]);
    }
    return nodes;
}

void ask(const QORIDOMNode_var& node) {
    QORUnicodeString text;
    int line = -1;
    require(node->GetNodeName(text) == S_OK && !(text.IsEmpty()));
    require(node->GetNodeValue(text) == S_OK && node->GetTextContent(text) == S_OK && node->GetPrefix(text) == S_OK);
    require(node->GetNamespaceURI(text) == S_OK && node->GetLineNumber(line) == S_OK && line >= 0);
    QORIDOMNodeList_var children;
    QORIDOMNode_var child, listed, parent;
    unsigned int length = 0, counted = 0;
    require(node->GetChildNodes(children) == S_OK && children->GetLength(length) == S_OK);
    require(node->GetFirstChild(child) == S_OK);
    for (; !child.IsNull(); ++counted) {
        require(children->Item(counted, listed) == S_OK && listed == child);
        require(child->GetParentNode(parent) == S_OK && parent == node);
        require(child->GetNextSibling(child) == S_OK);
    }
    require(counted == length);
    const QORIDOMElement_var element = node;
    if (element.IsNull()) return;
    QORIDOMNodeList_var attributes;
    require(element->GetAttributes(attributes) == S_OK);
    forEach(attributes, [&](const QORIDOMNode_var& one) {
        QORUnicodeString name, value, again;
        require(one->GetNodeName(name) == S_OK && one->GetNodeValue(value) == S_OK);
        require(element->GetAttribute(name, again) == S_OK && again == value);
    });
}

/// Elements, their attributes without prefix and texts, one behind the other.
class Digest : public velkor::xml::XmlReceiver {
public:
    bool begin(std::string_view name, std::span<const velkor::xml::XmlAttribute> attributes, int) override {
        _text.append("<").append(name);
        for (const auto& [key, value] : attributes) _text.append(" ").append(key).append("=").append(value);
        _text += '>';
        return true;
    }
    void text(std::string_view piece) override { _text += piece; }
    void end() override { _text += "</>"; }

    void node(const QORIDOMNode_var& node) {
        unsigned short type = 0;
        require(node->GetNodeType(type) == S_OK);
        if (type == QORIDOMNode::TEXT_NODE || type == QORIDOMNode::CDATA_SECTION_NODE)
            text(got(node, &QORIDOMNode::GetNodeValue));
        const QORIDOMElement_var element = node;
        if (!element.IsNull()) beginElement(element);
        QORIDOMNodeList_var children;
        require(node->GetChildNodes(children) == S_OK);
        forEach(children, [&](const QORIDOMNode_var& child) { this->node(child); });
        if (!element.IsNull()) end();
    }
    const std::string& text() const noexcept { return _text; }

private:
    static std::string got(const QORIDOMNode_var& node, HRESULT (QORIDOMNode::*get)(QORUnicodeString&)) {
        QORUnicodeString result;
        require(((node.get())->*get)(result) == S_OK);
        return std::string(result.utf8());
    }
    void beginElement(const QORIDOMElement_var& element) {
        std::vector<std::string> texts;
        std::vector<velkor::xml::XmlAttribute> attributes;
        QORIDOMNodeList_var nodes;
        require(element->GetAttributes(nodes) == S_OK);
        forEach(nodes, [&](const QORIDOMNode_var& node) {
            if (!got(node, &QORIDOMNode::GetPrefix).empty()) return;
            texts.push_back(got(node, &QORIDOMNode::GetNodeName));
            texts.push_back(got(node, &QORIDOMNode::GetNodeValue));
        });
        for (std::size_t i = 0; i < texts.size(); i += 2) attributes.push_back({texts[i], texts[i + 1]});
        begin(got(element, &QORIDOMNode::GetLocalName), attributes, 0);
    }
    std::string _text;
};

/// Events are those of the document, where no document type tells the one more than the other.
void compareEvents(std::string_view input, const QORIDOMDocument_var& document) {
    static velkor::xml::XmlEvents events;
    Digest ofEvents, ofDocument;
    const auto end = events.read(input, ofEvents);
    if (input.find("<!DOCTYPE") != std::string_view::npos || input.find('\0') != std::string_view::npos) return;
    // Bytes that cannot be converted end the events, while the tree is told of them and goes on.
    const bool isUnconverted = !end && end.error().message.find("conversion failed") != std::string::npos;
    require(end.has_value() == !document.IsNull() || isUnconverted);
    if (!end) return;
    ofDocument.node(document);
    require(ofEvents.text() == ofDocument.text());
}

void select(const QORIDOMDocument_var& document, const std::string& xpath) {
    QORIXMLXPathExpression_var expression;
    const QORIXMLXPathFactory_var factory = document;
    QORIDOMNodeList_var nodes;
    if (FAILED(factory->CreateXPathExpression(QORUnicodeString(std::string_view(xpath)), expression))) return;
    if (FAILED(expression->Evaluate(nodes))) return;
    forEach(nodes, ask);
}

/// Two characters each: what to do, and to which node. Refusals are fine, crashes are not.
void change(const QORIDOMDocument_var& document, Nodes nodes, std::string_view commands) {
    QORIDOMNodeIterator_var iterator;
    QORIDOMDocumentTraversal_var(document)->CreateNodeIterator(document, QORDOMNodeFilterType::SHOW_ALL, {}, true,
                                                               iterator);
    QORIDOMNode_var current = document, visited;
    for (std::size_t i = 0; i + 1 < commands.size(); i += 2) {
        const QORIDOMNode_var node = nodes[static_cast<unsigned char>(commands[i + 1]) % nodes.size()];
        const QORIDOMElement_var element = node;
        const QORUnicodeString rest(commands.substr(i));
        QORIDOMNode_var parent, made;
        const char command = commands[i];
        if (command == 'a') current->AppendChild(node);
        if (command == 'c') current = node;
        if (command == 'i') current->InsertBefore(nodes.back(), node);
        if (command == 'n') iterator->NextNode(visited);
        if (command == 'p') iterator->PreviousNode(visited);
        if (command == 'r' && node->GetParentNode(parent) == S_OK && !parent.IsNull()) parent->RemoveChild(node);
        if (command == 's') node->SetNodeValue(rest);
        if (command == 't') document->CreateTextNode(rest, made);
        if (command == 'x' && !element.IsNull()) element->SetAttribute(rest.SubString(1, 3), "v");
        if (command == 'y' && !element.IsNull()) element->RemoveAttribute(rest.SubString(1, 1));
        if (!made.IsNull()) nodes.push_back(made);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view input(reinterpret_cast<const char*>(data), size);
    const auto line = [&] {
        const std::size_t end = std::min(input.find('\n'), input.size());
        const std::string_view result = input.substr(0, end);
        input.remove_prefix(std::min(end + 1, input.size()));
        return result;
    };
    const std::string commands(line()), xpath(line().substr(0, 60));
    const QORIDOMDocument_var document = parsed(input);
    compareEvents(input, document);
    if (document.IsNull()) return 0;
    const Nodes nodes = walked(document);
    for (const QORIDOMNode_var& node : nodes) ask(node);
    select(document, xpath);

    QORIDOMDocumentType_var type;
    document->GetDoctype(type);
    for (const char* indentation : {"0", "2"}) {
        const std::string text = written(document, indentation);
        // A document type need not come back as it was: what its parameter entities held is gone.
        if (text.empty() || !type.IsNull()) continue;
        const QORIDOMDocument_var again = parsed(text);
        require(!again.IsNull() && written(again, indentation) == text);
    }
    change(document, nodes, commands);
    for (const QORIDOMNode_var& node : walked(document)) ask(node);
    const std::string text = written(document, "0");
    if (!text.empty() && type.IsNull()) require(!parsed(text).IsNull());
    return 0;
}
