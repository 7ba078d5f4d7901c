#include "judge/PropertySlots.h"

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

PropertySlots::Value slotOf(const ValueNames& names, const sdai::EntityDefinition& entity) {
    PropertySlots::Value slot;
    slot.place = entity.attributeIndex(names.value);
    if (slot.place < 0) return slot;
    slot.unit = entity.attributeIndex(names.unit);
    slot.isDefining = names.value == std::string_view(definingValues);
    const sdai::Type& type = entity.attributes()[static_cast<std::size_t>(slot.place)].attribute->type();
    slot.isMany = type.resolved().isAggregate();
    slot.type = type.resolved().isSimple() ? type.asDefined() : nullptr;
    return slot;
}

PropertySlots slotsOf(const Names& names, const sdai::EntityDefinition& entity) {
    PropertySlots slots;
    slots.kind = names.kind;
    slots.name = entity.attributeIndex("NAME");
    slots.members = entity.attributeIndex(names.members);
    slots.enumeration = entity.attributeIndex("ENUMERATIONREFERENCE");
    for (const ValueNames& value : names.values) {
        if (const auto slot = slotOf(value, entity); slot.place >= 0) slots.all[slots.valueCount++] = slot;
    }
    return slots;
}

} // namespace

bool PropertySlots::isFilled(const Record& property) const {
    bool isFilled = false;
    const auto fill = [&](std::string_view) {
        isFilled = true;
        return false;
    };
    for (const Value& value : values()) eachValue(property, value, fill);
    if (members >= 0) eachMember(property.text(members), fill);
    return isFilled;
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
