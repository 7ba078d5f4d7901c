/// The document that the version mapping reads, made from two dictionaries or more.
///
///     std::ofstream(path) << versionMappingDocument({{ifc2x3.get(), ifc4.get()}, {ifc4.get(), ifc2x3.get()}});
#pragma once

#include "velkor/sdai/Dictionary.h"
#include "velkor/ToolkitExport.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor {

/// The release before, and the one behind.
using ReleasePair = std::pair<const sdai::SchemaDefinition*, const sdai::SchemaDefinition*>;

/// How the document names a release: "2x3"; empty for one that it has no name for.
VELKOR_TOOLKIT_API std::string_view mappingReleaseText(std::string_view schemaName);

/// One block per pair, from the first release to the second: mappings where a rename is known, deprecations of
/// what is gone, introductions of what is new. Attributes are listed for every entity that has them, inherited
/// ones too, since that is what is asked for. Both releases have a name.
VELKOR_TOOLKIT_API std::string versionMappingDocument(const std::vector<ReleasePair>& pairs);

} // namespace velkor
