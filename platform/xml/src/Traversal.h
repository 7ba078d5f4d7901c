/// Node iterators, and the traversal interface of documents.
#pragma once

#include "DocumentStore.h"
#include "velkor/xml/QORIDOMNodeFilter.h"
#include "velkor/xml/QORIDOMNodeIterator.h"

namespace velkor::xml {

class NodeIterator final : public QORIDOMNodeIterator {
    VELKOR_DECLARE_CLASS

public:
    NodeIterator(std::shared_ptr<DocumentStore> store, xmlNodePtr root, unsigned int whatToShow,
                 QORIDOMNodeFilter_var filter);
    ~NodeIterator() override;

    HRESULT NextNode(QORIDOMNode_var& node) override;
    HRESULT PreviousNode(QORIDOMNode_var& node) override;
    HRESULT GetRoot(QORIDOMNode_var& root) override;

    /// Called before a node goes from the tree.
    void leave(const xmlNode* removed) noexcept;

private:
    /// Whether a node is handed out, and as what.
    HRESULT accept(xmlNodePtr candidate, QORIDOMNode_var& node, bool& isAccepted);

    std::shared_ptr<DocumentStore> _store;
    xmlNodePtr _root;
    unsigned int _whatToShow;
    QORIDOMNodeFilter_var _filter;
    // The iterator stands before or behind this node.
    xmlNodePtr _reference;
    bool _isBefore = true;
};

/// The extension that gives a document its traversal interface, with one reference; null when there is
/// none.
IUnknown* traversalOf(QORBaseUnknown& document, std::shared_ptr<DocumentStore> store);

} // namespace velkor::xml
