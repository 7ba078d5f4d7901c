#include "AECDocument.h"

#include "FirstResource.h"
#include "QORIFCDXXMLServices.h"
#include "QORXCADNodeFilter.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/xml/QORIDOMDocumentTraversal.h"
#include "velkor/xml/QORIDOMNodeIterator.h"

namespace velkor::library {

namespace {

/// An iterator that shows the elements of a tag, every name, at or below an element.
HRESULT CreateElementIterator(const QORIDOMElement_var& root, const char* tag, QORIDOMNodeIterator_var& iterator) {
    QORIDOMDocument_var document;
    HRESULT result = root->GetOwnerDocument(document);
    if (FAILED(result)) return result;
    const QORIDOMDocumentTraversal_var traversal = document;
    if (traversal.IsNull()) return E_UNEXPECTED;
    const auto filter = QORBaseUnknown_var::adopt(objectmodeler::newComponent<QORXCADNodeFilter>(tag, ""));
    result =
        traversal->CreateNodeIterator(root, QORDOMNodeFilterType::SHOW_ELEMENT | QORDOMNodeFilterType::SHOW_ATTRIBUTE,
                                      QORIDOMNodeFilter_var(filter), true, iterator);
    if (FAILED(result)) return result;
    return iterator.IsNull() ? E_UNEXPECTED : S_OK;
}

} // namespace

void AECDocument::clear() {
    _byTag.clear();
    _document = {};
}

HRESULT AECDocument::load() {
    clear();
    QORUnicodeString path;
    HRESULT result = findFirstResource(aecMappingResource, path);
    if (FAILED(result)) {
        VELKOR_ASSERTION_FAILED();
        return result;
    }
    result = QORIFCDXXMLServices::GetDOMDocument(path, _document);
    if (FAILED(result)) VELKOR_ASSERTION_FAILED();
    return result;
}

HRESULT AECDocument::entry(const char* tag, const QORUnicodeString& name, Entry*& found) {
    found = nullptr;
    Index* index = nullptr;
    const HRESULT result = this->index(tag, index);
    if (FAILED(result)) return result;
    if (name.IsEmpty()) {
        if (!index->all.elements.empty()) found = &index->all;
        return S_OK;
    }
    QORUnicodeString upper = name;
    upper.ToUpper();
    if (const auto named = index->byName.find(upper); named != index->byName.end()) found = &named->second;
    return S_OK;
}

HRESULT AECDocument::index(const char* tag, Index*& result) {
    if (const auto filled = _byTag.find(std::string_view(tag)); filled != _byTag.end()) {
        result = &filled->second;
        return S_OK;
    }
    Index filled;
    const auto fill = [&] {
        QORIDOMElement_var root;
        QORIDOMNodeIterator_var iterator;
        HRESULT step = _document->GetDocumentElement(root);
        if (FAILED(step)) return step;
        step = CreateElementIterator(root, tag, iterator);
        QORIDOMNode_var node;
        while (SUCCEEDED(step) && SUCCEEDED(step = iterator->NextNode(node)) && !node.IsNull()) {
            const QORIDOMElement_var element = node;
            QORUnicodeString name;
            step = element->GetAttribute("Name", name);
            name.ToUpper();
            filled.all.elements.push_back(element);
            filled.byName[name].elements.push_back(element);
        }
        return step;
    };
    const HRESULT outcome = fill();
    if (FAILED(outcome))
        VELKOR_ASSERTION_FAILED();
    else
        result = &_byTag.emplace(tag, std::move(filled)).first->second;
    return outcome;
}

HRESULT firstElement(const QORIDOMElement_var& root, const char* tag, QORIDOMElement_var& found) {
    QORIDOMNodeIterator_var iterator;
    HRESULT result = CreateElementIterator(root, tag, iterator);
    QORIDOMNode_var node;
    if (SUCCEEDED(result)) result = iterator->NextNode(node);
    if (FAILED(result)) {
        VELKOR_ASSERTION_FAILED();
        return result;
    }
    found = node;
    return S_OK;
}

} // namespace velkor::library
