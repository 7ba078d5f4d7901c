#include "UnitCatalogue.h"

#include "QORIFCUnitServices.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace velkor::exchange {

namespace {

/// In the order of IfcSIPrefix in IFC4, by which the unit services count.
constexpr std::string_view prefixes[] = {"EXA",  "PETA",  "TERA",  "GIGA",  "MEGA", "KILO", "HECTO", "DECA",
                                         "DECI", "CENTI", "MILLI", "MICRO", "NANO", "PICO", "FEMTO", "ATTO"};

struct SiName {
    std::string_view name;
    std::string_view type;
};

constexpr SiName siNames[] = {{"AMPERE", "ELECTRICCURRENTUNIT"},
                              {"BECQUEREL", "RADIOACTIVITYUNIT"},
                              {"CANDELA", "LUMINOUSINTENSITYUNIT"},
                              {"COULOMB", "ELECTRICCHARGEUNIT"},
                              {"CUBIC_METRE", "VOLUMEUNIT"},
                              {"DEGREE_CELSIUS", "THERMODYNAMICTEMPERATUREUNIT"},
                              {"FARAD", "ELECTRICCAPACITANCEUNIT"},
                              {"GRAM", "MASSUNIT"},
                              {"GRAY", "ABSORBEDDOSEUNIT"},
                              {"HENRY", "INDUCTANCEUNIT"},
                              {"HERTZ", "FREQUENCYUNIT"},
                              {"JOULE", "ENERGYUNIT"},
                              {"KELVIN", "THERMODYNAMICTEMPERATUREUNIT"},
                              {"LUMEN", "LUMINOUSFLUXUNIT"},
                              {"LUX", "ILLUMINANCEUNIT"},
                              {"METRE", "LENGTHUNIT"},
                              {"MOLE", "AMOUNTOFSUBSTANCEUNIT"},
                              {"NEWTON", "FORCEUNIT"},
                              {"OHM", "ELECTRICRESISTANCEUNIT"},
                              {"PASCAL", "PRESSUREUNIT"},
                              {"RADIAN", "PLANEANGLEUNIT"},
                              {"SECOND", "TIMEUNIT"},
                              {"SIEMENS", "ELECTRICCONDUCTANCEUNIT"},
                              {"SIEVERT", "DOSEEQUIVALENTUNIT"},
                              {"SQUARE_METRE", "AREAUNIT"},
                              {"STERADIAN", "SOLIDANGLEUNIT"},
                              {"TESLA", "MAGNETICFLUXDENSITYUNIT"},
                              {"VOLT", "ELECTRICVOLTAGEUNIT"},
                              {"WATT", "POWERUNIT"},
                              {"WEBER", "MAGNETICFLUXUNIT"}};

/// What the conversion-based units of a type are defined by, without a prefix but for the kilogram.
struct Coherent {
    SiUnit unit;
    std::array<int, 7> dimensions;
};

constexpr Coherent coherentUnits[] = {
    {{"LENGTHUNIT", "", "METRE"}, {1, 0, 0, 0, 0, 0, 0}},
    {{"AREAUNIT", "", "SQUARE_METRE"}, {2, 0, 0, 0, 0, 0, 0}},
    {{"VOLUMEUNIT", "", "CUBIC_METRE"}, {3, 0, 0, 0, 0, 0, 0}},
    {{"PLANEANGLEUNIT", "", "RADIAN"}, {0, 0, 0, 0, 0, 0, 0}},
    {{"MASSUNIT", "KILO", "GRAM"}, {0, 1, 0, 0, 0, 0, 0}},
    {{"FORCEUNIT", "", "NEWTON"}, {1, 1, -2, 0, 0, 0, 0}},
    {{"PRESSUREUNIT", "", "PASCAL"}, {-1, 1, -2, 0, 0, 0, 0}},
    {{"ENERGYUNIT", "", "JOULE"}, {2, 1, -2, 0, 0, 0, 0}},
    {{"TIMEUNIT", "", "SECOND"}, {0, 0, 1, 0, 0, 0, 0}},
    {{"THERMODYNAMICTEMPERATUREUNIT", "", "KELVIN"}, {0, 0, 0, 0, 1, 0, 0}},
};

struct ConversionRow {
    std::string_view type;
    ConversionUnit unit;
};

/// Factors are the exact ones of the international agreements, as far as they are decimals.
constexpr ConversionRow conversionUnits[] = {
    {"LENGTHUNIT", {"INCH", 0.0254}},
    {"LENGTHUNIT", {"FOOT", 0.3048}},
    {"LENGTHUNIT", {"YARD", 0.9144}},
    {"LENGTHUNIT", {"MILE", 1609.344}},
    {"AREAUNIT", {"SQUARE INCH", 0.00064516}},
    {"AREAUNIT", {"SQUARE FOOT", 0.09290304}},
    {"AREAUNIT", {"SQUARE YARD", 0.83612736}},
    {"AREAUNIT", {"ACRE", 4046.8564224}},
    {"AREAUNIT", {"SQUARE MILE", 2589988.110336}},
    {"VOLUMEUNIT", {"CUBIC INCH", 0.000016387064}},
    {"VOLUMEUNIT", {"CUBIC FOOT", 0.028316846592}},
    {"VOLUMEUNIT", {"CUBIC YARD", 0.764554857984}},
    {"VOLUMEUNIT", {"LITRE", 0.001}},
    {"VOLUMEUNIT", {"FLUID OUNCE UK", 0.0000284130625}},
    {"VOLUMEUNIT", {"FLUID OUNCE US", 0.0000295735295625}},
    {"VOLUMEUNIT", {"PINT UK", 0.00056826125}},
    {"VOLUMEUNIT", {"PINT US", 0.000473176473}},
    {"VOLUMEUNIT", {"GALLON UK", 0.00454609}},
    {"VOLUMEUNIT", {"GALLON US", 0.003785411784}},
    {"PLANEANGLEUNIT", {"DEGREE", 0.017453292519943295}},
    {"MASSUNIT", {"OUNCE", 0.028349523125}},
    {"MASSUNIT", {"POUND", 0.45359237}},
    {"MASSUNIT", {"TON UK", 1016.0469088}},
    {"MASSUNIT", {"TON US", 907.18474}},
    {"FORCEUNIT", {"LBF", 4.4482216152605}},
    {"FORCEUNIT", {"KIP", 4448.2216152605}},
    {"PRESSUREUNIT", {"PSI", 4.4482216152605 / 0.00064516}},
    {"PRESSUREUNIT", {"KSI", 4448.2216152605 / 0.00064516}},
    {"ENERGYUNIT", {"BTU", 1055.05585262}},
    {"TIMEUNIT", {"MINUTE", 60}},
    {"TIMEUNIT", {"HOUR", 3600}},
    {"TIMEUNIT", {"DAY", 86400}},
    {"THERMODYNAMICTEMPERATUREUNIT", {"FAHRENHEIT", 5.0 / 9.0, 459.67 * 5.0 / 9.0}},
};

/// Upper case, with blanks for what people put between words.
std::string normalized(std::string_view name) {
    std::string text(name);
    for (char& c : text) c = c == '_' || c == '-' ? ' ' : text::asciiUpper(c);
    return text;
}

int exponentOf(std::string_view prefix) {
    const auto* found = std::ranges::find(prefixes, prefix);
    if (found == std::end(prefixes)) return 0;
    return UnitScale::of(QORIFCUnitServices::GetPrefixValue(static_cast<int>(found - prefixes))).exponent;
}

const Coherent* coherent(std::string_view type) {
    const auto* found = std::ranges::find(coherentUnits, type, [](const Coherent& row) { return row.unit.type; });
    return found == std::end(coherentUnits) ? nullptr : found;
}

/// How a unit of SI may be called: prefixes of areas and volumes stand before the name, or before the length in it.
std::vector<std::string> namesOf(const SiUnit& unit) {
    std::vector<std::string> names = {normalized(std::string(unit.prefix) + std::string(unit.name))};
    if (const std::size_t length = unit.name.find("_METRE"); length != std::string_view::npos && !unit.prefix.empty())
        names.push_back(
            normalized(std::string(unit.name.substr(0, length)) + ' ' + std::string(unit.prefix) + "METRE"));
    return names;
}

std::vector<SiUnit> siUnitsOf(std::string_view type) {
    std::vector<SiUnit> units;
    for (const SiName& row : siNames) {
        if (row.type != type) continue;
        units.push_back({row.type, "", row.name});
        for (const std::string_view prefix : prefixes) units.push_back({row.type, prefix, row.name});
    }
    return units;
}

std::string unknown(std::string_view type, std::string_view name) {
    std::vector<std::string> names;
    for (const SiUnit& unit : siUnitsOf(type)) names.push_back(namesOf(unit).back());
    for (const ConversionRow& row : conversionUnits)
        if (row.type == type) names.emplace_back(row.unit.name);
    const std::vector<std::string_view> known(names.begin(), names.end());
    std::string message = "there is no unit ";
    message.append(text::quoted(name)).append(" of type ").append(type);
    if (const auto nearest = text::nearestNames(known, normalized(name), 3); !nearest.empty())
        message.append("; meant is perhaps ").append(text::alternatives(nearest));
    return message;
}

} // namespace

std::string CatalogueUnit::displayName() const {
    return isConversionBased() ? std::string(conversion.name) : std::string(si.prefix) + std::string(si.name);
}

UnitScale scaleOf(const SiUnit& unit) {
    UnitScale scale;
    scale.exponent = exponentOf(unit.prefix) * (unit.type == "AREAUNIT" ? 2 : unit.type == "VOLUMEUNIT" ? 3 : 1);
    if (unit.name == "GRAM") scale.exponent -= 3;
    // As exact as a long double is, so that 20 degrees come of 293.15 kelvins.
    if (unit.name == "DEGREE_CELSIUS") scale.offset = 27315.0L / 100.0L;
    return scale;
}

std::array<int, 7> dimensionsOf(std::string_view type) {
    const Coherent* row = coherent(type);
    return row != nullptr ? row->dimensions : std::array<int, 7>{};
}

tl::expected<CatalogueUnit, std::string> catalogueUnit(std::string_view type, std::string_view name) {
    const std::string wanted = normalized(name);
    for (const SiUnit& unit : siUnitsOf(type)) {
        if (std::ranges::count(namesOf(unit), wanted) == 0) continue;
        return CatalogueUnit{unit, {}, scaleOf(unit)};
    }
    for (const ConversionRow& row : conversionUnits) {
        if (row.type != type || row.unit.name != wanted) continue;
        return CatalogueUnit{coherent(type)->unit, row.unit, UnitScale::of(row.unit.factor, row.unit.offset)};
    }
    return tl::unexpected(unknown(type, name));
}

} // namespace velkor::exchange
