/// What completions of all shells are written with.
#pragma once

#include "commandline/CommandDescription.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

/// Of all options that begin with hyphens.
std::vector<std::string> optionNames(const CommandDescription& command);
/// A text with a backslash before each of some characters.
std::string withBackslashes(std::string_view text, std::string_view characters);

} // namespace velkor::host
