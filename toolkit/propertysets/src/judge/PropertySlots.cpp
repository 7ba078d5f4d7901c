#include "judge/PropertySlots.h"

#include "judge/SharedText.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace velkor {

namespace {

using Kind = PropertyKind;

struct ValueNames {
    const char* value = "";
    const char* unit = "";
};

struct Names {
    std::optional<Kind> kind;
    std::array<ValueNames, 3> values;
    const char* members = "";
};

constexpr const char* propertyUnit = "UNIT";
constexpr const char* definingValues = "DEFININGVALUES";

constexpr Names attributeNames[] = {
    {Kind::Single, {{{"NOMINALVALUE", propertyUnit}}}},
    {Kind::Enumerated, {{{"ENUMERATIONVALUES"}}}},
    {Kind::Bounded,
     {{{"UPPERBOUNDVALUE", propertyUnit}, {"LOWERBOUNDVALUE", propertyUnit}, {"SETPOINTVALUE", propertyUnit}}}},
    {Kind::List, {{{"LISTVALUES", propertyUnit}}}},
    {Kind::Table, {{{"DEFINEDVALUES", "DEFINEDUNIT"}, {definingValues, "DEFININGUNIT"}}}},
    {Kind::Reference, {{{"PROPERTYREFERENCE"}}}},
    {Kind::Complex, {}, "HASPROPERTIES"},
    {Kind::Length, {{{"LENGTHVALUE", propertyUnit}}}},
    {Kind::Area, {{{"AREAVALUE", propertyUnit}}}},
    {Kind::Volume, {{{"VOLUMEVALUE", propertyUnit}}}},
    {Kind::Count, {{{"COUNTVALUE", propertyUnit}}}},
    {Kind::Weight, {{{"WEIGHTVALUE", propertyUnit}}}},
    {Kind::Time, {{{"TIMEVALUE", propertyUnit}}}},
    {Kind::Number, {{{"NUMBERVALUE", propertyUnit}}}},
    {std::nullopt, {}, "HASQUANTITIES"},
};

std::string_view entityNameOf(const std::optional<Kind>& kind) {
    return kind ? entityOf(*kind) : "IFCPHYSICALCOMPLEXQUANTITY";
}

PropertySlots slotsOf(const Names& names, const sdai::EntityDefinition& entity) {
    PropertySlots slots;
    slots.kind = names.kind;
    slots.name = entity.attributeIndex("NAME");
    slots.members = entity.attributeIndex(names.members);
    slots.enumeration = entity.attributeIndex("ENUMERATIONREFERENCE");
    for (std::size_t i = 0; i < names.values.size(); ++i) {
        const auto& [value, unit] = names.values[i];
        PropertySlots::Value& slot = slots.values[i];
        slot.place = entity.attributeIndex(value);
        slot.unit = entity.attributeIndex(unit);
        slot.isDefining = value == std::string_view(definingValues);
        slot.isMany =
            slot.place >= 0 &&
            entity.attributes()[static_cast<std::size_t>(slot.place)].attribute->type().resolved().isAggregate();
    }
    return slots;
}

} // namespace

bool PropertySlots::isFilled(const DXSdaiAppInstance& property) const {
    const auto isThere = [&](int place, bool isMany) {
        if (place < 0) return false;
        const sdai::Primitive value = property.attribute(static_cast<std::size_t>(place));
        if (!isMany) return isGiven(value);
        const sdai::Aggregate many = value.asAggregate();
        return many.begin() != many.end();
    };
    return isThere(members, true) ||
           std::ranges::any_of(values, [&](const Value& value) { return isThere(value.place, value.isMany); });
}

PropertySlotTable::PropertySlotTable(const sdai::SchemaDefinition& schema) : _numbers(schema.entities().size()) {
    for (const Names& names : attributeNames) {
        const sdai::EntityDefinition* entity = schema.entity(entityNameOf(names.kind));
        if (entity == nullptr) continue;
        _slots.push_back(slotsOf(names, *entity));
        for (const sdai::EntityDefinition* each : schema.entities()) {
            if (each->isKindOf(*entity)) _numbers[each->position()] = static_cast<std::uint8_t>(_slots.size());
        }
    }
}

} // namespace velkor
