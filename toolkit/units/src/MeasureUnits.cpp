#include "velkor/units/MeasureUnits.h"

#include <algorithm>
#include <utility>

namespace velkor {

namespace {

constexpr std::string_view ifc = "IFC";
constexpr std::string_view measureEnd = "MEASURE";
constexpr std::string_view unitEnd = "UNIT";

/// Measures whose units are called otherwise.
constexpr std::pair<std::string_view, std::string_view> otherNames[] = {
    {"IFCSECTIONALAREAINTEGRALMEASURE", "SECTIONAREAINTEGRALUNIT"},
    {"IFCTHERMALCONDUCTIVITYMEASURE", "THERMALCONDUCTANCEUNIT"},
};

constexpr const char* enumerations[] = {"IFCUNITENUM", "IFCDERIVEDUNITENUM"};

const sdai::EnumerationType* enumeration(const sdai::SchemaDefinition& schema, const char* name) {
    const sdai::DefinedType* type = schema.definedType(name);
    return type == nullptr ? nullptr : type->resolved().asEnumeration();
}

} // namespace

std::string unitTypeOf(std::string_view measure) {
    for (const auto& [name, type] : otherNames)
        if (name == measure) return std::string(type);
    if (!measure.starts_with(ifc) || !measure.ends_with(measureEnd) || measure.size() <= ifc.size() + measureEnd.size())
        return {};
    std::string type(measure.substr(ifc.size(), measure.size() - ifc.size() - measureEnd.size()));
    return type += unitEnd;
}

std::string unitTypeOf(const sdai::DefinedType& type) {
    const sdai::DefinedType* root = &type;
    while (const sdai::DefinedType* below = root->underlying().asDefined()) root = below;
    if (!root->underlying().isSimple() && !root->underlying().isAggregate()) return {};
    std::string unit = unitTypeOf(root->name());
    if (!isUnitType(type.schema(), unit)) unit.clear();
    return unit;
}

std::string measureOf(std::string_view unitType) {
    for (const auto& [name, type] : otherNames)
        if (type == unitType) return std::string(name);
    if (!unitType.ends_with(unitEnd) || unitType.size() == unitEnd.size()) return {};
    std::string measure(ifc);
    measure += unitType.substr(0, unitType.size() - unitEnd.size());
    return measure += measureEnd;
}

std::vector<std::string_view> unitTypes(const sdai::SchemaDefinition& schema) {
    std::vector<std::string_view> types;
    for (const char* name : enumerations)
        if (const auto* list = enumeration(schema, name))
            types.insert(types.end(), list->values().begin(), list->values().end());
    return types;
}

bool isUnitType(const sdai::SchemaDefinition& schema, std::string_view name) {
    return std::ranges::any_of(enumerations, [&](const char* list) {
        const auto* type = enumeration(schema, list);
        return type != nullptr && type->position(name) >= 0;
    });
}

} // namespace velkor
