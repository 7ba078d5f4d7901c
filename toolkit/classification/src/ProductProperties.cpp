#include "ProductProperties.h"

#include "velkor/model/RelatedInstances.h"
#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor {

namespace {

std::string inWords(const sdai::Primitive& value) {
    const sdai::Type* type = value.declaredType();
    const sdai::TypeKind kind = type == nullptr ? sdai::TypeKind::Integer : type->resolved().kind();
    if (kind == sdai::TypeKind::String) return value.asString();
    if (kind != sdai::TypeKind::Boolean && kind != sdai::TypeKind::Logical) return std::string(value.encoded());
    const auto truth = value.asLogical();
    if (!truth) return {};
    return *truth == sdai::Logical::True ? "TRUE" : *truth == sdai::Logical::False ? "FALSE" : "UNKNOWN";
}

std::string predefinedType(const DXSdaiAppInstance* object) {
    if (object == nullptr) return {};
    return std::string(object->GetAttr("PREDEFINEDTYPE").asEnumeration().text());
}

} // namespace

ProductProperties::ProductProperties(const sdai::Model& model, std::set<std::string> names) : _names(std::move(names)) {
    addTypes(model);
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYPROPERTIES"))
        addRelationship(*model.instanceAt(number));
}

void ProductProperties::addTypes(const sdai::Model& model) {
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYTYPE")) {
        const DXSdaiAppInstance& relationship = *model.instanceAt(number);
        const DXSdaiAppInstance* type = relationship.GetAttr("RELATINGTYPE").asInstance();
        if (type == nullptr) continue;
        eachInstance(relationship.GetAttr("RELATEDOBJECTS").asAggregate(),
                     [&](const DXSdaiAppInstance* object) { _types.try_emplace(object, type); });
        const auto [values, isNew] = _valuesOfType.try_emplace(type);
        if (!isNew) continue;
        eachInstance(type->GetAttr("HASPROPERTYSETS").asAggregate(),
                     [&, &known = values->second](const DXSdaiAppInstance* set) { append(known, valuesOf(set)); });
    }
}

void ProductProperties::addRelationship(const DXSdaiAppInstance& relationship) {
    Attributes values;
    eachSet(relationship, [&](const DXSdaiAppInstance* set) { append(values, valuesOf(set)); });
    if (values.empty()) return;
    const auto position = static_cast<std::uint32_t>(_valuesOfRelationship.size());
    _valuesOfRelationship.push_back(std::move(values));
    eachInstance(relationship.GetAttr("RELATEDOBJECTS").asAggregate(),
                 [&](const DXSdaiAppInstance* object) { _relationships[object].push_back(position); });
}

const knowledge::Attributes& ProductProperties::valuesOf(const DXSdaiAppInstance* set) {
    const auto [place, isNew] = _valuesOfSet.try_emplace(set);
    Attributes& values = place->second;
    if (!isNew) return values;
    eachInstance(set->GetAttr("HASPROPERTIES").asAggregate(), [&](const DXSdaiAppInstance* property) {
        if (!property->IsKindOf("IFCPROPERTYSINGLEVALUE")) return;
        const sdai::Primitive name = property->GetAttr("NAME");
        const sdai::Primitive value = property->GetAttr("NOMINALVALUE");
        if (!value.isSet() || !isWanted(name)) return;
        append(values, {{name.asString(), inWords(value.asSelect().underlyingValue())}});
    });
    return values;
}

bool ProductProperties::isWanted(const sdai::Primitive& name) {
    const auto [wanted, isNew] = _isWanted.try_emplace(name.encoded());
    if (isNew) wanted->second = _names.contains(text::toUpper(name.asString()));
    return wanted->second;
}

// The first of a name counts, so there are never more than names that are wanted.
void ProductProperties::append(Attributes& values, const Attributes& more) const {
    for (const auto& property : more) {
        const std::string name = text::toUpper(property.first);
        const auto isSame = [&](const auto& known) { return text::toUpper(known.first) == name; };
        if (std::ranges::none_of(values, isSame)) values.push_back(property);
    }
}

const DXSdaiAppInstance* ProductProperties::typeOf(const DXSdaiAppInstance& product) const {
    const auto type = _types.find(&product);
    return type == _types.end() ? nullptr : type->second;
}

knowledge::Attributes ProductProperties::of(const DXSdaiAppInstance& product) const {
    Attributes result;
    const DXSdaiAppInstance* type = typeOf(product);
    std::string predefined = predefinedType(&product);
    if (predefined.empty() || predefined == "NOTDEFINED") {
        if (std::string ofType = predefinedType(type); !ofType.empty()) predefined = std::move(ofType);
    }
    if (!predefined.empty()) result.emplace_back("PredefinedType", std::move(predefined));
    if (std::string text = product.GetAttr("OBJECTTYPE").asString(); !text.empty())
        result.emplace_back("ObjectType", std::move(text));
    if (const auto relationships = _relationships.find(&product); relationships != _relationships.end()) {
        for (const std::uint32_t position : relationships->second) append(result, _valuesOfRelationship[position]);
    }
    if (const auto values = _valuesOfType.find(type); values != _valuesOfType.end()) append(result, values->second);
    return result;
}

} // namespace velkor
