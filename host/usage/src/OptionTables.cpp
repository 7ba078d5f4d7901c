#include "usage/UsageFiles.h"
#include "velkor/text/Wording.h"

#include <string_view>

namespace velkor::host {

namespace {

constexpr std::string_view helpOption = "--help";

// What Markdown would take for its own, in a cell of a table.
std::string cell(std::string_view text) {
    std::string result;
    for (const char character : text) {
        if (std::string_view("|<*[").find(character) != std::string_view::npos) result += '\\';
        result += character;
    }
    return result;
}

std::string code(std::string_view text) {
    std::string result = "`";
    for (const char character : text) {
        if (character == '|') result += '\\';
        result += character;
    }
    return result += '`';
}

std::string written(const OptionDescription& option) {
    std::string result = text::joined(option.names, ", ");
    if (!option.valueName.empty()) result.append(" ").append(option.valueName);
    // Of what stands for a value, some say themselves that there may be several.
    const bool saysItself = option.valueName.find(" ") != std::string::npos || option.valueName.ends_with("…");
    if (option.isRepeated && !saysItself) result += " …";
    return result;
}

// Values that an option before has as well are not told again.
std::string valuesOf(const OptionDescription& option, const CommandDescription& command) {
    if (option.values.empty() || option.valueName.find('|') != std::string::npos) return {};
    for (const OptionDescription& other : command.options) {
        if (&other == &option) break;
        if (other.values == option.values) return "; the words of " + code(other.names.back());
    }
    return ": " + text::joined(option.values, ", ", code);
}

std::string row(const OptionDescription& option, const CommandDescription& command) {
    std::string meaning = cell(option.meaning) + valuesOf(option, command);
    if (option.isRequired) meaning += "; required";
    return "| " + code(written(option)) + " | " + meaning + " |\n";
}

} // namespace

std::string optionTables(const CommandDescription& program) {
    std::string page;
    forEachCommand(program, [&](const CommandDescription& command) {
        page.append("## ").append(command.name).append("\n\n").append(cell(command.meaning)).append("\n");
        bool isFirst = true;
        for (const OptionDescription& option : command.options) {
            if (option.names.back() == helpOption) continue;
            if (isFirst) page += "\n| option | means |\n| --- | --- |\n";
            isFirst = false;
            page += row(option, command);
        }
        page += '\n';
    });
    return page;
}

} // namespace velkor::host
