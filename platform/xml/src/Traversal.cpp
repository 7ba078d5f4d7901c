#include "Traversal.h"

#include "Nodes.h"
#include "velkor/xml/QORIDOMDocumentTraversal.h"

#include <utility>

namespace velkor::xml {

namespace {

class QOREDOMDocumentTraversal final : public QORIDOMDocumentTraversal {
    VELKOR_DECLARE_CLASS

public:
    explicit QOREDOMDocumentTraversal(std::shared_ptr<DocumentStore> store) : _store(std::move(store)) {}

    HRESULT CreateNodeIterator(const QORIDOMNode_var& root, unsigned int whatToShow,
                               const QORIDOMNodeFilter_var& filter, bool, QORIDOMNodeIterator_var& iterator) override {
        iterator = {};
        const NodeHandle* handle = handleOf(root);
        if (handle == nullptr || handle->store != _store) return E_INVALIDARG;
        iterator = QORIDOMNodeIterator_var::adopt(
            objectmodeler::newComponent<NodeIterator>(_store, handle->node, whatToShow, filter));
        return S_OK;
    }

private:
    std::shared_ptr<DocumentStore> _store;
};

VELKOR_IMPLEMENT_CLASS(QOREDOMDocumentTraversal, QORIDOMDocumentTraversal, nullptr, "XMLParser")

bool isInside(const xmlNode* node, const xmlNode* subtree) noexcept {
    while (node != nullptr && node != subtree) node = node->parent;
    return node != nullptr;
}

} // namespace

VELKOR_IMPLEMENT_CLASS(NodeIterator, QORIDOMNodeIterator, nullptr, "XMLParser")

NodeIterator::NodeIterator(std::shared_ptr<DocumentStore> store, xmlNodePtr root, unsigned int whatToShow,
                           QORIDOMNodeFilter_var filter)
    : _store(std::move(store)), _root(root), _whatToShow(whatToShow), _filter(std::move(filter)), _reference(root) {
    _store->addIterator(*this);
}

NodeIterator::~NodeIterator() {
    _store->removeIterator(*this);
}

HRESULT NodeIterator::NextNode(QORIDOMNode_var& node) {
    node = {};
    xmlNodePtr candidate = _isBefore ? _reference : nextInTree(_reference, _root);
    for (; candidate != nullptr; candidate = nextInTree(candidate, _root)) {
        bool isAccepted = false;
        const HRESULT result = accept(candidate, node, isAccepted);
        if (FAILED(result)) return result;
        if (isAccepted) {
            _reference = candidate;
            _isBefore = false;
            return S_OK;
        }
    }
    return S_OK;
}

HRESULT NodeIterator::PreviousNode(QORIDOMNode_var& node) {
    node = {};
    xmlNodePtr candidate = _isBefore ? previousInTree(_reference, _root) : _reference;
    for (; candidate != nullptr; candidate = previousInTree(candidate, _root)) {
        bool isAccepted = false;
        const HRESULT result = accept(candidate, node, isAccepted);
        if (FAILED(result)) return result;
        if (isAccepted) {
            _reference = candidate;
            _isBefore = true;
            return S_OK;
        }
    }
    return S_OK;
}

HRESULT NodeIterator::GetRoot(QORIDOMNode_var& root) {
    root = _store->wrap(_root);
    return S_OK;
}

void NodeIterator::leave(const xmlNode* removed) noexcept {
    // With the root goes the whole walk, which stays as it is.
    if (isInside(_root, removed) || !isInside(_reference, removed)) return;
    if (_isBefore) {
        // What comes next is what comes behind the removed nodes, if anything.
        xmlNodePtr next = const_cast<xmlNodePtr>(removed);
        while (next != _root && next->next == nullptr) next = next->parent;
        if (next != _root) {
            _reference = next->next;
            return;
        }
        _isBefore = false;
    }
    _reference = previousInTree(const_cast<xmlNodePtr>(removed), _root);
}

HRESULT NodeIterator::accept(xmlNodePtr candidate, QORIDOMNode_var& node, bool& isAccepted) {
    const unsigned int type = candidate->type == XML_DTD_NODE ? XML_DOCUMENT_TYPE_NODE : candidate->type;
    if ((_whatToShow & (1U << (type - 1))) == 0) return S_OK;
    QORIDOMNode_var shown = _store->wrap(candidate);
    if (!_filter.IsNull()) {
        unsigned int answer = QORDOMNodeFilterType::FILTER_SKIP;
        const HRESULT result = _filter->acceptNode(shown, answer);
        if (FAILED(result)) return result;
        if (answer != QORDOMNodeFilterType::FILTER_ACCEPT) return S_OK;
    }
    node = std::move(shown);
    isAccepted = true;
    return S_OK;
}

IUnknown* traversalOf(QORBaseUnknown& document, std::shared_ptr<DocumentStore> store) {
    const auto traversal =
        QORBaseUnknown_var::adopt(objectmodeler::newComponent<QOREDOMDocumentTraversal>(std::move(store)));
    return ToCreateBOA(&document, traversal.get(), QOREDOMDocumentTraversal::MetaObject(),
                       QORIDOMDocumentTraversal::ClassId(), objectmodeler::createNothing);
}

} // namespace velkor::xml
