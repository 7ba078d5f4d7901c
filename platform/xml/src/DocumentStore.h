/// A libxml2 document with what the DOM keeps beside it. Every wrapper of a node holds on to it.
#pragma once

#include "velkor/text/QORUnicodeString.h"
#include "velkor/xml/DomTypes.h"

#include <libxml/tree.h>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace velkor::xml {

class NodeIterator;

struct Discard {
    void operator()(xmlDocPtr document) const noexcept { xmlFreeDoc(document); }
    void operator()(xmlNodePtr node) const noexcept { xmlFreeNode(node); }
    void operator()(xmlAttrPtr attribute) const noexcept { xmlRemoveProp(attribute); }
};
using DocumentPointer = std::unique_ptr<xmlDoc, Discard>;
using NodePointer = std::unique_ptr<xmlNode, Discard>;

/// Elements nest no deeper, read or written.
inline constexpr int maximumDepth = 256;

class DocumentStore : public std::enable_shared_from_this<DocumentStore> {
public:
    /// Takes over the document. `name` is what messages call it.
    DocumentStore(DocumentPointer document, std::string name)
        : _document(std::move(document)), _name(std::move(name)) {}
    ~DocumentStore();
    DocumentStore(const DocumentStore&) = delete;
    DocumentStore& operator=(const DocumentStore&) = delete;

    xmlDocPtr document() const noexcept { return _document.get(); }
    const std::string& name() const noexcept { return _name; }

    /// The one wrapper of a node, made when there is none; empty for null.
    QORIDOMNode_var wrap(xmlNodePtr node);
    QORIDOMNode_var wrap(xmlAttrPtr attribute) { return wrap(reinterpret_cast<xmlNodePtr>(attribute)); }
    QORIDOMNode_var wrapDocument() { return wrap(reinterpret_cast<xmlNodePtr>(document())); }

    /// Number of changes of the tree so far: lists that follow the document compare it.
    unsigned long changes() const noexcept { return _changes; }
    void noteChange() noexcept { ++_changes; }

    /// Nodes outside the tree are freed with the document.
    void keepDetached(xmlNodePtr node) { _detached.insert(node); }
    void keepDetached(NodePointer node) {
        _detached.insert(node.get());
        static_cast<void>(node.release());
    }
    /// Takes a node out of the tree, iterators past it, and makes its namespaces its own. Without memory it
    /// stays in its place.
    void detach(xmlNodePtr node);
    /// Links a detached or attached node as a child before `reference`, last for null.
    void attach(xmlNodePtr node, xmlNodePtr parent, xmlNodePtr reference);

    void addIterator(NodeIterator& iterator) { _iterators.push_back(&iterator); }
    void removeIterator(NodeIterator& iterator) { std::erase(_iterators, &iterator); }

private:
    DocumentPointer _document;
    std::string _name;
    unsigned long _changes = 0;
    std::unordered_set<xmlNodePtr> _detached;
    std::vector<NodeIterator*> _iterators;
};

inline std::string_view view(const xmlChar* text) noexcept {
    return text != nullptr ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}
inline const xmlChar* xmlText(const std::string& text) noexcept {
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

/// The name of an element or attribute with its prefix.
std::string qualifiedName(const xmlNode* node);
bool hasQualifiedName(const xmlNode* node, std::string_view name) noexcept;
/// Text of an attribute.
std::string attributeText(const xmlAttr* attribute);
/// The attribute of a qualified name; null when the element has none.
xmlAttrPtr findAttribute(const xmlNode* element, std::string_view name) noexcept;

/// First child as the DOM sees it: declarations inside a document type or entity are none.
xmlNodePtr firstChild(const xmlNode* node) noexcept;
/// The next node of a subtree in the order of the document; null behind its last.
xmlNodePtr nextInTree(xmlNodePtr node, const xmlNode* root) noexcept;
/// The node before in that order; null at the root.
xmlNodePtr previousInTree(xmlNodePtr node, const xmlNode* root) noexcept;
/// The last node of a subtree, the root itself when it has no children.
xmlNodePtr lastInTree(xmlNodePtr root) noexcept;

/// True when all of a text may stand in an XML document.
bool isXmlText(std::string_view utf8) noexcept;
/// True for a name with at most one prefix.
bool isQualifiedName(const std::string& name) noexcept;

} // namespace velkor::xml
