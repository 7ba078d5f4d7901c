#include "Nodes.h"

#include "Messages.h"
#include "NodeLists.h"
#include "Traversal.h"
#include "velkor/xml/QORIDOMAttr.h"
#include "velkor/xml/QORIDOMDocument.h"
#include "velkor/xml/QORIDOMDocumentTraversal.h"
#include "velkor/xml/QORIDOMDocumentType.h"
#include "velkor/xml/QORIDOMElement.h"
#include "velkor/xml/QORIDOMImplementation.h"
#include "velkor/xml/QORIXMLXPathFactory.h"
#include "XPath.h"

#include <array>
#include <libxml/valid.h>
#include <string>

namespace velkor::xml {

namespace {

QORUnicodeString unicode(const xmlChar* text) {
    return QORUnicodeString(view(text));
}

unsigned short domType(const xmlNode* node) noexcept {
    // libxml2 numbers all others as the DOM does.
    return static_cast<unsigned short>(node->type == XML_DTD_NODE ? XML_DOCUMENT_TYPE_NODE : node->type);
}

bool isNamed(const xmlNode* node) noexcept {
    return node->type == XML_ELEMENT_NODE || node->type == XML_ATTRIBUTE_NODE;
}

bool isCharacterData(const xmlNode* node) noexcept {
    return node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE || node->type == XML_COMMENT_NODE ||
           node->type == XML_PI_NODE;
}

const xmlAttr* asAttribute(const xmlNode* node) noexcept {
    return reinterpret_cast<const xmlAttr*>(node);
}

std::string nodeName(const xmlNode* node) {
    switch (node->type) {
    case XML_ELEMENT_NODE:
    case XML_ATTRIBUTE_NODE:
        return qualifiedName(node);
    case XML_TEXT_NODE:
        return "#text";
    case XML_CDATA_SECTION_NODE:
        return "#cdata-section";
    case XML_COMMENT_NODE:
        return "#comment";
    case XML_DOCUMENT_NODE:
        return "#document";
    default:
        return std::string(view(node->name));
    }
}

std::string nodeValue(const xmlNode* node) {
    if (node->type == XML_ATTRIBUTE_NODE) return attributeText(asAttribute(node));
    return isCharacterData(node) ? std::string(view(node->content)) : std::string();
}

/// What a node of the type must not contain so that it can be written.
bool mayHold(xmlElementType type, std::string_view text) noexcept {
    if (!isXmlText(text)) return false;
    const auto lacks = [&](std::string_view part) { return text.find(part) == std::string_view::npos; };
    switch (type) {
    // Line ends are all the same there once read.
    case XML_COMMENT_NODE:
        return lacks("\r") && lacks("--") && !text.ends_with('-');
    case XML_CDATA_SECTION_NODE:
        return lacks("\r") && lacks("]]>");
    case XML_PI_NODE:
        return lacks("\r") && lacks("?>") && !text.starts_with(' ') && !text.starts_with('\t');
    default:
        return true;
    }
}

NodePointer newText(xmlDocPtr document, const std::string& text) {
    return NodePointer(made([&] { return xmlNewDocText(document, xmlText(text)); }, Discard()));
}

void setAttributeText(xmlAttrPtr attribute, const std::string& text) {
    NodePointer content = newText(attribute->doc, text);
    bool isId = attribute->atype == XML_ATTRIBUTE_ID;
    if (isId && text != attributeText(attribute)) {
        // The new one first: the one that goes needs no memory.
        const MessageCapture capture;
        isId = xmlAddID(nullptr, attribute->doc, xmlText(text), attribute) != nullptr;
        capture.check();
        xmlRemoveID(attribute->doc, attribute);
        if (isId) attribute->atype = XML_ATTRIBUTE_ID;
    }
    xmlFreeNodeList(attribute->children);
    content->parent = reinterpret_cast<xmlNodePtr>(attribute);
    attribute->children = attribute->last = content.release();
}

/// Null, and no attribute, when its name or text is not there for want of memory.
xmlAttrPtr whole(xmlAttrPtr attribute) noexcept {
    if (attribute == nullptr ||
        (attribute->name != nullptr && attribute->children != nullptr && attribute->children->content != nullptr)) {
        return attribute;
    }
    xmlRemoveProp(attribute);
    return nullptr;
}
xmlNodePtr whole(xmlNodePtr node) noexcept {
    // Sections have no name, all others have one.
    if (node == nullptr || node->name != nullptr || node->type == XML_CDATA_SECTION_NODE) return node;
    xmlFreeNode(node);
    return nullptr;
}

/// Swaps texts with a new node, so that the one that goes is freed as what it is.
void setText(xmlNodePtr node, const std::string& text) {
    const NodePointer source = newText(node->doc, text);
    // libxml2 keeps a short text in a place of the node itself.
    if (node->content == reinterpret_cast<xmlChar*>(&node->properties)) {
        node->content = nullptr;
        node->properties = nullptr;
    }
    std::swap(node->content, source->content);
}

/// Whether a node may become a child of another, before one of its children or last.
bool mayContain(const xmlNode* parent, const xmlNode* child, const xmlNode* before) noexcept {
    if (parent->type == XML_ELEMENT_NODE) return child->type == XML_ELEMENT_NODE || isCharacterData(child);
    if (parent->type != XML_DOCUMENT_NODE) return false;
    if (child->type == XML_COMMENT_NODE || child->type == XML_PI_NODE) return true;
    const xmlNode* element = xmlDocGetRootElement(reinterpret_cast<const xmlDoc*>(parent));
    if (child->type != XML_ELEMENT_NODE || (element != nullptr && element != child)) return false;
    // The document type stands before the element.
    for (; before != nullptr; before = before->next) {
        if (before->type == XML_DTD_NODE) return false;
    }
    return true;
}

bool isAncestorOrSelf(const xmlNode* ancestor, const xmlNode* node) noexcept {
    while (node != nullptr && node != ancestor) node = node->parent;
    return node != nullptr;
}

/// What all nodes have in common.
template <class Interface>
class NodeOf : public Interface, public NodeHandle {
public:
    using NodeHandle::NodeHandle;

    HRESULT GetNodeType(unsigned short& type) override {
        type = domType(node);
        return S_OK;
    }
    HRESULT GetNodeName(QORUnicodeString& name) override {
        name = QORUnicodeString(nodeName(node));
        return S_OK;
    }
    HRESULT GetNodeValue(QORUnicodeString& value) override {
        value = QORUnicodeString(nodeValue(node));
        return S_OK;
    }
    HRESULT SetNodeValue(const QORUnicodeString& value) override {
        if (node->type != XML_ATTRIBUTE_NODE && !isCharacterData(node)) return S_OK;
        if (!mayHold(node->type, value.utf8())) return E_INVALIDARG;
        const std::string text(value.utf8());
        if (node->type == XML_ATTRIBUTE_NODE)
            setAttributeText(reinterpret_cast<xmlAttrPtr>(node), text);
        else
            setText(node, text);
        return S_OK;
    }
    HRESULT GetTextContent(QORUnicodeString& text) override {
        if (firstChild(node) == nullptr) return GetNodeValue(text);
        std::string gathered;
        for (xmlNodePtr next = nextInTree(node, node); next != nullptr; next = nextInTree(next, node)) {
            if (next->type == XML_TEXT_NODE || next->type == XML_CDATA_SECTION_NODE) gathered += view(next->content);
        }
        text = QORUnicodeString(std::move(gathered));
        return S_OK;
    }
    HRESULT GetNamespaceURI(QORUnicodeString& uri) override {
        uri = isNamed(node) && node->ns != nullptr ? unicode(node->ns->href) : QORUnicodeString();
        return S_OK;
    }
    HRESULT GetPrefix(QORUnicodeString& prefix) override {
        prefix = isNamed(node) && node->ns != nullptr ? unicode(node->ns->prefix) : QORUnicodeString();
        return S_OK;
    }
    HRESULT GetLocalName(QORUnicodeString& name) override {
        name = isNamed(node) ? unicode(node->name) : QORUnicodeString();
        return S_OK;
    }

    HRESULT GetParentNode(QORIDOMNode_var& parent) override { return give(inTree() ? node->parent : nullptr, parent); }
    HRESULT GetChildNodes(QORIDOMNodeList_var& children) override {
        children = liveList(store, [parent = node] {
            Nodes nodes;
            for (xmlNodePtr child = firstChild(parent); child != nullptr; child = child->next) nodes.push_back(child);
            return nodes;
        });
        return S_OK;
    }
    HRESULT GetFirstChild(QORIDOMNode_var& child) override { return give(firstChild(node), child); }
    HRESULT GetLastChild(QORIDOMNode_var& child) override {
        return give(firstChild(node) != nullptr ? node->last : nullptr, child);
    }
    HRESULT GetPreviousSibling(QORIDOMNode_var& sibling) override {
        return give(inTree() ? node->prev : nullptr, sibling);
    }
    HRESULT GetNextSibling(QORIDOMNode_var& sibling) override { return give(inTree() ? node->next : nullptr, sibling); }
    HRESULT HasChildNodes(bool& has) override {
        has = firstChild(node) != nullptr;
        return S_OK;
    }
    HRESULT GetOwnerDocument(QORIDOMDocument_var& document) override {
        document = node->type == XML_DOCUMENT_NODE ? QORIDOMDocument_var() : QORIDOMDocument_var(store->wrapDocument());
        return S_OK;
    }

    HRESULT InsertBefore(const QORIDOMNode_var& child, const QORIDOMNode_var& reference) override {
        const NodeHandle* added = handleOf(child);
        if (added == nullptr || added->store != store) return E_INVALIDARG;
        xmlNodePtr before = nullptr;
        if (!reference.IsNull()) {
            const NodeHandle* handle = handleOf(reference);
            if (handle == nullptr || handle->store != store || handle->node->parent != node) return E_INVALIDARG;
            before = handle->node;
        }
        if (!mayContain(node, added->node, before) || isAncestorOrSelf(added->node, node)) return E_INVALIDARG;
        // Before itself means where it is.
        if (before != added->node) store->attach(added->node, node, before);
        return S_OK;
    }
    HRESULT AppendChild(const QORIDOMNode_var& child) override { return InsertBefore(child, {}); }
    HRESULT RemoveChild(const QORIDOMNode_var& child) override {
        const NodeHandle* removed = handleOf(child);
        if (removed == nullptr || removed->store != store || removed->node->parent != node ||
            removed->node->type == XML_ATTRIBUTE_NODE || removed->node->type == XML_DTD_NODE) {
            return E_INVALIDARG;
        }
        store->detach(removed->node);
        return S_OK;
    }

    HRESULT GetLineNumber(int& line) override {
        const long found = node->type == XML_DOCUMENT_NODE ? 0 : xmlGetLineNo(node);
        line = found > 0 ? static_cast<int>(found) : 0;
        return S_OK;
    }

protected:
    bool inTree() const noexcept { return node->type != XML_ATTRIBUTE_NODE && node->type != XML_DOCUMENT_NODE; }
    template <class Node>
    HRESULT give(xmlNodePtr found, QORInterface_var<Node>& result) {
        result = store->wrap(found);
        return S_OK;
    }
};

class QOREDOMNode final : public NodeOf<QORIDOMNode> {
    VELKOR_DECLARE_CLASS

public:
    using NodeOf::NodeOf;
};

VELKOR_IMPLEMENT_CLASS(QOREDOMNode, QORIDOMNode, nullptr, "XMLParser")

class QOREDOMAttr final : public NodeOf<QORIDOMAttr> {
    VELKOR_DECLARE_CLASS

public:
    using NodeOf::NodeOf;
    HRESULT GetName(QORUnicodeString& name) override { return GetNodeName(name); }
    HRESULT GetValue(QORUnicodeString& value) override { return GetNodeValue(value); }
    HRESULT SetValue(const QORUnicodeString& value) override { return SetNodeValue(value); }
    HRESULT GetOwnerElement(QORIDOMElement_var& element) override { return give(node->parent, element); }
};

VELKOR_IMPLEMENT_CLASS(QOREDOMAttr, QORIDOMAttr, nullptr, "XMLParser")

class QOREDOMElement final : public NodeOf<QORIDOMElement> {
    VELKOR_DECLARE_CLASS

public:
    using NodeOf::NodeOf;
    HRESULT GetTagName(QORUnicodeString& name) override { return GetNodeName(name); }
    HRESULT GetAttribute(const QORUnicodeString& name, QORUnicodeString& value) override {
        if (const xmlAttr* attribute = findAttribute(node, name.utf8()))
            value = QORUnicodeString(attributeText(attribute));
        else
            value = unicode(declaredNamespace(name.utf8()));
        return S_OK;
    }
    HRESULT HasAttribute(const QORUnicodeString& name, bool& has) override {
        has = findAttribute(node, name.utf8()) != nullptr || declaredNamespace(name.utf8()) != nullptr;
        return S_OK;
    }
    HRESULT GetAttributeNode(const QORUnicodeString& name, QORIDOMAttr_var& attribute) override {
        return give(reinterpret_cast<xmlNodePtr>(findAttribute(node, name.utf8())), attribute);
    }
    HRESULT GetAttributes(QORIDOMNodeList_var& attributes) override {
        attributes = liveList(store, [element = node] {
            Nodes nodes;
            for (xmlAttrPtr attribute = element->properties; attribute != nullptr; attribute = attribute->next) {
                nodes.push_back(reinterpret_cast<xmlNodePtr>(attribute));
            }
            return nodes;
        });
        return S_OK;
    }
    HRESULT SetAttribute(const QORUnicodeString& name, const QORUnicodeString& value) override {
        const std::string attributeName(name.utf8()), text(value.utf8());
        if (!isQualifiedName(attributeName) || !isXmlText(text)) return E_INVALIDARG;
        if (attributeName == "xmlns" || attributeName.starts_with("xmlns:")) return E_INVALIDARG;
        if (xmlAttrPtr attribute = findAttribute(node, attributeName)) {
            setAttributeText(attribute, text);
            return S_OK;
        }
        xmlNsPtr prefixNamespace = nullptr;
        const std::size_t colon = attributeName.find(':');
        if (colon != std::string::npos) {
            prefixNamespace = xmlSearchNs(node->doc, node, xmlText(attributeName.substr(0, colon)));
            if (prefixNamespace == nullptr) return E_INVALIDARG;
        }
        const std::string localName = attributeName.substr(colon == std::string::npos ? 0 : colon + 1);
        made([&] { return whole(xmlNewNsProp(node, prefixNamespace, xmlText(localName), xmlText(text))); }, Discard());
        store->noteChange();
        return S_OK;
    }
    HRESULT RemoveAttribute(const QORUnicodeString& name) override {
        const xmlAttrPtr attribute = findAttribute(node, name.utf8());
        if (attribute == nullptr) return S_OK;
        store->keepDetached(reinterpret_cast<xmlNodePtr>(attribute));
        if (attribute->atype == XML_ATTRIBUTE_ID) xmlRemoveID(attribute->doc, attribute);
        xmlUnlinkNode(reinterpret_cast<xmlNodePtr>(attribute));
        store->noteChange();
        return S_OK;
    }
    HRESULT GetElementsByTagName(const QORUnicodeString& name, QORIDOMNodeList_var& elements) override {
        elements = elementsByTagName(store, node, std::string(name.utf8()));
        return S_OK;
    }

private:
    const xmlChar* declaredNamespace(std::string_view name) const noexcept {
        if (!name.starts_with("xmlns")) return nullptr;
        name.remove_prefix(5);
        if (!name.empty() && name.front() != ':') return nullptr;
        const std::string_view prefix = name.empty() ? name : name.substr(1);
        for (const xmlNs* declared = node->nsDef; declared != nullptr; declared = declared->next) {
            if (view(declared->prefix) == prefix) return declared->href;
        }
        return nullptr;
    }
};

VELKOR_IMPLEMENT_CLASS(QOREDOMElement, QORIDOMElement, nullptr, "XMLParser")

class QOREDOMDocumentType final : public NodeOf<QORIDOMDocumentType> {
    VELKOR_DECLARE_CLASS

public:
    using NodeOf::NodeOf;
    HRESULT GetName(QORUnicodeString& name) override { return GetNodeName(name); }
    HRESULT GetPublicId(QORUnicodeString& publicId) override {
        publicId = unicode(reinterpret_cast<const xmlDtd*>(node)->ExternalID);
        return S_OK;
    }
    HRESULT GetSystemId(QORUnicodeString& systemId) override {
        systemId = unicode(reinterpret_cast<const xmlDtd*>(node)->SystemID);
        return S_OK;
    }
};

VELKOR_IMPLEMENT_CLASS(QOREDOMDocumentType, QORIDOMDocumentType, nullptr, "XMLParser")

/// An element that declares its namespace itself; null for a name that is none.
NodePointer newElement(xmlDocPtr document, const QORUnicodeString& uri, const QORUnicodeString& name) {
    const std::string full(name.utf8()), href(uri.utf8());
    const std::size_t colon = full.find(':');
    if (!isQualifiedName(full) || !isXmlText(href) || (colon != std::string::npos && href.empty())) return nullptr;
    const std::string prefix = colon == std::string::npos ? std::string() : full.substr(0, colon);
    const std::string local = colon == std::string::npos ? full : full.substr(colon + 1);
    if (prefix == "xmlns" || (prefix == "xml" && href != view(XML_XML_NAMESPACE))) return nullptr;
    NodePointer element(made([&] { return xmlNewDocNode(document, nullptr, xmlText(local), nullptr); }, Discard()));
    if (!href.empty()) {
        const auto declared = [&] {
            return prefix == "xml" ? xmlSearchNs(document, element.get(), xmlText(prefix))
                                   : xmlNewNs(element.get(), xmlText(href), prefix.empty() ? nullptr : xmlText(prefix));
        };
        element->ns = made(declared, [](xmlNsPtr) {});
    }
    return element;
}

class QOREDOMDocument final : public NodeOf<QORIDOMDocument> {
    VELKOR_DECLARE_CLASS

public:
    using NodeOf::NodeOf;
    using QORIDOMDocument::QueryInterface;

    HRESULT QueryInterface(const IID& interfaceId, void** interface) override {
        if (interface != nullptr && interfaceId == QORIDOMDocumentTraversal::ClassId())
            return extended(traversalOf(*this, store), interface);
        if (interface != nullptr && interfaceId == QORIXMLXPathFactory::ClassId())
            return extended(xpathFactoryOf(*this, store), interface);
        return QORIDOMDocument::QueryInterface(interfaceId, interface);
    }
    HRESULT QueryInterface(const char* interfaceName, void** interface) override {
        for (const QORMetaClass* offered :
             {QORIDOMDocumentTraversal::MetaObject(), QORIXMLXPathFactory::MetaObject()}) {
            if (interfaceName != nullptr && std::string_view(interfaceName) == offered->GetClassName()) {
                return QueryInterface(offered->GetClassId(), interface);
            }
        }
        return QORIDOMDocument::QueryInterface(interfaceName, interface);
    }

    HRESULT GetDocumentElement(QORIDOMElement_var& element) override {
        return give(xmlDocGetRootElement(store->document()), element);
    }
    HRESULT GetDoctype(QORIDOMDocumentType_var& type) override {
        return give(reinterpret_cast<xmlNodePtr>(xmlGetIntSubset(store->document())), type);
    }
    HRESULT GetImplementation(QORIDOMImplementation_var& implementation) override {
        implementation = domImplementation();
        return S_OK;
    }
    HRESULT GetElementsByTagName(const QORUnicodeString& name, QORIDOMNodeList_var& elements) override {
        elements = elementsByTagName(store, node, std::string(name.utf8()));
        return S_OK;
    }

    HRESULT CreateElement(const QORUnicodeString& name, QORIDOMElement_var& element) override {
        return CreateElementNS({}, name, element);
    }
    HRESULT CreateElementNS(const QORUnicodeString& uri, const QORUnicodeString& qualifiedName,
                            QORIDOMElement_var& element) override {
        return keep(newElement(store->document(), uri, qualifiedName), element);
    }
    HRESULT CreateTextNode(const QORUnicodeString& text, QORIDOMNode_var& made) override {
        return create(XML_TEXT_NODE, text, made,
                      [&](const xmlChar* content) { return xmlNewDocText(store->document(), content); });
    }
    HRESULT CreateCDATASection(const QORUnicodeString& text, QORIDOMNode_var& made) override {
        return create(XML_CDATA_SECTION_NODE, text, made, [&](const xmlChar* content) {
            return xmlNewCDataBlock(store->document(), content, static_cast<int>(text.utf8().size()));
        });
    }
    HRESULT CreateComment(const QORUnicodeString& text, QORIDOMNode_var& made) override {
        return create(XML_COMMENT_NODE, text, made,
                      [&](const xmlChar* content) { return xmlNewDocComment(store->document(), content); });
    }
    HRESULT CreateProcessingInstruction(const QORUnicodeString& target, const QORUnicodeString& text,
                                        QORIDOMNode_var& made) override {
        const std::string name(target.utf8());
        QORUnicodeString lower = target;
        lower.ToLower();
        if (!isXmlText(name) || xmlValidateNCName(xmlText(name), 0) != 0 || lower == "xml") {
            made = {};
            return E_INVALIDARG;
        }
        return create(XML_PI_NODE, text, made,
                      [&](const xmlChar* content) { return xmlNewDocPI(store->document(), xmlText(name), content); });
    }

private:
    static HRESULT extended(IUnknown* extension, void** interface) {
        *interface = extension;
        return extension != nullptr ? S_OK : E_NOINTERFACE;
    }
    template <class Node>
    HRESULT keep(NodePointer made, QORInterface_var<Node>& result) {
        result = {};
        if (made == nullptr) return E_INVALIDARG;
        const xmlNodePtr kept = made.get();
        store->keepDetached(std::move(made));
        return give(kept, result);
    }
    template <class Make>
    HRESULT create(xmlElementType type, const QORUnicodeString& text, QORIDOMNode_var& result, Make make) {
        result = {};
        if (!mayHold(type, text.utf8())) return E_INVALIDARG;
        const std::string content(text.utf8());
        return keep(NodePointer(made([&] { return whole(make(xmlText(content))); }, Discard())), result);
    }
};

VELKOR_IMPLEMENT_CLASS(QOREDOMDocument, QORIDOMDocument, nullptr, "XMLParser")

class QOREDOMImplementation final : public QORIDOMImplementation {
    VELKOR_DECLARE_CLASS

public:
    HRESULT CreateDocument(const QORUnicodeString& uri, const QORUnicodeString& qualifiedName,
                           const QORIDOMDocumentType_var& type, QORIDOMDocument_var& document) override {
        document = {};
        DocumentPointer fresh = newDocument();
        if (const NodeHandle* declared = handleOf(type)) {
            const auto* copied = reinterpret_cast<const xmlDtd*>(declared->node);
            const auto copy = [&] {
                return xmlCreateIntSubset(fresh.get(), copied->name, copied->ExternalID, copied->SystemID);
            };
            made(copy, [](xmlDtdPtr) {});
        }
        NodePointer element = newElement(fresh.get(), uri, qualifiedName);
        if (element == nullptr) return E_INVALIDARG;
        xmlDocSetRootElement(fresh.get(), element.release());
        document = wrapDocument(std::move(fresh), "new document");
        return S_OK;
    }
};

VELKOR_IMPLEMENT_CLASS(QOREDOMImplementation, QORIDOMImplementation, nullptr, "XMLParser")

} // namespace

NodeHandle* handleOf(const QORBaseUnknown_var& node) {
    return node.IsNull() ? nullptr : dynamic_cast<NodeHandle*>(node->GetImpl());
}

QORIDOMNode* makeWrapper(std::shared_ptr<DocumentStore> store, xmlNodePtr node) {
    const auto make = [&]() -> QORIDOMNode* {
        switch (node->type) {
        case XML_ELEMENT_NODE:
            return objectmodeler::newComponent<QOREDOMElement>(std::move(store), node);
        case XML_ATTRIBUTE_NODE:
            return objectmodeler::newComponent<QOREDOMAttr>(std::move(store), node);
        case XML_DOCUMENT_NODE:
            return objectmodeler::newComponent<QOREDOMDocument>(std::move(store), node);
        case XML_DTD_NODE:
            return objectmodeler::newComponent<QOREDOMDocumentType>(std::move(store), node);
        default:
            return objectmodeler::newComponent<QOREDOMNode>(std::move(store), node);
        }
    };
    QORIDOMNode* wrapper = make();
    node->_private = wrapper;
    return wrapper;
}

DocumentPointer newDocument() {
    return DocumentPointer(made([] { return xmlNewDoc(xmlText("1.0")); }, Discard()));
}

QORIDOMDocument_var wrapDocument(DocumentPointer document, std::string name) {
    return std::make_shared<DocumentStore>(std::move(document), std::move(name))->wrapDocument();
}

QORIDOMImplementation_var domImplementation() {
    return QORIDOMImplementation_var::adopt(objectmodeler::newComponent<QOREDOMImplementation>());
}

} // namespace velkor::xml
