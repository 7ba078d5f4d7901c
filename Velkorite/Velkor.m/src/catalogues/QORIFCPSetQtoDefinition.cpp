#include "QORIFCPSetQtoDefinition.h"

#include "CatalogueDocument.h"
#include "ResourceNames.h"
#include "velkor/sdai/DXSdaiAppInstance.h"
#include "xml/XmlNodes.h"

#include <algorithm>

namespace {

using namespace velkor::library;
namespace names = velkor::names::definition;

/// The text of an element in upper case; empty for one that has none.
QORUnicodeString upperText(const QORIDOMNode_var& element) {
    QORUnicodeString text;
    if (FAILED(nodeValue(element, text))) return {};
    text.ToUpper();
    return text;
}

} // namespace

QORIFCPSetQtoDefinition::~QORIFCPSetQtoDefinition() = default;

HRESULT QORIFCPSetQtoDefinition::read(const QORUnicodeString& path) {
    QORIDOMDocument_var document;
    const HRESULT result = readCatalogue(path, document);
    if (FAILED(result) || document.IsNull()) return result;

    for (const QORIDOMElement_var& element : ElementRange(elementsTagged(names::className, document))) {
        const QORUnicodeString text = upperText(element);
        if (!text.IsEmpty()) _applicableClasses.Append(QORUnicodeString(names::classNamed(text.utf8())));
    }
    // The first name is the set's own.
    for (const QORIDOMElement_var& element : ElementRange(elementsTagged(names::name, document).behindFirst())) {
        const QORUnicodeString name = upperText(element);
        if (!name.IsEmpty()) _propertyNames.try_emplace(name, name);
    }
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
