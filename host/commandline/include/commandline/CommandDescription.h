/// The commands and options as plain data, read from the command line that the parser knows. Man pages and completions
/// are written from it, so that they say what the help says.
#pragma once

#include "commandline/Command.h"

#include <functional>
#include <string>
#include <vector>

namespace velkor::host {

struct OptionDescription {
    /// With their hyphens, "-o" and "--output"; for a word by its position what stands for it, "MODEL".
    std::vector<std::string> names;
    /// What stands for the value, "FILE"; empty for a flag and for a word by its position.
    std::string valueName;
    std::string meaning;
    /// The values there are, when these are few words; empty when any may do.
    std::vector<std::string> values;
    bool isPositional = false;
    bool isRequired = false;
    /// Several values are taken.
    bool isRepeated = false;
    /// Values stand behind one another, separated by commas.
    bool isList = false;

    bool takesValue() const { return isPositional || !valueName.empty(); }
    /// True when the value is a file or a folder.
    bool isPath() const;
};

struct CommandDescription {
    /// With those of the commands above: "velkor guid check".
    std::string name;
    std::string meaning;
    /// Lines to type.
    std::string example;
    /// What more is to be said, paragraphs with an empty line between them.
    std::string remarks;
    bool requiresCommand = false;
    std::vector<OptionDescription> options;
    std::vector<CommandDescription> commands;

    /// The last word of the name.
    std::string word() const { return name.substr(name.rfind(' ') + 1); }
};

CommandDescription describeCommand(CLI::App& app);

/// Calls `visit` with the command and all below it, each before those below it.
void forEachCommand(const CommandDescription& command, const std::function<void(const CommandDescription&)>& visit);

} // namespace velkor::host
