/// The release that a word of the command line names.
#pragma once

#include "CommandContext.h"

#include <string>

namespace velkor::host {

/// What the help says of such a word.
inline constexpr const char* releaseHelp =
    "Schema name; a name as files write it (IFC2X3_TC1) or a short form (2x3, 4, 4x3) is matched";

/// The name of the dictionary that is meant. Empty after saying what is known and setting the status BadUsage.
std::string releaseNamed(CommandContext& context, const std::string& word);

} // namespace velkor::host
