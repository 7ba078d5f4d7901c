#include "xml/XmlNodes.h"

#include "QORIFCDXXMLServices.h"
#include "ResourceNames.h"
#include "velkor/text/Wording.h"
#include "velkor/xml/QORIDOMAttr.h"
#include "velkor/xml/QORIDOMDocumentTraversal.h"

namespace velkor::library {

NodeRange::NodeRange(HRESULT result, const QORIDOMNodeList_var& list) : _result(given(result, list)), _list(list) {
    if (SUCCEEDED(_result)) _result = _list->GetLength(_length);
    if (FAILED(_result)) _length = 0;
}

ListedNode NodeRange::operator[](unsigned int index) const {
    ListedNode listed{S_OK, {}};
    listed.result = _list->Item(index, listed.node);
    listed.result = given(listed.result, listed.node);
    return listed;
}

NodeRange NodeRange::behindFirst() const {
    NodeRange rest = *this;
    if (_length > 0) rest._first = 1;
    return rest;
}

void ElementRange::Iterator::settle() {
    for (; !(_position == _end); ++_position) {
        const ListedNode listed = *_position;
        _element = SUCCEEDED(listed.result) ? QORIDOMElement_var(listed.node) : QORIDOMElement_var();
        if (!_element.IsNull()) return;
    }
}

NodeRange childrenOf(const QORIDOMNode_var& parent, SourcePlace place) {
    QORIDOMNodeList_var list;
    const HRESULT result = parent->GetChildNodes(list);
    NodeRange children(result, list);
    if (FAILED(children.result())) __OmyAssertionFailed(place.unit, place.line);
    return children;
}

NodeRange childrenBehindFirst(const QORIDOMNode_var& parent, SourcePlace place) {
    static_assert(firstExaminedChild == 1);
    return childrenOf(parent, place).behindFirst();
}

ElementRange childElements(const QORIDOMNode_var& parent) {
    QORIDOMNodeList_var list;
    const HRESULT result = parent.IsNull() ? E_UNEXPECTED : parent->GetChildNodes(list);
    return ElementRange({result, list});
}

NodeRange select(const QORIDOMDocument_var& document, const char* xpath) {
    QORIDOMNodeList_var nodes;
    const HRESULT result = QORIFCDXXMLServices::GetNodeList(document, xpath, nodes);
    return {result, nodes};
}

NodeRange select(const QORIDOMDocument_var& document, std::initializer_list<const char*> path) {
    return select(document, text::joined(path, "/").c_str());
}

HRESULT elementIterator(const QORIDOMDocument_var& document, const QORIDOMElement_var& root,
                        const QORIDOMNodeFilter_var& filter, QORIDOMNodeIterator_var& iterator, SourcePlace place) {
    const QORIDOMDocumentTraversal_var traversal = document;
    if (traversal.IsNull()) return reported(E_UNEXPECTED, place);
    constexpr unsigned int shown = QORDOMNodeFilterType::SHOW_ELEMENT | QORDOMNodeFilterType::SHOW_ATTRIBUTE;
    return reported(given(traversal->CreateNodeIterator(root, shown, filter, true, iterator), iterator), place);
}

HRESULT nodeName(const ListedNode& listed, QORUnicodeString& name, SourcePlace place) {
    return reported(FAILED(listed.result) ? listed.result : listed.node->GetNodeName(name), place);
}

HRESULT nodeValue(const QORIDOMNode_var& node, QORUnicodeString& value) {
    RETURN_IF_FAILED(node->GetNodeValue(value));
    if (!value.IsEmpty()) return S_OK;
    QORIDOMNode_var child;
    RETURN_IF_FAILED(given(node->GetFirstChild(child), child));
    return child->GetNodeValue(value);
}

HRESULT asElement(const QORIDOMNode_var& node, QORIDOMElement_var& element, SourcePlace place) {
    element = node;
    return reported(given(S_OK, element), place);
}

HRESULT tagName(const QORIDOMElement_var& element, QORUnicodeString& name, SourcePlace place) {
    return reported(element->GetTagName(name), place);
}

HRESULT attribute(const QORIDOMElement_var& element, const char* name, QORUnicodeString& value, SourcePlace place) {
    return reported(element->GetAttribute(name, value), place);
}

HRESULT attribute(const QORIDOMElement_var& element, const char* name, std::optional<QORUnicodeString>& value,
                  SourcePlace place) {
    value.reset();
    QORIDOMAttr_var node;
    RETURN_IF_FAILED(reported(element->GetAttributeNode(name, node), place));
    if (node.IsNull()) return S_OK;
    return reported(node->GetValue(value.emplace()), place);
}

QORUnicodeString attribute(const QORIDOMElement_var& element, const char* name) {
    QORUnicodeString value;
    if (FAILED(element->GetAttribute(name, value))) return {};
    return value;
}

} // namespace velkor::library
