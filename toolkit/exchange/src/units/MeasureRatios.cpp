#include "MeasureRatios.h"

#include "velkor/units/MeasureUnits.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace velkor::exchange {

namespace {

/// A unit and its exponent in another.
struct Element {
    std::string_view type;
    int exponent = 0;
};

/// How ISO 16739 defines the units of a type by others.
struct Composition {
    std::string_view type;
    Element elements[4] = {};
};

constexpr std::string_view lengthUnit = "LENGTHUNIT";
constexpr std::string_view areaUnit = "AREAUNIT";
constexpr std::string_view volumeUnit = "VOLUMEUNIT";
constexpr std::string_view angleUnit = "PLANEANGLEUNIT";
constexpr std::string_view massUnit = "MASSUNIT";
constexpr std::string_view timeUnit = "TIMEUNIT";
constexpr std::string_view forceUnit = "FORCEUNIT";
constexpr std::string_view powerUnit = "POWERUNIT";
constexpr std::string_view energyUnit = "ENERGYUNIT";
constexpr std::string_view pressureUnit = "PRESSUREUNIT";
constexpr std::string_view temperatureUnit = "THERMODYNAMICTEMPERATUREUNIT";
constexpr std::string_view amountUnit = "AMOUNTOFSUBSTANCEUNIT";

/// Angles of a circle, levels in decibels and pH values are what they are in any units. What is missing here has a unit
/// with a name of its own in SI.
constexpr Composition compositions[] = {
    {areaUnit, {{lengthUnit, 2}}},
    {volumeUnit, {{lengthUnit, 3}}},
    {"ACCELERATIONUNIT", {{lengthUnit, 1}, {timeUnit, -2}}},
    {"ANGULARVELOCITYUNIT", {{angleUnit, 1}, {timeUnit, -1}}},
    {"AREADENSITYUNIT", {{massUnit, 1}, {areaUnit, -1}}},
    {"CURVATUREUNIT", {{angleUnit, 1}, {lengthUnit, -1}}},
    {"DYNAMICVISCOSITYUNIT", {{pressureUnit, 1}, {timeUnit, 1}}},
    {"HEATFLUXDENSITYUNIT", {{powerUnit, 1}, {areaUnit, -1}}},
    {"HEATINGVALUEUNIT", {{energyUnit, 1}, {massUnit, -1}}},
    {"INTEGERCOUNTRATEUNIT", {{timeUnit, -1}}},
    {"IONCONCENTRATIONUNIT", {{massUnit, 1}, {volumeUnit, -1}}},
    {"ISOTHERMALMOISTURECAPACITYUNIT", {{volumeUnit, 1}, {massUnit, -1}}},
    {"KINEMATICVISCOSITYUNIT", {{areaUnit, 1}, {timeUnit, -1}}},
    {"LINEARFORCEUNIT", {{forceUnit, 1}, {lengthUnit, -1}}},
    // A moment per length: what is left is a force.
    {"LINEARMOMENTUNIT", {{forceUnit, 1}}},
    {"LINEARSTIFFNESSUNIT", {{forceUnit, 1}, {lengthUnit, -1}}},
    {"LINEARVELOCITYUNIT", {{lengthUnit, 1}, {timeUnit, -1}}},
    {"LUMINOUSINTENSITYDISTRIBUTIONUNIT", {{"LUMINOUSINTENSITYUNIT", 1}, {"LUMINOUSFLUXUNIT", -1}}},
    {"MASSDENSITYUNIT", {{massUnit, 1}, {volumeUnit, -1}}},
    {"MASSFLOWRATEUNIT", {{massUnit, 1}, {timeUnit, -1}}},
    {"MASSPERLENGTHUNIT", {{massUnit, 1}, {lengthUnit, -1}}},
    {"MODULUSOFELASTICITYUNIT", {{forceUnit, 1}, {areaUnit, -1}}},
    {"MODULUSOFLINEARSUBGRADEREACTIONUNIT", {{forceUnit, 1}, {lengthUnit, -2}}},
    // A moment per length and angle.
    {"MODULUSOFROTATIONALSUBGRADEREACTIONUNIT", {{forceUnit, 1}, {angleUnit, -1}}},
    {"MODULUSOFSUBGRADEREACTIONUNIT", {{forceUnit, 1}, {lengthUnit, -3}}},
    {"MOISTUREDIFFUSIVITYUNIT", {{volumeUnit, 1}, {timeUnit, -1}}},
    {"MOLECULARWEIGHTUNIT", {{massUnit, 1}, {amountUnit, -1}}},
    {"MOMENTOFINERTIAUNIT", {{lengthUnit, 4}}},
    {"PLANARFORCEUNIT", {{forceUnit, 1}, {areaUnit, -1}}},
    {"ROTATIONALFREQUENCYUNIT", {{timeUnit, -1}}},
    {"ROTATIONALMASSUNIT", {{massUnit, 1}, {lengthUnit, 2}}},
    {"ROTATIONALSTIFFNESSUNIT", {{forceUnit, 1}, {lengthUnit, 1}, {angleUnit, -1}}},
    {"SECTIONAREAINTEGRALUNIT", {{lengthUnit, 5}}},
    {"SECTIONMODULUSUNIT", {{lengthUnit, 3}}},
    {"SHEARMODULUSUNIT", {{forceUnit, 1}, {areaUnit, -1}}},
    {"SOUNDPOWERUNIT", {{powerUnit, 1}}},
    {"SOUNDPRESSUREUNIT", {{pressureUnit, 1}}},
    {"SPECIFICHEATCAPACITYUNIT", {{energyUnit, 1}, {massUnit, -1}, {temperatureUnit, -1}}},
    {"TEMPERATUREGRADIENTUNIT", {{temperatureUnit, 1}, {lengthUnit, -1}}},
    {"TEMPERATURERATEOFCHANGEUNIT", {{temperatureUnit, 1}, {timeUnit, -1}}},
    {"THERMALADMITTANCEUNIT", {{powerUnit, 1}, {areaUnit, -1}, {temperatureUnit, -1}}},
    {"THERMALCONDUCTANCEUNIT", {{powerUnit, 1}, {lengthUnit, -1}, {temperatureUnit, -1}}},
    {"THERMALEXPANSIONCOEFFICIENTUNIT", {{temperatureUnit, -1}}},
    {"THERMALRESISTANCEUNIT", {{areaUnit, 1}, {temperatureUnit, 1}, {powerUnit, -1}}},
    {"THERMALTRANSMITTANCEUNIT", {{powerUnit, 1}, {areaUnit, -1}, {temperatureUnit, -1}}},
    {"TORQUEUNIT", {{forceUnit, 1}, {lengthUnit, 1}}},
    {"VAPORPERMEABILITYUNIT", {{massUnit, 1}, {timeUnit, -1}, {lengthUnit, -1}, {pressureUnit, -1}}},
    {"VOLUMETRICFLOWRATEUNIT", {{volumeUnit, 1}, {timeUnit, -1}}},
    {"WARPINGCONSTANTUNIT", {{lengthUnit, 6}}},
    {"WARPINGMOMENTUNIT", {{forceUnit, 1}, {lengthUnit, 2}}},
};

/// Compositions lead to others twice at most.
constexpr int deepestComposition = 4;

} // namespace

MeasureRatios::MeasureRatios(const sdai::SchemaDefinition& schema, std::map<std::string, Ratio, std::less<>> exchanged,
                             std::function<bool(std::string_view)> isAssigned)
    : _schema(schema), _byUnit(std::move(exchanged)), _isAssigned(std::move(isAssigned)) {
    _byType.resize(_schema.definedTypes().size(), stays);
    for (const sdai::DefinedType* type : _schema.definedTypes()) {
        const RatioNumber number = ofUnit(unitTypeOf(*type));
        if (number == stays) continue;
        _byType[type->position()] = number;
        _byKeyword.emplace(type->name(), number);
    }
    _length = ofUnit(lengthUnit);
    _planeAngle = ofUnit(angleUnit);
}

RatioNumber MeasureRatios::numbered(const Ratio& ratio) {
    const auto place = std::ranges::find(_ratios, ratio) - _ratios.begin();
    if (static_cast<std::size_t>(place) == _ratios.size()) _ratios.push_back(ratio);
    return static_cast<RatioNumber>(place);
}

Ratio MeasureRatios::ratioOfUnit(std::string_view type, int depth) {
    if (const auto known = _byUnit.find(type); known != _byUnit.end()) return known->second;
    Ratio ratio;
    const auto* composition = std::ranges::find(compositions, type, &Composition::type);
    if (composition != std::end(compositions) && depth < deepestComposition && !_isAssigned(type)) {
        for (const Element& element : composition->elements)
            if (element.exponent != 0) ratio = ratio * ratioOfUnit(element.type, depth + 1).power(element.exponent);
    }
    _byUnit.emplace(type, ratio);
    return ratio;
}

RatioNumber MeasureRatios::ofUnit(std::string_view type) {
    return type.empty() ? stays : numbered(ratioOfUnit(type, 0));
}

RatioNumber MeasureRatios::of(const sdai::DefinedType& type) const {
    return _byType[type.position()];
}

RatioNumber MeasureRatios::ofKeyword(std::string_view keyword) const {
    const auto found = _byKeyword.find(std::string(keyword));
    return found == _byKeyword.end() ? stays : found->second;
}

RatioNumber MeasureRatios::lengthPower(int exponent) {
    return numbered(_ratios[_length].power(exponent));
}

RatioNumber MeasureRatios::difference(RatioNumber number) {
    return numbered(_ratios[number].withoutOffset());
}

} // namespace velkor::exchange
