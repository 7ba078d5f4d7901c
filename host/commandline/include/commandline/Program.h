/// The words of a command line, parsed.
#pragma once

#include "commandline/Command.h"
#include "commandline/CommandDescription.h"
#include "terminal/TextSink.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velkor::host {

/// Of the program and all libraries.
extern const char* const programVersion;

/// What the program consists of: its commands, and its answer to --version in a format, "text" or "json".
struct ProgramParts {
    std::function<void(const Command&)> addCommands;
    std::function<std::string(const std::string& format)> version;
};

/// Parses the words, the program's name left out, and runs the command that they name. Gives the exit status where no
/// command ran: that of help and version, or of bad usage, after writing what is to be said.
std::optional<int> parse(std::vector<std::string> words, TextSink out, TextSink err, const ProgramParts& parts);

CommandDescription describeProgram(const ProgramParts& parts);

} // namespace velkor::host
