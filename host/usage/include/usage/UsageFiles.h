/// Man pages, completions and tables of options, written from the commands as the parser knows them.
#pragma once

#include "commandline/CommandDescription.h"

#include <string>

namespace velkor::host {

/// Manual page of a command in section 1, in the man macros of roff. All characters are ASCII.
std::string manPage(const CommandDescription& command, const CommandDescription& program, const std::string& version);
/// Name of its file: "velkor-guid-check.1".
std::string manPageName(const CommandDescription& command);

std::string bashCompletion(const CommandDescription& program);
std::string zshCompletion(const CommandDescription& program);
std::string fishCompletion(const CommandDescription& program);

/// A section for each command with its options as a table, in Markdown. The option that prints help is left out.
std::string optionTables(const CommandDescription& program);

} // namespace velkor::host
