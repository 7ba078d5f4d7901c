#include "usage/UsageFiles.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string_view>
#include <utf8proc.h>

namespace velkor::host {

namespace {

std::string escaped(std::string_view text) {
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        utf8proc_int32_t character = 0;
        const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data() + at),
                                             static_cast<utf8proc_ssize_t>(text.size() - at), &character);
        if (length <= 0) break;
        at += static_cast<std::size_t>(length);
        if (character >= 0x80) {
            std::array<char, 16> name{};
            std::snprintf(name.data(), name.size(), "\\[u%04X]", static_cast<unsigned>(character));
            result += name.data();
        } else if (character == '\\') {
            result += "\\e";
        } else if (character == '-') {
            result += "\\-";
        } else if (character == '"') {
            result += "\\(dq";
        } else if (character == '\'') {
            result += "\\(aq";
        } else {
            result += static_cast<char>(character);
        }
    }
    return result;
}

// A line of its own: one that begins with a dot is no request.
std::string line(std::string_view text) {
    return (text.starts_with('.') ? "\\&" : "") + escaped(text) + '\n';
}

std::string styled(const char* font, std::string_view text) {
    return std::string("\\f").append(font).append(escaped(text)).append("\\fR");
}

std::string bold(std::string_view text) {
    return styled("B", text);
}

std::string italic(std::string_view text) {
    return styled("I", text);
}

std::string positional(const OptionDescription& option) {
    std::string name = italic(option.names.front());
    if (option.isRepeated) name += " ...";
    return option.isRequired ? name : '[' + name + ']';
}

std::string synopsis(const CommandDescription& command) {
    std::string text = bold(command.name) + " [" + italic("OPTIONS") + ']';
    for (const OptionDescription& option : command.options) {
        if (option.isPositional) text += ' ' + positional(option);
    }
    if (!command.commands.empty()) text += ' ' + italic("COMMAND") + " ...";
    return text + '\n';
}

void writeOptions(std::string& page, const char* heading, const CommandDescription& command, bool positionals) {
    bool isFirst = true;
    for (const OptionDescription& option : command.options) {
        if (option.isPositional != positionals) continue;
        if (isFirst) page.append(".SH ").append(heading).append("\n");
        isFirst = false;
        page += ".TP\n";
        page += option.isPositional ? italic(option.names.front()) : text::joined(option.names, ", ", bold);
        if (!option.valueName.empty()) page += ' ' + italic(option.valueName);
        page += '\n' + line(option.meaning);
        if (!option.values.empty() && option.valueName.find('|') == std::string::npos)
            page += ".br\n" + line("Values: " + text::joined(option.values) + '.');
        if (option.isRequired && !option.isPositional) page += ".br\nRequired.\n";
    }
}

std::string reference(const CommandDescription& command) {
    std::string name = manPageName(command);
    name.resize(name.rfind('.'));
    return ".BR " + escaped(name) + " (1)";
}

void writeCommands(std::string& page, const CommandDescription& command) {
    if (command.commands.empty()) return;
    page += ".SH COMMANDS\n";
    for (const CommandDescription& below : command.commands)
        page += ".TP\n" + bold(below.word()) + '\n' + line(below.meaning) + ".br\nSee\n" + reference(below) + ".\n";
}

// Paragraphs; lines that are indented stay as they are.
void writeRemarks(std::string& page, const std::string& remarks) {
    if (remarks.empty()) return;
    page += ".SH NOTES\n";
    std::istringstream lines(remarks);
    bool isLiteral = false;
    for (std::string text; std::getline(lines, text);) {
        if (text.starts_with(' ') != isLiteral) page += isLiteral ? ".EE\n" : ".EX\n";
        isLiteral = text.starts_with(' ');
        page += text.empty() ? ".PP\n" : line(text);
    }
    if (isLiteral) page += ".EE\n";
}

void writeReferences(std::string& page, const CommandDescription& command, const CommandDescription& program) {
    std::vector<std::string> others;
    forEachCommand(program, [&](const CommandDescription& other) {
        const bool isAbove = command.name.starts_with(other.name + ' ');
        const bool isRightBelow = other.name.starts_with(command.name + ' ') &&
                                  other.name.find(' ', command.name.size() + 1) == std::string::npos;
        if (isAbove || isRightBelow) others.push_back(reference(other));
    });
    if (!others.empty()) page += ".SH SEE ALSO\n" + text::joined(others, " ,\n") + '\n';
}

} // namespace

std::string manPageName(const CommandDescription& command) {
    std::string name = command.name;
    std::ranges::replace(name, ' ', '-');
    return name + ".1";
}

std::string manPage(const CommandDescription& command, const CommandDescription& program, const std::string& version) {
    std::string name = manPageName(command);
    name.resize(name.rfind('.'));
    std::string heading = name;
    std::ranges::transform(heading, heading.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    std::string page = ".TH " + escaped(heading) + " 1 \"\" \"Velkor " + version + "\" \"Velkor\"\n";
    page += ".SH NAME\n" + escaped(name) + " \\- " + line(command.meaning) + ".SH SYNOPSIS\n" + synopsis(command);
    writeCommands(page, command);
    writeOptions(page, "ARGUMENTS", command, true);
    writeOptions(page, "OPTIONS", command, false);
    if (!command.example.empty()) {
        page += ".SH EXAMPLE\n.EX\n";
        std::istringstream lines(command.example);
        for (std::string text; std::getline(lines, text);) page += line(text);
        page += ".EE\n";
    }
    writeRemarks(page, command.remarks);
    writeReferences(page, command, program);
    return page;
}

} // namespace velkor::host
