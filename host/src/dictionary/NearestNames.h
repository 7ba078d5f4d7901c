/// Suggestions for a name that a schema does not know.
#pragma once

#include "sdai/Dictionary.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

/// Up to `most` entities whose names are likely meant, the likeliest first: few letters differ,
/// or the name is a part of theirs. Letter case and a missing "IFC" do not count.
std::vector<std::string> nearestEntities(const sdai::SchemaDefinition& schema, std::string_view name,
                                         std::size_t most = 5);

} // namespace velkor::host
