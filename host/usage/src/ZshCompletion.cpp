#include "CompletionText.h"
#include "usage/UsageFiles.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::host {

namespace {

// Within apostrophes an apostrophe ends them, stands behind a backslash, and begins them again.
std::string quotedForZsh(std::string_view text) {
    std::string result = "'";
    for (const char character : text) {
        if (character == '\'')
            result += "'\\''";
        else
            result += character;
    }
    return result + '\'';
}

std::string functionName(const CommandDescription& command) {
    std::string name = '_' + command.name;
    std::ranges::replace(name, ' ', '_');
    return name;
}

std::string action(const OptionDescription& option) {
    const std::string words = text::joined(option.values, " ");
    if (option.isList) return "_values -s , value " + words;
    if (!option.values.empty()) return '(' + words + ')';
    return option.isPath() ? "_files" : " ";
}

void writeOption(std::string& script, const OptionDescription& option) {
    const std::string meaning = '[' + withBackslashes(option.meaning, "\\[]:") + ']';
    for (const std::string& name : option.names) {
        // All names of one option exclude each other, unless it may be given several times.
        std::string entry = option.isRepeated ? "*" : '(' + text::joined(option.names, " ") + ')';
        entry += name;
        if (option.takesValue()) entry += name.starts_with("--") ? "=" : "+";
        entry += meaning;
        if (option.takesValue()) entry += ':' + withBackslashes(option.valueName, ":") + ':' + action(option);
        script += " \\\n    " + quotedForZsh(entry);
    }
}

void writeCommand(std::string& script, const CommandDescription& command) {
    script += functionName(command) + "() {\n";
    if (!command.commands.empty()) script += "  local curcontext=$curcontext state line\n  typeset -A opt_args\n";
    script += "  _arguments -s";
    if (!command.commands.empty()) script += " -C";
    for (const OptionDescription& option : command.options) {
        if (!option.isPositional) {
            writeOption(script, option);
            continue;
        }
        script += std::string(" \\\n    '") + (option.isRepeated ? "*" : "") + ':' + option.names.front() + ':' +
                  (command.word() == "help" ? "_velkor_help_commands" : action(option)) + '\'';
    }
    if (command.commands.empty()) {
        script += "\n}\n";
        return;
    }
    script += " \\\n    '1: :->command' '*:: :->arguments'\n  case $state in\n    command)\n"
              "      local -a commands=(";
    for (const CommandDescription& below : command.commands)
        script += "\n        " + quotedForZsh(below.word() + ':' + withBackslashes(below.meaning, "\\:"));
    script += ")\n      _describe command commands ;;\n    arguments)\n      case $words[1] in\n";
    for (const CommandDescription& below : command.commands)
        script += "        " + below.word() + ") " + functionName(below) + " ;;\n";
    script += "      esac ;;\n  esac\n}\n";
}

// The words that may follow those of "help".
void writeHelpCommands(std::string& script, const CommandDescription& program) {
    script += "_velkor_help_commands() {\n  local -a commands\n  case \"${words[2,CURRENT-1]}\" in\n";
    forEachCommand(program, [&](const CommandDescription& command) {
        if (command.commands.empty()) return;
        const std::string path = command.name.substr(std::min(command.name.find(' ') + 1, command.name.size()));
        script += "    '" + (&command == &program ? "" : path) + "') commands=(" +
                  text::joined(command.commands, " ", [](const CommandDescription& below) { return below.word(); }) +
                  ") ;;\n";
    });
    script += "  esac\n  _describe command commands\n}\n";
}

} // namespace

std::string zshCompletion(const CommandDescription& program) {
    std::string script = "#compdef velkor\n# zsh completion for velkor\n";
    writeHelpCommands(script, program);
    forEachCommand(program, [&](const CommandDescription& command) { writeCommand(script, command); });
    return script + "if [ \"$funcstack[1]\" = _velkor ]; then\n  _velkor \"$@\"\nelse\n  compdef _velkor velkor\nfi\n";
}

} // namespace velkor::host
