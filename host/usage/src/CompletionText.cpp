#include "CompletionText.h"

namespace velkor::host {

std::vector<std::string> optionNames(const CommandDescription& command) {
    std::vector<std::string> names;
    for (const OptionDescription& option : command.options) {
        if (!option.isPositional) names.insert(names.end(), option.names.begin(), option.names.end());
    }
    return names;
}

std::string withBackslashes(std::string_view text, std::string_view characters) {
    std::string result;
    for (const char character : text) {
        if (characters.find(character) != std::string_view::npos) result += '\\';
        result += character;
    }
    return result;
}

} // namespace velkor::host
