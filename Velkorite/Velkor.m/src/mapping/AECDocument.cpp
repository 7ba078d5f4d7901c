#include "AECDocument.h"

#include "foundation/Results.h"
#include "QORXCADNodeFilter.h"
#include "resources/ResourceDocument.h"
#include "xml/XmlNodes.h"

#include <utility>

namespace velkor::library {

namespace {

namespace names = velkor::names::aec;

/// An iterator that shows the elements of a tag, every name, at or below an element.
HRESULT CreateElementIterator(const QORIDOMElement_var& root, const char* tag, QORIDOMNodeIterator_var& iterator) {
    const auto filter = QORBaseUnknown_var::adopt(objectmodeler::newComponent<QORXCADNodeFilter>(tag, ""));
    QORIDOMDocument_var document;
    RETURN_IF_FAILED(reported(root->GetOwnerDocument(document)));
    return elementIterator(document, root, filter, iterator);
}

} // namespace

void AECDocument::clear() {
    _byTag.clear();
    _document = {};
}

HRESULT AECDocument::load() {
    clear();
    return reported(readResource(aecMappingResource, _document));
}

HRESULT AECDocument::entry(const char* tag, const QORUnicodeString& name, Entry*& found) {
    found = nullptr;
    Index* index = nullptr;
    RETURN_IF_FAILED(this->index(tag, index));
    if (name.IsEmpty()) {
        if (!index->all.elements.empty()) found = &index->all;
        return S_OK;
    }
    QORUnicodeString upper = name;
    upper.ToUpper();
    if (const auto named = index->byName.find(upper); named != index->byName.end()) found = &named->second;
    return S_OK;
}

HRESULT AECDocument::entries(const char* tag, ByName*& found) {
    Index* index = nullptr;
    RETURN_IF_FAILED(this->index(tag, index));
    found = &index->byName;
    return S_OK;
}

HRESULT AECDocument::index(const char* tag, Index*& result) {
    if (const auto filled = _byTag.find(std::string_view(tag)); filled != _byTag.end()) {
        result = &filled->second;
        return S_OK;
    }
    QORIDOMElement_var root;
    RETURN_IF_FAILED(reported(_document->GetDocumentElement(root)));
    QORIDOMNodeIterator_var iterator;
    RETURN_IF_FAILED(CreateElementIterator(root, tag, iterator));
    Index filled;
    for (QORIDOMNode_var node;;) {
        RETURN_IF_FAILED(reported(iterator->NextNode(node)));
        if (node.IsNull()) break;
        const QORIDOMElement_var element = node;
        QORUnicodeString name;
        RETURN_IF_FAILED(attribute(element, names::name, name));
        name.ToUpper();
        filled.all.elements.push_back(element);
        filled.byName[name].elements.push_back(element);
    }
    result = &_byTag.emplace(tag, std::move(filled)).first->second;
    return S_OK;
}

HRESULT firstElement(const QORIDOMElement_var& root, const char* tag, QORIDOMElement_var& found) {
    QORIDOMNodeIterator_var iterator;
    RETURN_IF_FAILED(CreateElementIterator(root, tag, iterator));
    QORIDOMNode_var node;
    RETURN_IF_FAILED(reported(iterator->NextNode(node)));
    found = node;
    return S_OK;
}

} // namespace velkor::library
