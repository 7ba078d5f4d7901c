/// The schema release of the file being exchanged, as the unit services know it.
#pragma once

#include <string_view>

/// Other values may be set; the unit services keep no global factors for them.
enum Fileschema : int {
    FileschemaIFC2X3 = 0,
    /// Also what a host sets for every release after IFC4, whose unit types IFC4 has.
    FileschemaIFC4 = 1,
};

namespace velkor {

/// What a host sets for a file of a release, by the name of its dictionary.
constexpr Fileschema fileschemaOf(std::string_view dictionary) noexcept {
    return dictionary == "IFC2X3" ? FileschemaIFC2X3 : FileschemaIFC4;
}

/// Name of the dictionary by which the unit services count unit types, IFC4 also for other values.
constexpr std::string_view unitDictionary(Fileschema schema) noexcept {
    return schema == FileschemaIFC2X3 ? "IFC2X3" : "IFC4";
}

} // namespace velkor
