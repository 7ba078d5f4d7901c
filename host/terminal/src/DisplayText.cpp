#include "terminal/DisplayText.h"

#include "velkor/text/Printable.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <limits>
#include <utf8proc.h>

namespace velkor::host {

namespace {

constexpr std::string_view ellipsis = "…";
/// Marks without a width make a column long; it is cut off there.
constexpr std::size_t bytesPerColumn = 32;

// What a reader sees as one character: a base with its marks, a joined emoji.
struct Cluster {
    std::string_view text;
    std::size_t width;
};

// Takes the first one off a text that is not empty.
Cluster takeCluster(std::string_view& text) {
    utf8proc_int32_t previous = 0, state = 0;
    std::size_t end = 0, width = 0;
    while (end < text.size()) {
        std::int32_t character = 0;
        const std::size_t bytes = text::decode(text.substr(end), character);
        if (end > 0 && utf8proc_grapheme_break_stateful(previous, character, &state)) break;
        const int columns = character < 0 ? 1 : utf8proc_charwidth(character);
        width = std::max(width, static_cast<std::size_t>(std::max(columns, 0)));
        previous = character;
        end += bytes;
    }
    const Cluster cluster{text.substr(0, end), width};
    text.remove_prefix(end);
    return cluster;
}

std::vector<Cluster> clusters(std::string_view text) {
    std::vector<Cluster> result;
    while (!text.empty()) result.push_back(takeCluster(text));
    return result;
}

} // namespace

std::size_t displayWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) width += takeCluster(text).width;
    return width;
}

std::size_t takeCharacter(std::string_view& text) {
    return takeCluster(text).width;
}

std::string shortened(std::string_view text, std::size_t width) {
    const std::size_t most = (width + 1) * bytesPerColumn;
    const std::string clean = text::printable(text.substr(0, most));
    std::size_t columns = 0, end = 0;
    for (std::string_view rest = clean; !rest.empty() && columns <= width;) {
        columns += takeCluster(rest).width;
        // What stands before the mark, if there must be one.
        if (columns < width) end = clean.size() - rest.size();
    }
    return columns <= width && text.size() <= most ? clean : clean.substr(0, end).append(ellipsis);
}

std::string shortenedOn(TextSink out, std::string_view text, std::size_t width) {
    return out.isTerminal() ? shortened(text, width) : text::printable(text);
}

std::vector<std::string> wrapped(std::string_view text, std::size_t width, std::size_t maxLines) {
    constexpr auto nowhere = std::numeric_limits<std::size_t>::max();
    text = text.substr(0, text.find_last_not_of(' ') + 1);
    // A text of any length costs no more than what can be seen of it, with a blank at the end of each line.
    const std::string clean = maxLines >= text.size() ? text::printable(text) : shortened(text, (width + 1) * maxLines);
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
        if (!fits && blank == nowhere) {
            while (end < all.size() && !isBlank(end) && (end == begin || all[end].width < 2)) ++end;
        }
        lines.push_back(join(begin, end));
        begin = end;
    }
}

std::vector<std::string> cellLines(std::string_view text, std::size_t width, std::size_t maxLines) {
    std::string words;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        words += shortened(text.substr(0, end), width);
        text.remove_prefix(end);
        const std::size_t next = std::min(text.find_first_not_of(' '), text.size());
        words.append(next, ' ');
        text.remove_prefix(next);
    }
    return wrapped(words, width, maxLines);
}

std::size_t widestWord(std::string_view text) {
    std::size_t widest = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        widest = std::max(widest, displayWidth(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return widest;
}

} // namespace velkor::host
