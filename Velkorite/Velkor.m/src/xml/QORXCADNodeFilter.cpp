#include "QORXCADNodeFilter.h"

#include "xml/XmlNodes.h"

using namespace velkor::library;

VELKOR_IMPLEMENT_CLASS(QORXCADNodeFilter, QORBaseUnknown, "QORnull", "Velkorite")

QORXCADNodeFilter::QORXCADNodeFilter(const QORUnicodeString& tagName, const QORUnicodeString& name)
    : _tagName(tagName), _name(name) {
    _name.ToUpper();
}

QORXCADNodeFilter::~QORXCADNodeFilter() = default;

HRESULT QORXCADNodeFilter::acceptNode(const QORIDOMNode_var& node, unsigned int& answer) {
    answer = QORDOMNodeFilterType::FILTER_SKIP;
    if (node.IsNull()) return reported(E_UNEXPECTED);
    unsigned short type = 0;
    RETURN_IF_FAILED(reported(node->GetNodeType(type)));
    if (type != QORIDOMNode::ELEMENT_NODE) return S_OK;
    QORIDOMElement_var element;
    RETURN_IF_FAILED(asElement(node, element));

    QORUnicodeString text;
    RETURN_IF_FAILED(tagName(element, text));
    if (text != _tagName) return S_OK;
    if (!_name.IsEmpty()) {
        RETURN_IF_FAILED(attribute(element, "Name", text));
        text.ToUpper();
        if (text != _name) return S_OK;
    }
    answer = QORDOMNodeFilterType::FILTER_ACCEPT;
    return S_OK;
}

VELKOR_TIE_BEGIN(QORIDOMNodeFilter, QORXCADNodeFilter)
HRESULT acceptNode(const QORIDOMNode_var& node, unsigned int& answer) override {
    return implementation()->acceptNode(node, answer);
}
VELKOR_TIE_END(VELKOR_API, QORIDOMNodeFilter, QORXCADNodeFilter)
