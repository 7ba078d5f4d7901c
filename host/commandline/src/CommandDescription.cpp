#include "commandline/CommandDescription.h"

#include "ValueWords.h"

#include <algorithm>
#include <array>
#include <CLI/CLI.hpp>
#include <sstream>

namespace velkor::host {

namespace {

std::vector<std::string> separated(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream rest(text);
    for (std::string part; std::getline(rest, part, separator);) parts.push_back(part);
    return parts;
}

// Those that the option checks for, or else those that stand for its value: "repair|from-plm ATTRIBUTE".
std::vector<std::string> valuesOf(CLI::Option& option) {
    try {
        return separated(option.get_validator(valueWords)->get_description(), ',');
    } catch (const CLI::OptionNotFound&) {
        if (option.get_option_text().find('|') == std::string::npos) return {};
        auto words = separated(option.get_option_text(), '|');
        for (std::string& word : words) word.resize(std::min(word.find(' '), word.size()));
        return words;
    }
}

OptionDescription describeOption(CLI::Option& option) {
    OptionDescription described;
    described.meaning = option.get_description();
    described.isPositional = !option.nonpositional();
    described.isRequired = option.get_required();
    described.isRepeated = option.get_expected_max() > 1;
    described.isList = option.get_delimiter() == ',';
    described.values = valuesOf(option);
    if (described.isPositional) {
        described.names = {option.get_name(true)};
        return described;
    }
    for (const std::string& name : option.get_snames()) described.names.push_back('-' + name);
    for (const std::string& name : option.get_lnames()) described.names.push_back("--" + name);
    const bool isFlag = option.get_items_expected_max() == 0;
    if (!isFlag) described.valueName = option.get_option_text().empty() ? "VALUE" : option.get_option_text();
    return described;
}

// The footer begins with "Example:" and the lines to type, as Command::example and the program write it.
void splitFooter(const std::string& footer, CommandDescription& described) {
    const std::string heading = "Example:\n";
    const std::size_t end = std::min(footer.find("\n\n"), footer.size());
    std::istringstream lines(footer.substr(std::min(heading.size(), footer.size()), end - heading.size()));
    for (std::string line; std::getline(lines, line);) {
        if (!described.example.empty()) described.example += '\n';
        described.example += line.substr(std::min(line.find_first_not_of(' '), line.size()));
    }
    if (end < footer.size()) described.remarks = footer.substr(end + 2);
}

void addContents(CLI::App& app, CommandDescription& described) {
    for (CLI::Option* option : app.get_options(std::function<bool(CLI::Option*)>{}))
        described.options.push_back(describeOption(*option));
    for (CLI::App* below : app.get_subcommands(std::function<bool(CLI::App*)>{})) {
        // A group of options has no name of its own.
        if (below->get_name().empty()) {
            addContents(*below, described);
            continue;
        }
        described.commands.push_back(describeCommand(*below));
    }
}

void prefixNames(CommandDescription& command, const std::string& prefix) {
    command.name.insert(0, prefix);
    for (CommandDescription& below : command.commands) prefixNames(below, prefix);
}

} // namespace

bool OptionDescription::isPath() const {
    const std::string& name = isPositional ? names.front() : valueName;
    return std::ranges::count(std::array<std::string_view, 3>{"FILE", "FOLDER", "MODEL"}, name) != 0;
}

CommandDescription describeCommand(CLI::App& app) {
    CommandDescription described;
    described.name = app.get_name();
    described.meaning = app.get_description();
    described.requiresCommand = app.get_require_subcommand_min() > 0;
    splitFooter(app.get_footer(), described);
    addContents(app, described);
    for (CommandDescription& below : described.commands) prefixNames(below, described.name + ' ');
    return described;
}

void forEachCommand(const CommandDescription& command, const std::function<void(const CommandDescription&)>& visit) {
    visit(command);
    for (const CommandDescription& below : command.commands) forEachCommand(below, visit);
}

} // namespace velkor::host
