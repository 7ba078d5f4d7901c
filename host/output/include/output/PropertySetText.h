/// What the definitions of property sets cover of a model, for people and as JSON.
#pragma once

#include "output/Json.h"
#include "velkor/propertysets/PropertySetCheck.h"

#include <string>
#include <vector>

namespace velkor::host {

/// What is said when there is nothing to check by.
inline constexpr const char* noDefinitions =
    "there are no definitions of property sets to check by; velkor resources says where they are looked for";

/// One line per definition that cannot be read, with the reason that the library has.
std::vector<std::string> unreadableDefinitions(const PropertySetCheck& check, const SetLibrary& library);

/// The counts: "sets", "properties" and "without_definition".
Json coverageJson(const PropertySetCheck& check);
/// The first of them: "4 of 12 sets and 15 of 45 properties and quantities checked".
std::string coverageText(const PropertySetCheck& check);

/// Names without a definition and how often each occurs, most frequent first, those behind the first `most` as a
/// number: "BaseQuantities (4), Pset_BuildingCommon, 3 others".
std::string undefinedText(const PropertySetCheck& check, std::size_t most);

} // namespace velkor::host
