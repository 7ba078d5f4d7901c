#include "XmlElement.h"

#include "velkor/xml/QORIDOMAttr.h"
#include "velkor/xml/QORIDOMDocument.h"
#include "velkor/xml/QORIDOMElement.h"
#include "velkor/xml/QORIDOMNodeList.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"

#include <algorithm>

namespace velkor::lint {

namespace {

class Messages final : public QORIXMLErrorHandler {
public:
    explicit Messages(std::vector<Finding>& findings) : _findings(findings) {}
    HRESULT Warning(const QORXMLMessage& message) override { return keep(Severity::Warning, "xml", message); }
    HRESULT Error(const QORXMLMessage& message) override { return keep(Severity::Error, "not-well-formed", message); }

private:
    HRESULT keep(Severity severity, const char* code, const QORXMLMessage& message) {
        QORUnicodeString text = message.text;
        text.Strip();
        _findings.push_back({severity, message.line, code, std::string(text.utf8()), {}});
        return S_OK;
    }
    std::vector<Finding>& _findings;
};

template <class Get>
std::string textOf(Get get) {
    QORUnicodeString text;
    return SUCCEEDED(get(text)) ? std::string(text.utf8()) : std::string();
}

template <class Visit>
void visitNodes(const QORIDOMNodeList_var& nodes, Visit visit) {
    unsigned int length = 0;
    if (nodes.IsNull() || FAILED(nodes->GetLength(length))) return;
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var node;
        if (SUCCEEDED(nodes->Item(i, node)) && !node.IsNull()) visit(i, node);
    }
}

// The parser bounds how deep elements nest.
void copy(const QORIDOMElement_var& source, XmlElement& target) {
    target.name = textOf([&](auto& text) { return source->GetTagName(text); });
    target.namespaceUri = textOf([&](auto& text) { return source->GetNamespaceURI(text); });
    source->GetLineNumber(target.line);
    QORIDOMNodeList_var attributes, children;
    source->GetAttributes(attributes);
    visitNodes(attributes, [&](unsigned int, const QORIDOMNode_var& node) {
        target.attributes.push_back({textOf([&](auto& text) { return node->GetNodeName(text); }),
                                     textOf([&](auto& text) { return node->GetNodeValue(text); }),
                                     textOf([&](auto& text) { return node->GetNamespaceURI(text); })});
    });
    source->GetChildNodes(children);
    visitNodes(children, [&](unsigned int index, const QORIDOMNode_var& node) {
        if (index == 0) target.text = textOf([&](auto& text) { return node->GetNodeValue(text); });
        const QORIDOMElement_var element = node;
        if (element.IsNull()) return;
        XmlElement& child = target.children.emplace_back();
        child.index = index;
        child.parent = &target;
        copy(element, child);
    });
}

} // namespace

const std::string& XmlElement::attribute(std::string_view attributeName) const {
    static const std::string absent;
    const auto found = std::ranges::find(attributes, attributeName, &Attribute::name);
    return found == attributes.end() ? absent : found->value;
}

bool XmlElement::hasAttribute(std::string_view attributeName) const {
    return std::ranges::find(attributes, attributeName, &Attribute::name) != attributes.end();
}

bool XmlElement::contains(std::string_view wanted) const {
    return name == wanted ||
           std::ranges::any_of(children, [&](const XmlElement& child) { return child.contains(wanted); });
}

XmlReading readXml(std::string_view bytes, const std::string& path) {
    XmlReading reading;
    reading.bytes = bytes;
    QORIXMLDOMDocumentBuilder_var builder;
    CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, builder);
    const auto handler = QORIXMLErrorHandler_var::adopt(objectmodeler::newComponent<Messages>(reading.findings));
    QORIDOMDocument_var document;
    QORIDOMElement_var root;
    QORIXMLSAX2Factory_var factory;
    CreateQORIXMLSAX2Factory(CLSID_XML4C5_SAX, factory);
    QORIXMLInputSource_var source;
    factory->CreateInputSourceFromText(bytes, QORUnicodeString(std::string_view(path)), source);
    builder->Parse(source, document, {}, {}, {}, handler);
    if (!document.IsNull()) document->GetDocumentElement(root);
    if (root.IsNull()) {
        if (reading.findings.empty())
            reading.findings.push_back({Severity::Error, 1, "not-well-formed", "expected an XML document", {}});
        return reading;
    }
    reading.document = document;
    reading.root = std::make_unique<XmlElement>();
    copy(root, *reading.root);
    return reading;
}

} // namespace velkor::lint
