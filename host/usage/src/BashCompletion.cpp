#include "CompletionText.h"
#include "usage/UsageFiles.h"
#include "velkor/text/Wording.h"

namespace velkor::host {

namespace {

// Finds the command that the words before the cursor name, then the option that waits for a value.
constexpr std::string_view beginning = R"(# bash completion for velkor
_velkor() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}
  local command=velkor words= values= isList= takesFiles= isHelp= at
  COMPREPLY=()
  # "--option=value" is three words.
  if [[ $current == = ]]; then
    current=
  elif [[ $previous == = && $COMP_CWORD -ge 2 ]]; then
    previous=${COMP_WORDS[COMP_CWORD-2]}
  fi
  for ((at = 1; at < COMP_CWORD; at++)); do
    if [[ $at -eq 1 && ${COMP_WORDS[at]} == help ]]; then
      isHelp=yes
      continue
    fi
    case "$command ${COMP_WORDS[at]}" in
)";

constexpr std::string_view ending = R"(  esac
  if [[ $isHelp && $current != -* ]]; then
    words=$commands takesFiles= values=
  elif [[ $isHelp ]]; then
    words='-h --help' values=
  elif [[ $values ]]; then
    words=$values takesFiles=
  elif [[ $isValue ]]; then
    words=
  elif [[ $current == -* ]]; then
    words=$options takesFiles=
  else
    words=$commands
  fi
  if [[ $isList ]]; then
    local last=${current##*,}
    mapfile -t COMPREPLY < <(compgen -P "${current%"$last"}" -W "$words" -- "$last")
  else
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  fi
  [[ $takesFiles ]] || compopt +o default 2>/dev/null
  return 0
}
complete -o default -F _velkor velkor
)";

void writeCommand(std::string& script, const CommandDescription& command) {
    script.append("    '").append(command.name).append("')\n      commands='");
    script += text::joined(command.commands, " ", [](const CommandDescription& below) { return below.word(); });
    script.append("'\n      options='").append(text::joined(optionNames(command), " ")).append("'\n");
    for (const OptionDescription& option : command.options) {
        if (option.isPositional && option.isPath()) script += "      takesFiles=yes\n";
    }
    script += "      case $previous in\n";
    for (const OptionDescription& option : command.options) {
        if (option.isPositional || !option.takesValue()) continue;
        script.append("        ").append(text::joined(option.names, "|")).append(") isValue=yes values='");
        script.append(text::joined(option.values, " ")).append("' takesFiles=").append(option.isPath() ? "yes" : "");
        script += option.isList ? " isList=yes ;;\n" : " ;;\n";
    }
    script += "      esac ;;\n";
}

} // namespace

std::string bashCompletion(const CommandDescription& program) {
    std::string script(beginning);
    std::vector<std::string> names;
    forEachCommand(program, [&](const CommandDescription& command) { names.push_back('\'' + command.name + '\''); });
    script.append("      ").append(text::joined(names, "|")).append(") command+=\" ${COMP_WORDS[at]}\" ;;\n");
    script += "    esac\n  done\n  local commands= options= isValue=\n  case $command in\n";
    forEachCommand(program, [&](const CommandDescription& command) { writeCommand(script, command); });
    return script.append(ending);
}

} // namespace velkor::host
