/// From EXPRESS sources to the source units of the dictionaries, and the comparison of both.
#pragma once

#include "Profile.h"

#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::dictgen {

struct GeneratedUnit {
    std::string fileName;
    std::string text;
};

/// The units of all releases, from the sources "SCHEMA.exp" in a folder. The error names file and line.
[[nodiscard]] tl::expected<std::vector<GeneratedUnit>, std::string> generate(const Profiles& profiles,
                                                                             const std::string& folder);

/// Where the files of a folder are other than the units, a line for each file: its name, the first line that
/// differs, what it must be and what it is. Empty when all are the same.
std::vector<std::string> differences(const std::vector<GeneratedUnit>& units, const std::string& folder);

/// Writes the units that are not in the folder yet and gives their names.
[[nodiscard]] tl::expected<std::vector<std::string>, std::string> writeUnits(const std::vector<GeneratedUnit>& units,
                                                                             const std::string& folder);

} // namespace velkor::dictgen
