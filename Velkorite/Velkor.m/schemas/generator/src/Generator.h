/// From EXPRESS sources to the source units of the dictionaries.
#pragma once

#include "GeneratedUnits.h"
#include "Profile.h"

#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::dictgen {

/// The units of all releases, from the sources "SCHEMA.exp" in a folder. The error names file and line.
[[nodiscard]] tl::expected<std::vector<express::GeneratedUnit>, std::string> generate(const Profiles& profiles,
                                                                                      const std::string& folder);

} // namespace velkor::dictgen
