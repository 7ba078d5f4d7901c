/// The option that bounds what is listed.
#pragma once

#include "commandline/Command.h"
#include "velkor/model/CheckResult.h"

namespace velkor::host {

/// Adds `--limit N`: that at most N of `what` are listed, `defaultLimit` unless told.
void addLimitOption(const Command& command, std::size_t& limit, const std::string& what);

} // namespace velkor::host
