#include "NodeLists.h"

#include "velkor/xml/QORIDOMNode.h"
#include "velkor/xml/QORIDOMNodeList.h"

#include <utility>

namespace velkor::xml {

namespace {

class QOREDOMNodeList final : public QORIDOMNodeList {
    VELKOR_DECLARE_CLASS

public:
    QOREDOMNodeList(std::shared_ptr<DocumentStore> store, Nodes nodes, std::function<Nodes()> collect)
        : _store(std::move(store)), _nodes(std::move(nodes)), _collect(std::move(collect)),
          _changes(_store->changes()) {}

    HRESULT GetLength(unsigned int& length) override {
        length = static_cast<unsigned int>(nodes().size());
        return S_OK;
    }
    HRESULT Item(unsigned int index, QORIDOMNode_var& node) override {
        const Nodes& all = nodes();
        node = index < all.size() ? _store->wrap(all[index]) : QORIDOMNode_var();
        return S_OK;
    }

private:
    const Nodes& nodes() {
        if (_collect && (!_isCollected || _changes != _store->changes())) {
            _nodes = _collect();
            _changes = _store->changes();
            _isCollected = true;
        }
        return _nodes;
    }

    std::shared_ptr<DocumentStore> _store;
    Nodes _nodes;
    std::function<Nodes()> _collect;
    unsigned long _changes;
    bool _isCollected = false;
};

VELKOR_IMPLEMENT_CLASS(QOREDOMNodeList, QORIDOMNodeList, nullptr, "XMLParser")

} // namespace

QORIDOMNodeList_var fixedList(std::shared_ptr<DocumentStore> store, Nodes nodes) {
    return QORIDOMNodeList_var::adopt(
        objectmodeler::newComponent<QOREDOMNodeList>(std::move(store), std::move(nodes), nullptr));
}

QORIDOMNodeList_var liveList(std::shared_ptr<DocumentStore> store, std::function<Nodes()> collect) {
    return QORIDOMNodeList_var::adopt(
        objectmodeler::newComponent<QOREDOMNodeList>(std::move(store), Nodes(), std::move(collect)));
}

QORIDOMNodeList_var elementsByTagName(std::shared_ptr<DocumentStore> store, xmlNodePtr root, std::string name) {
    return liveList(std::move(store), [root, name = std::move(name)] {
        Nodes found;
        for (xmlNodePtr node = nextInTree(root, root); node != nullptr; node = nextInTree(node, root)) {
            if (node->type == XML_ELEMENT_NODE && (name == "*" || hasQualifiedName(node, name))) found.push_back(node);
        }
        return found;
    });
}

} // namespace velkor::xml
