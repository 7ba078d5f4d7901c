/// A file that a command writes as a whole.
#pragma once

#include "CommandContext.h"

#include <string>
#include <string_view>

namespace velkor::host {

/// False after reporting why it cannot be written.
bool writeResultFile(CommandContext& context, const std::string& path, std::string_view text);

} // namespace velkor::host
