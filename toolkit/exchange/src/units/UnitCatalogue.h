/// The units that can be asked for by name: those of SI with their prefixes, and the conversion-based ones of ISO
/// 16739.
#pragma once

#include "Ratio.h"

#include <array>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::exchange {

/// A unit of SI as IfcSIUnit says it.
struct SiUnit {
    /// Enumerator of IfcUnitEnum.
    std::string_view type;
    /// Empty for none.
    std::string_view prefix;
    std::string_view name;
    bool operator==(const SiUnit&) const = default;
};

/// A unit that is defined by one of SI; what IfcConversionBasedUnit says.
struct ConversionUnit {
    /// As ISO 16739 lists it, in upper case; empty for units of SI.
    std::string_view name;
    /// Of the SI unit in one of it.
    double factor = 1;
    /// In the SI unit, behind the multiplication.
    double offset = 0;
};

struct CatalogueUnit {
    /// The unit, or the one that it is defined by.
    SiUnit si;
    ConversionUnit conversion;
    UnitScale scale;

    bool isConversionBased() const noexcept { return !conversion.name.empty(); }
    /// "MILLIMETRE", "SQUARE FOOT".
    std::string displayName() const;
};

/// A unit by unit type and name; letter case does not count, "_" and blanks are the same. The error names the units
/// that are likely meant.
tl::expected<CatalogueUnit, std::string> catalogueUnit(std::string_view type, std::string_view name);

/// How a unit of SI counts. A gram is a thousandth of the coherent unit, a degree Celsius begins elsewhere, and the
/// prefix of an area or volume is that of the length in it.
UnitScale scaleOf(const SiUnit& unit);

/// Exponents of length, mass, time, electric current, temperature, amount of substance and luminous intensity, of a
/// unit type that has conversion-based units.
std::array<int, 7> dimensionsOf(std::string_view type);

} // namespace velkor::exchange
