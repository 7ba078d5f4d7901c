#include "DisplayText.h"

#include <algorithm>
#include <limits>
#include <utf8proc.h>

namespace velkor::host {

namespace {

constexpr std::string_view replacement = "\uFFFD";
constexpr std::string_view ellipsis = "…";

// Embeddings, overrides and isolates: they reorder what stands behind them on the page.
bool turnsDirection(utf8proc_int32_t character) {
    return (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
}

bool isControl(utf8proc_int32_t character) {
    const auto category = utf8proc_category(character);
    return category == UTF8PROC_CATEGORY_CC || category == UTF8PROC_CATEGORY_ZL || category == UTF8PROC_CATEGORY_ZP;
}

struct Character {
    utf8proc_int32_t value;
    std::size_t bytes;
};

// Value -1 for a byte that is not UTF-8.
Character firstCharacter(std::string_view text) {
    utf8proc_int32_t value = -1;
    const auto bytes = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                        static_cast<utf8proc_ssize_t>(text.size()), &value);
    return bytes > 0 ? Character{value, static_cast<std::size_t>(bytes)} : Character{-1, 1};
}

// What a reader sees as one character: a base with its marks, a joined emoji.
struct Cluster {
    std::string_view text;
    std::size_t width;
};

std::vector<Cluster> clusters(std::string_view text) {
    std::vector<Cluster> result;
    utf8proc_int32_t previous = 0, state = 0;
    std::size_t begin = 0, width = 0;
    for (std::size_t position = 0; position < text.size();) {
        const Character character = firstCharacter(text.substr(position));
        if (position > begin && utf8proc_grapheme_break_stateful(previous, character.value, &state)) {
            result.push_back({text.substr(begin, position - begin), width});
            begin = position;
            width = 0;
        }
        const int columns = character.value < 0 ? 1 : utf8proc_charwidth(character.value);
        width = std::max(width, static_cast<std::size_t>(std::max(columns, 0)));
        previous = character.value;
        position += character.bytes;
    }
    if (begin < text.size()) result.push_back({text.substr(begin), width});
    return result;
}

} // namespace

std::string printable(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Character character = firstCharacter(text);
        if (character.value == '\n' || character.value == '\r' || character.value == '\t')
            result += ' ';
        else if (character.value < 0 || isControl(character.value) || turnsDirection(character.value))
            result += replacement;
        else
            result += text.substr(0, character.bytes);
        text.remove_prefix(character.bytes);
    }
    return result;
}

std::size_t displayWidth(std::string_view text) {
    std::size_t width = 0;
    for (const Cluster& cluster : clusters(text)) width += cluster.width;
    return width;
}

std::vector<std::string> wrapped(std::string_view text, std::size_t width, std::size_t maxLines) {
    constexpr auto nowhere = std::numeric_limits<std::size_t>::max();
    // A text of any length costs no more than what can be seen of it.
    constexpr std::size_t bytesPerColumn = 32;
    const std::string clean = printable(text.substr(0, (width * maxLines + 1) * bytesPerColumn));
    const std::vector<Cluster> all = clusters(clean);
    const auto isBlank = [&](std::size_t i) { return all[i].text == " "; };
    const auto join = [&](std::size_t begin, std::size_t end) {
        while (end > begin && isBlank(end - 1)) --end;
        std::string line;
        for (; begin < end; ++begin) line += all[begin].text;
        return line;
    };

    std::vector<std::string> lines;
    std::size_t begin = 0;
    while (true) {
        while (begin < all.size() && isBlank(begin)) ++begin;
        if (begin == all.size() || lines.size() == maxLines) return lines;

        std::size_t end = begin, columns = 0, blank = nowhere;
        for (; end < all.size() && columns + all[end].width <= width; ++end) {
            if (isBlank(end)) blank = end;
            columns += all[end].width;
        }
        const bool fits = join(end, all.size()).empty();
        if (!fits && lines.size() + 1 == maxLines) {
            while (end > begin && columns + 1 > width) columns -= all[--end].width;
            lines.push_back(join(begin, end).append(ellipsis));
            return lines;
        }
        if (!fits && !isBlank(end) && blank != nowhere) end = blank;
        end = std::max(end, begin + 1);
        lines.push_back(join(begin, end));
        begin = end;
    }
}

std::string grouped(std::uint64_t number) {
    std::string digits = std::to_string(number);
    for (auto position = static_cast<int>(digits.size()) - 3; position > 0; position -= 3) {
        digits.insert(static_cast<std::size_t>(position), 1, ',');
    }
    return digits;
}

std::string counted(std::uint64_t number, std::string_view singular, std::string_view plural) {
    return grouped(number).append(" ").append(number == 1 ? singular : plural);
}

} // namespace velkor::host
