/// What the definitions of property sets cover of a model, for people and as JSON.
#pragma once

#include "output/Json.h"
#include "velkor/propertysets/PropertySetCheck.h"

#include <string>
#include <vector>

namespace velkor::host {

/// One line per definition that cannot be read.
std::vector<std::string> unreadableDefinitions(const PropertySetCheck& check);

/// The counts: "sets", "properties" and "without_definition".
Json coverageJson(const PropertySetCheck& check);

/// Names without a definition and how often each occurs, most frequent first, those behind the first `most` as a
/// number: "BaseQuantities (4), Pset_BuildingCommon, 3 others".
std::string undefinedText(const PropertySetCheck& check, std::size_t most);

} // namespace velkor::host
