/// The published definitions of a release as the table that the project keeps.
#pragma once

#include "velkor/propertysets/DefinitionTable.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::setgen {

/// Every file of a folder is a set of the table, or refused with a reason. The error says why the folder or a file
/// cannot be read.
tl::expected<DefinitionTable, std::string> tableOf(const std::filesystem::path& folder, std::string_view release);

} // namespace velkor::setgen
