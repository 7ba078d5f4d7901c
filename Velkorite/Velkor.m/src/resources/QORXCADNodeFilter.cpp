#include "QORXCADNodeFilter.h"

#include "ReportedResult.h"
#include "velkor/xml/QORIDOMElement.h"

VELKOR_IMPLEMENT_CLASS(QORXCADNodeFilter, QORBaseUnknown, "QORnull", "Velkorite")

QORXCADNodeFilter::QORXCADNodeFilter(const QORUnicodeString& tagName, const QORUnicodeString& name)
    : _tagName(tagName), _name(name) {
    _name.ToUpper();
}

QORXCADNodeFilter::~QORXCADNodeFilter() = default;

HRESULT QORXCADNodeFilter::acceptNode(const QORIDOMNode_var& node, unsigned int& answer) {
    answer = QORDOMNodeFilterType::FILTER_SKIP;
    if (node.IsNull()) return REPORTED(E_UNEXPECTED);
    unsigned short type = 0;
    HRESULT result = node->GetNodeType(type);
    if (FAILED(result)) return REPORTED(result);
    if (type != QORIDOMNode::ELEMENT_NODE) return S_OK;
    const QORIDOMElement_var element = node;
    if (element.IsNull()) return REPORTED(E_UNEXPECTED);

    QORUnicodeString text;
    result = element->GetTagName(text);
    if (FAILED(result)) return REPORTED(result);
    if (text != _tagName) return S_OK;
    if (!_name.IsEmpty()) {
        result = element->GetAttribute("Name", text);
        if (FAILED(result)) return REPORTED(result);
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
