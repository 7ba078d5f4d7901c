/// The words that lines of a table of definitions consist of, for who writes and who reads them.
///
///     enumerated Status list PEnum_ElementStatus values NEW EXISTING "not known"
#pragma once

#include "velkor/propertysets/SetDefinition.h"

#include <array>
#include <string>
#include <string_view>

namespace velkor::tablewords {

inline constexpr std::string_view release = "release";
inline constexpr std::string_view propertySet = "property-set";
inline constexpr std::string_view quantitySet = "quantity-set";
inline constexpr std::string_view refused = "refused";
inline constexpr std::string_view source = "source";
inline constexpr std::string_view fault = "fault";
inline constexpr std::string_view applicableClass = "class";
inline constexpr std::string_view method = "method";

/// What the words behind the name of a property mean. The first that is none of these is the type of its values.
inline constexpr std::string_view definingType = "by";
inline constexpr std::string_view unitType = "unit";
inline constexpr std::string_view definingUnitType = "by-unit";
inline constexpr std::string_view enumeration = "list";
inline constexpr std::string_view usageName = "usage";
inline constexpr std::string_view enumerators = "values";
inline constexpr std::array keys{definingType, unitType, definingUnitType, enumeration, usageName, enumerators};

/// Blanks before a line for each level that it stands below another.
inline constexpr std::size_t indentation = 2;
/// Of properties within properties.
inline constexpr std::size_t deepest = 100;

} // namespace velkor::tablewords
