#include "PropertyValues.h"

#include "velkor/model/RelatedInstances.h"

#include <algorithm>

namespace velkor::python {

namespace {

// Of an enumerated property its value, when it has one and no more.
sdai::Primitive onlyMember(const sdai::Primitive& values) {
    sdai::Primitive only;
    std::size_t count = 0;
    for (const sdai::Primitive member : values.asAggregate())
        if (++count == 1) only = member;
    return count == 1 ? only : sdai::Primitive();
}

sdai::Primitive valueOf(const DXSdaiAppInstance& property) {
    if (property.IsKindOf("IFCPROPERTYSINGLEVALUE")) return property.GetAttr("NOMINALVALUE");
    if (property.IsKindOf("IFCPROPERTYENUMERATEDVALUE")) return onlyMember(property.GetAttr("ENUMERATIONVALUES"));
    // Behind name, description and unit.
    constexpr std::size_t quantityValue = 3;
    if (property.IsKindOf("IFCPHYSICALSIMPLEQUANTITY")) return property.attribute(quantityValue);
    return {};
}

} // namespace

PropertyValues::PropertyValues(const sdai::Model& model, const std::vector<Name>& names) : _names(names) {
    if (names.empty()) return;
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYTYPE")) {
        const DXSdaiAppInstance& relationship = *model.instanceAt(number);
        const DXSdaiAppInstance* type = relationship.GetAttr("RELATINGTYPE").asInstance();
        if (type == nullptr) continue;
        eachInstance(relationship.GetAttr("RELATEDOBJECTS").asAggregate(),
                     [&](const DXSdaiAppInstance* object) { _types.try_emplace(object, type); });
    }
    for (const std::uint32_t number : model.numbersOf("IFCTYPEOBJECT")) {
        const DXSdaiAppInstance* type = model.instanceAt(number);
        eachInstance(type->GetAttr("HASPROPERTYSETS").asAggregate(), [&](const DXSdaiAppInstance* set) {
            if (const Values& values = valuesOf(set); !values.empty())
                _ofHolder[type].insert(values.begin(), values.end());
        });
    }
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYPROPERTIES")) {
        const DXSdaiAppInstance& relationship = *model.instanceAt(number);
        eachSet(relationship, [&](const DXSdaiAppInstance* set) {
            const Values& values = valuesOf(set);
            if (values.empty()) return;
            eachInstance(relationship.GetAttr("RELATEDOBJECTS").asAggregate(), [&](const DXSdaiAppInstance* object) {
                _ofHolder[object].insert(values.begin(), values.end());
            });
        });
    }
}

const PropertyValues::Values& PropertyValues::valuesOf(const DXSdaiAppInstance* set) {
    const auto [place, isNew] = _ofSet.try_emplace(set);
    Values& values = place->second;
    if (!isNew) return values;
    const std::string setName = set->GetAttr("NAME").asString();
    if (std::ranges::none_of(_names, [&](const Name& name) { return name.first == setName; })) return values;
    const bool areQuantities = set->IsKindOf("IFCELEMENTQUANTITY");
    const auto members = set->GetAttr(areQuantities ? "QUANTITIES" : "HASPROPERTIES").asAggregate();
    eachInstance(members, [&](const DXSdaiAppInstance* property) {
        const std::string name = property->GetAttr("NAME").asString();
        for (std::size_t i = 0; i < _names.size(); ++i) {
            if (_names[i].first != setName || _names[i].second != name) continue;
            if (const sdai::Primitive value = valueOf(*property); value.isSet()) values.try_emplace(i, value);
        }
    });
    return values;
}

sdai::Primitive PropertyValues::of(const DXSdaiAppInstance& object, std::size_t name) const {
    const auto held = [&](const DXSdaiAppInstance* holder) {
        const auto values = _ofHolder.find(holder);
        if (values == _ofHolder.end()) return sdai::Primitive();
        const auto value = values->second.find(name);
        return value == values->second.end() ? sdai::Primitive() : value->second;
    };
    const sdai::Primitive own = held(&object);
    if (own.isSet()) return own;
    const auto type = _types.find(&object);
    return type == _types.end() ? sdai::Primitive() : held(type->second);
}

} // namespace velkor::python
