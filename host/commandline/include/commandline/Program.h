/// The words of a command line, parsed.
#pragma once

#include "commandline/Command.h"
#include "terminal/TextSink.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velkor::host {

/// Parses the words, the program's name left out, after `describe` has added the commands, and runs the command that
/// they name. Gives the exit status where no command ran: that of help and version, or of bad usage, after writing
/// what is to be said.
std::optional<int> parse(std::vector<std::string> words, TextSink out, TextSink err,
                         const std::function<void(const Command&)>& describe);

} // namespace velkor::host
