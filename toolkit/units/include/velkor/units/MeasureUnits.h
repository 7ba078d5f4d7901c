/// Which units the values of a measure type are in: ISO 16739 names the one after the other.
///
///     unitTypeOf("IFCLENGTHMEASURE")  // "LENGTHUNIT"
///     measureOf("LENGTHUNIT")         // "IFCLENGTHMEASURE"
#pragma once

#include "velkor/sdai/Dictionary.h"
#include "velkor/ToolkitExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor {

/// The unit type of a measure type, in upper case; empty for a name that is no measure's. What has no unit by its
/// nature, such as a ratio, gets a name that no release has among its unit types.
VELKOR_TOOLKIT_API std::string unitTypeOf(std::string_view measure);
/// The same of what the type is defined by: that of a positive length is "LENGTHUNIT". Empty for what has no unit in
/// the type's release.
VELKOR_TOOLKIT_API std::string unitTypeOf(const sdai::DefinedType& type);

/// The measure type of a unit type; empty for a name that is no unit type's.
VELKOR_TOOLKIT_API std::string measureOf(std::string_view unitType);

/// The unit types of a release, named ones first, then derived ones; "USERDEFINED" is in both.
VELKOR_TOOLKIT_API std::vector<std::string_view> unitTypes(const sdai::SchemaDefinition& schema);
/// Letter case ignored.
VELKOR_TOOLKIT_API bool isUnitType(const sdai::SchemaDefinition& schema, std::string_view name);

} // namespace velkor
