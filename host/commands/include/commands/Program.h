/// The program, as main and tests run it.
#pragma once

#include "CommandContext.h"
#include "commandline/CommandDescription.h"

#include <string>
#include <vector>

namespace velkor::host {

/// Runs the program over the words of a command line, its name left out: parses them, runs the
/// command, reports bad usage. Gives the exit status.
int run(std::vector<std::string> words, CommandContext& context);

/// The program's commands and options.
CommandDescription describeProgram();

} // namespace velkor::host
