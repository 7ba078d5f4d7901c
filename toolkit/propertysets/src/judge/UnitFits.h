/// Whether units are for the values that are said to be in them.
#pragma once

#include "velkor/sdai/Dictionary.h"
#include "velkor/sdai/DXSdaiAppInstance.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace velkor {

/// A measure takes units of its own unit type, an amount of money those of money; plain numbers take any unit, texts
/// and logical values none. A unit that says nothing about its type fits.
class UnitFits {
public:
    explicit UnitFits(const sdai::SchemaDefinition& schema);

    /// By the type of the values and the unit's instance.
    bool fits(const sdai::DefinedType& type, const DXSdaiAppInstance* unit);
    /// What values of a type take: "LENGTHUNIT", "no unit".
    std::string_view expected(const sdai::DefinedType& type);
    /// What a unit is for, or what it is.
    std::string_view found(const DXSdaiAppInstance* unit);

private:
    const std::string& neededBy(const sdai::DefinedType& type);
    std::string_view unitTypeOf(const DXSdaiAppInstance* unit);

    // Null in a release that does not have them.
    const sdai::EntityDefinition* _moneyUnit;
    // By type: empty for any unit.
    std::unordered_map<const sdai::DefinedType*, std::string> _needed;
    // By unit: empty where it says nothing.
    std::unordered_map<const DXSdaiAppInstance*, std::string_view> _unitTypes;
};

} // namespace velkor
