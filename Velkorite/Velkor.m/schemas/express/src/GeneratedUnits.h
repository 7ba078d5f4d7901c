/// Source units that a generator writes, and the comparison of them with what stands in a folder.
#pragma once

#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::express {

struct GeneratedUnit {
    std::string fileName;
    std::string text;
};

/// Where the files of a folder are other than the units, a line for each file: its name, the first line that
/// differs, what it must be and what it is. Empty when all are the same.
std::vector<std::string> differences(const std::vector<GeneratedUnit>& units, const std::string& folder);

/// Writes the units that are not in the folder yet and gives their names.
[[nodiscard]] tl::expected<std::vector<std::string>, std::string> writeUnits(const std::vector<GeneratedUnit>& units,
                                                                             const std::string& folder);

/// What the program of a generator does with its units and tells on standard output and standard error: writes those
/// that are not in the folder yet, or compares. The status is 0, 1 when a comparison finds a difference, or 3 when a
/// unit cannot be written.
int finish(const std::string& program, const std::vector<GeneratedUnit>& units, const std::string& folder,
           bool isComparison);

} // namespace velkor::express
