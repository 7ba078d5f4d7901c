/// The releases that define property sets and quantity sets. Runtime views and tables of definitions are named by them.
#pragma once

#include <algorithm>
#include <string_view>

namespace velkor {

/// Oldest first.
inline constexpr std::string_view definitionReleases[] = {"IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_ADD2"};
/// Whose definitions the services read unless told otherwise.
inline constexpr std::string_view usualDefinitionsRelease = "IFC4";

/// True for the name of a release that defines sets.
constexpr bool isDefinitionRelease(std::string_view name) noexcept {
    return std::ranges::find(definitionReleases, name) != std::ranges::end(definitionReleases);
}

} // namespace velkor
