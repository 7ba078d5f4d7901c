/// The wrappers of nodes.
#pragma once

#include "DocumentStore.h"
#include "velkor/xml/QORIDOMNode.h"

namespace velkor::xml {

/// What every wrapper of a node is beside its interface. A node keeps a pointer to its wrapper, so
/// that there is one of them.
class NodeHandle {
public:
    NodeHandle(std::shared_ptr<DocumentStore> owner, xmlNodePtr wrapped) noexcept
        : store(std::move(owner)), node(wrapped) {}
    virtual ~NodeHandle() { node->_private = nullptr; }
    NodeHandle(const NodeHandle&) = delete;
    NodeHandle& operator=(const NodeHandle&) = delete;

    const std::shared_ptr<DocumentStore> store;
    const xmlNodePtr node;
};

/// The handle behind a node; null for an empty pointer and for other implementations' nodes.
NodeHandle* handleOf(const QORBaseUnknown_var& node);

/// A new wrapper with one reference, noted in the node.
QORIDOMNode* makeWrapper(std::shared_ptr<DocumentStore> store, xmlNodePtr node);

/// A document without anything in it.
DocumentPointer newDocument();
/// The wrapper of a new document.
QORIDOMDocument_var wrapDocument(DocumentPointer document, std::string name);

/// The maker of documents.
QORIDOMImplementation_var domImplementation();

} // namespace velkor::xml
