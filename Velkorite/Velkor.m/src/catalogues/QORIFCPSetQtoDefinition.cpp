#include "QORIFCPSetQtoDefinition.h"

#include "CatalogueDocument.h"
#include "velkor/sdai/DXSdaiAppInstance.h"

#include <algorithm>

namespace {

/// The node's value; an element has none, and that of its first child stands for it.
QORUnicodeString valueOf(const QORIDOMNode_var& node) {
    QORUnicodeString value;
    node->GetNodeValue(value);
    if (!value.IsEmpty()) return value;
    QORIDOMNode_var child;
    node->GetFirstChild(child);
    if (!child.IsNull()) child->GetNodeValue(value);
    return value;
}

QORIDOMNodeList_var elements(const QORIDOMDocument_var& document, const char* name) {
    QORIDOMNodeList_var nodes;
    document->GetElementsByTagName(name, nodes);
    return nodes;
}

} // namespace

QORIFCPSetQtoDefinition::~QORIFCPSetQtoDefinition() = default;

HRESULT QORIFCPSetQtoDefinition::read(const QORUnicodeString& path) {
    QORIDOMDocument_var document;
    const HRESULT result = velkor::library::readCatalogue(path, document);
    if (FAILED(result) || document.IsNull()) return result;

    velkor::library::forEachNode(elements(document, "ClassName"), [&](const QORIDOMNode_var& element) {
        QORUnicodeString name = valueOf(element);
        const int suffix = name.SearchSubString("/");
        if (suffix > 0) name = name.SubString(0, suffix);
        name.ToUpper();
        if (!name.IsEmpty()) _applicableClasses.Append(name);
    });
    // The first name is the set's own.
    const auto addProperty = [&](const QORIDOMNode_var& element) {
        QORUnicodeString name = valueOf(element);
        name.ToUpper();
        if (!name.IsEmpty()) _propertyNames.try_emplace(name, name);
    };
    velkor::library::forEachNode(elements(document, "Name"), addProperty, 1);
    return result;
}

bool QORIFCPSetQtoDefinition::appliesTo(QORUnicodeString className, const DXSdaiAppInstance* instance) const {
    className.ToUpper();
    if (_applicableClasses.Locate(className) > 0) return true;
    return instance != nullptr && std::any_of(_applicableClasses.begin(), _applicableClasses.end(),
                                              [&](const auto& name) { return instance->IsKindOf(name.utf8()); });
}

bool QORIFCPSetQtoDefinition::hasProperty(QORUnicodeString propertyName) const {
    propertyName.ToUpper();
    return _propertyNames.contains(propertyName);
}
