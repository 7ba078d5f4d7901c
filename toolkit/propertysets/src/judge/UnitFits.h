/// Whether units are for the values that are said to be in them.
#pragma once

#include "velkor/sdai/Model.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace velkor {

/// A measure takes units of its own unit type, an amount of money those of money; plain numbers take any unit, texts
/// and logical values none. A unit that says nothing about its type fits.
class UnitFits {
public:
    explicit UnitFits(const sdai::Model& model);

    /// By the type of the values and the number of the unit's instance.
    bool fits(const sdai::DefinedType& type, std::uint32_t unit);
    /// What values of a type take: "LENGTHUNIT", "no unit".
    std::string_view expected(const sdai::DefinedType& type);
    /// What a unit is for, or what it is.
    std::string_view found(std::uint32_t unit);

private:
    const std::string& neededBy(const sdai::DefinedType& type);
    std::string_view unitTypeOf(std::uint32_t unit);

    const sdai::Model& _model;
    // Null in a release that does not have them.
    const sdai::EntityDefinition* _moneyUnit;
    // By type: empty for any unit.
    std::unordered_map<const sdai::DefinedType*, std::string> _needed;
    // By unit: empty where it says nothing.
    std::unordered_map<std::uint32_t, std::string_view> _unitTypes;
};

} // namespace velkor
