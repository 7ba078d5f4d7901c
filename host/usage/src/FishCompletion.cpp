#include "CompletionText.h"
#include "usage/UsageFiles.h"
#include "velkor/text/Wording.h"

namespace velkor::host {

namespace {

std::string quotedForFish(std::string_view text) {
    return '\'' + withBackslashes(text, "\\'") + '\'';
}

void writeCommand(std::string& script, const CommandDescription& command) {
    const std::string start = "complete -c velkor -n '__velkor_at " + command.name + "' ";
    for (const CommandDescription& below : command.commands) {
        // After "help" the names of commands stand as they do before it.
        script += "complete -c velkor -n '__velkor_names " + command.name + "' -a " + below.word() + " -d " +
                  quotedForFish(below.meaning) + '\n';
    }
    for (const OptionDescription& option : command.options) {
        if (option.isPositional) {
            if (option.isPath()) script += start + "-F\n";
            continue;
        }
        script += start;
        for (const std::string& name : option.names)
            script += name.starts_with("--") ? "-l " + name.substr(2) + ' ' : "-s " + name.substr(1) + ' ';
        if (option.takesValue()) script += option.isPath() ? "-r -F " : "-x ";
        if (!option.values.empty()) {
            const std::string words = text::joined(option.values, " ");
            script += "-a " + (option.isList ? "'(__fish_append , " + words + ")'" : quotedForFish(words)) + ' ';
        }
        script += "-d " + quotedForFish(option.meaning) + '\n';
    }
}

} // namespace

std::string fishCompletion(const CommandDescription& program) {
    std::vector<std::string> names;
    forEachCommand(program, [&](const CommandDescription& command) { names.push_back('\'' + command.name + '\''); });
    std::string script = "# fish completion for velkor\n"
                         "# The command that the words before the cursor name; with an argument, those of \"help\".\n"
                         "function __velkor_command\n"
                         "  set -l words (commandline -opc)[2..-1]\n"
                         "  if set -q argv[1]; and test \"$words[1]\" = help\n"
                         "    set words $words[2..-1]\n"
                         "  end\n"
                         "  set -l command velkor\n"
                         "  for word in $words\n"
                         "    if contains -- \"$command $word\" " +
                         text::joined(names, " ") +
                         "\n      set command \"$command $word\"\n    end\n  end\n"
                         "  echo $command\nend\n"
                         "function __velkor_at\n  test (__velkor_command) = \"$argv\"\nend\n"
                         "function __velkor_names\n  test (__velkor_command help) = \"$argv\"\nend\n"
                         "complete -c velkor -f\n";
    forEachCommand(program, [&](const CommandDescription& command) { writeCommand(script, command); });
    return script;
}

} // namespace velkor::host
