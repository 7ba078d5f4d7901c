#include "Html.h"

#include "velkor/text/Printable.h"
#include "velkor/text/Unicode.h"

#include <string>

namespace velkor::host {

namespace {

constexpr std::size_t longestText = 1000;

// What a character of printable text is written as.
std::string_view written(std::string_view character, std::int32_t code) {
    switch (code) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    case 0xFFFE:
    case 0xFFFF:
        return "\uFFFD";
    default:
        return code < 0 ? "\uFFFD" : character;
    }
}

} // namespace

void Html::write(std::string_view text) const {
    const std::string clean = text::excerpt(text, longestText);
    std::string result;
    for (std::string_view rest = clean; !rest.empty();) {
        std::int32_t code = 0;
        const std::string_view character = rest.substr(0, text::decode(rest, code));
        result += written(character, code);
        rest.remove_prefix(character.size());
    }
    _out << result;
}

} // namespace velkor::host
