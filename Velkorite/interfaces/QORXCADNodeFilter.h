/// Picks elements out of a traversal by tag name and "Name" attribute.
///
///     const auto filter = QORBaseUnknown_var::adopt(new QORXCADNodeFilter("IFC", "IfcWall"));
///     traversal->CreateNodeIterator(root, show, QORIDOMNodeFilter_var(filter), true, iterator);
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/text/QORUnicodeString.h"
#include "velkor/xml/QORIDOMNodeFilter.h"

class VELKOR_API QORXCADNodeFilter : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// Elements with this tag name, letter case included, and this "Name", letter case ignored. An
    /// empty `name` stands for every one.
    QORXCADNodeFilter(const QORUnicodeString& tagName, const QORUnicodeString& name);
    ~QORXCADNodeFilter() override;

    /// 0 for such an element, 2 for every other node. E_UNEXPECTED for an empty node.
    HRESULT acceptNode(const QORIDOMNode_var& node, unsigned int& answer);

private:
    QORUnicodeString _tagName;
    // In upper case.
    QORUnicodeString _name;
};

/// Makes the filter interface of a QORXCADNodeFilter.
extern "C" {
VELKOR_API IUnknown* CreateTIEQORIDOMNodeFilterQORXCADNodeFilter(QORBaseUnknown* object, QORBaseUnknown* second);
}
