#include "judge/UnitFits.h"

#include "records/Record.h"
#include "velkor/units/MeasureUnits.h"

namespace velkor {

namespace {

// Beside the unit types of the schema.
constexpr std::string_view money = "a unit of money", none = "no unit";
// Texts that stand for numbers.
constexpr std::string_view describedNumber = "IFCDESCRIPTIVEMEASURE", moneyMeasure = "IFCMONETARYMEASURE";
constexpr std::string_view userDefined = "USERDEFINED";

const sdai::DefinedType& rootOf(const sdai::DefinedType& type) {
    const sdai::DefinedType* root = &type;
    while (const sdai::DefinedType* below = root->underlying().asDefined()) root = below;
    return *root;
}

bool isNumber(const sdai::Type& type) {
    return type.kind() == sdai::TypeKind::Integer || type.kind() == sdai::TypeKind::Real;
}

std::string needed(const sdai::DefinedType& type) {
    if (std::string unit = unitTypeOf(type); !unit.empty()) return unit;
    const sdai::DefinedType& root = rootOf(type);
    if (root.name() == moneyMeasure) return std::string(money);
    const bool isAny = root.name() == describedNumber || isNumber(root.underlying()) || !root.underlying().isSimple();
    return isAny ? std::string() : std::string(none);
}

} // namespace

UnitFits::UnitFits(const sdai::Model& model) : _model(model), _moneyUnit(model.schema().entity("IFCMONETARYUNIT")) {}

const std::string& UnitFits::neededBy(const sdai::DefinedType& type) {
    const auto [known, isNew] = _needed.try_emplace(&type);
    if (isNew) known->second = needed(type);
    return known->second;
}

std::string_view UnitFits::unitTypeOf(std::uint32_t unit) {
    const auto [known, isNew] = _unitTypes.try_emplace(unit);
    if (!isNew) return known->second;
    const sdai::EntityDefinition* entity = _model.entityAt(unit);
    if (entity != nullptr && _moneyUnit != nullptr && entity->isKindOf(*_moneyUnit)) return known->second = money;
    const std::string_view type = Record(_model, unit).attribute("UNITTYPE").asEnumeration().text();
    return known->second = type == userDefined ? std::string_view() : type;
}

bool UnitFits::fits(const sdai::DefinedType& type, std::uint32_t unit) {
    const std::string& wanted = neededBy(type);
    if (wanted.empty()) return true;
    const std::string_view given = unitTypeOf(unit);
    return given.empty() ? wanted != none : given == wanted;
}

std::string_view UnitFits::expected(const sdai::DefinedType& type) {
    return neededBy(type);
}

std::string_view UnitFits::found(std::uint32_t unit) {
    const std::string_view type = unitTypeOf(unit);
    const sdai::EntityDefinition* entity = _model.entityAt(unit);
    return !type.empty() || entity == nullptr ? type : entity->name();
}

} // namespace velkor
