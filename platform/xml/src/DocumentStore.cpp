#include "DocumentStore.h"

#include "Messages.h"
#include "Nodes.h"
#include "Traversal.h"
#include "velkor/objectmodeler/OutOfMemory.h"
#include "velkor/text/Unicode.h"

#include <libxml/chvalid.h>
#include <libxml/tree.h>

namespace velkor::xml {

DocumentStore::~DocumentStore() {
    // While the document is there: the nodes' names may stand in its dictionary.
    for (const xmlNodePtr node : _detached) xmlFreeNode(node);
}

QORIDOMNode_var DocumentStore::wrap(xmlNodePtr node) {
    if (node == nullptr) return {};
    if (node->_private == nullptr) return QORIDOMNode_var::adopt(makeWrapper(shared_from_this(), node));
    return {static_cast<QORIDOMNode*>(node->_private)};
}

void DocumentStore::detach(xmlNodePtr node) {
    _detached.insert(node);
    for (NodeIterator* iterator : _iterators) iterator->leave(node);
    const xmlNodePtr parent = node->parent, next = node->next;
    xmlUnlinkNode(node);
    if (node->type == XML_ELEMENT_NODE) {
        MessageCapture capture;
        if (xmlReconciliateNs(document(), node) < 0 || capture.hasFailed()) {
            attach(node, parent, next);
            objectmodeler::outOfMemory();
        }
    }
    noteChange();
}

void DocumentStore::attach(xmlNodePtr node, xmlNodePtr parent, xmlNodePtr reference) {
    if (node->parent != nullptr) detach(node);
    _detached.erase(node);
    // Linked by hand: libxml2's own functions join neighbouring texts and free one of them.
    node->parent = parent;
    node->next = reference;
    node->prev = reference != nullptr ? reference->prev : parent->last;
    (node->prev != nullptr ? node->prev->next : parent->children) = node;
    (reference != nullptr ? reference->prev : parent->last) = node;
    noteChange();
}

std::string qualifiedName(const xmlNode* node) {
    std::string name;
    if (node->ns != nullptr && node->ns->prefix != nullptr) name.append(view(node->ns->prefix)) += ':';
    return name.append(view(node->name));
}

bool hasQualifiedName(const xmlNode* node, std::string_view name) noexcept {
    const std::string_view prefix = node->ns != nullptr ? view(node->ns->prefix) : std::string_view();
    if (prefix.empty()) return view(node->name) == name;
    return name.size() > prefix.size() && name.starts_with(prefix) && name[prefix.size()] == ':' &&
           name.substr(prefix.size() + 1) == view(node->name);
}

std::string attributeText(const xmlAttr* attribute) {
    const xmlNode* text = attribute->children;
    if (text == nullptr) return {};
    // One text nearly always; a reference to an unknown entity splits it.
    if (text->next == nullptr && text->type == XML_TEXT_NODE) return std::string(view(text->content));
    std::string joined;
    for (; text != nullptr; text = text->next) joined += view(text->content);
    return joined;
}

xmlAttrPtr findAttribute(const xmlNode* element, std::string_view name) noexcept {
    for (xmlAttrPtr attribute = element->properties; attribute != nullptr; attribute = attribute->next) {
        if (hasQualifiedName(reinterpret_cast<const xmlNode*>(attribute), name)) return attribute;
    }
    return nullptr;
}

xmlNodePtr firstChild(const xmlNode* node) noexcept {
    return node->type == XML_ELEMENT_NODE || node->type == XML_DOCUMENT_NODE ? node->children : nullptr;
}

xmlNodePtr nextInTree(xmlNodePtr node, const xmlNode* root) noexcept {
    if (const xmlNodePtr child = firstChild(node)) return child;
    while (node != root && node->next == nullptr) {
        node = node->parent;
        // A filter may have taken the node away.
        if (node == nullptr) return nullptr;
    }
    return node == root ? nullptr : node->next;
}

xmlNodePtr previousInTree(xmlNodePtr node, const xmlNode* root) noexcept {
    if (node == root) return nullptr;
    return node->prev != nullptr ? lastInTree(node->prev) : node->parent;
}

xmlNodePtr lastInTree(xmlNodePtr root) noexcept {
    while (firstChild(root) != nullptr) root = root->last;
    return root;
}

bool isXmlText(std::string_view utf8) noexcept {
    while (!utf8.empty()) {
        std::int32_t code = 0;
        utf8.remove_prefix(text::decode(utf8, code));
        if (code < 0 || xmlIsCharQ(static_cast<unsigned>(code)) == 0) return false;
    }
    return true;
}

bool isQualifiedName(const std::string& name) noexcept {
    return isXmlText(name) && xmlValidateQName(xmlText(name), 0) == 0;
}

} // namespace velkor::xml
