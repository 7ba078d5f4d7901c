#include "terminal/LineFitter.h"

#include "terminal/DisplayText.h"

#include <algorithm>
#include <charconv>
#include <ostream>
#include <sys/ioctl.h>

namespace velkor::host {

namespace {

/// Less would hold no word.
constexpr std::size_t leastWidth = 20, mostWidth = 10'000;
constexpr std::size_t furtherIn = 4;

// A colour, which takes no column.
std::size_t escapeLength(std::string_view text) {
    if (!text.starts_with('\033')) return 0;
    const std::size_t end = text.find('m');
    return end == std::string_view::npos ? text.size() : end + 1;
}

std::size_t visibleWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const std::size_t escape = escapeLength(text);
        const std::size_t end = std::min(text.find('\033', escape), text.size());
        width += displayWidth(text.substr(escape, end - escape));
        text.remove_prefix(end);
    }
    return width;
}

// Takes off what fits of a word that is too wide: to behind its last mark there, if it has one.
std::string_view takePart(std::string_view& word, std::size_t width) {
    constexpr std::string_view marks = "/\\,;:._-=()[]&";
    std::size_t end = 0, columns = 0, behindMark = 0;
    while (end < word.size()) {
        if (const std::size_t escape = escapeLength(word.substr(end)); escape > 0) {
            end += escape;
            continue;
        }
        std::string_view rest = word.substr(end);
        const std::size_t taken = takeCharacter(rest);
        if (columns + taken > width && end > 0) break;
        columns += taken;
        end = word.size() - rest.size();
        if (marks.find(word[end - 1]) != std::string_view::npos) behindMark = end;
    }
    if (end < word.size() && behindMark > 0) end = behindMark;
    const std::string_view part = word.substr(0, end);
    word.remove_prefix(end);
    return part;
}

// Where the lines below the first begin.
std::size_t hangingIndent(std::string_view line, std::size_t indent, std::size_t width) {
    const std::size_t gap = line.find("  ", indent);
    const std::size_t column = gap == std::string_view::npos ? gap : line.find_first_not_of(' ', gap);
    if (column != std::string_view::npos) {
        const std::size_t taken = visibleWidth(line.substr(0, column));
        if (taken <= width / 2) return taken;
    }
    // Text that stands in a column of its own stays there.
    return indent >= furtherIn && indent <= width / 2 ? indent : std::min(indent + furtherIn, width / 2);
}

} // namespace

std::vector<std::string> fittedLines(std::string_view line, std::size_t width) {
    if (line.size() <= width || visibleWidth(line) <= width) return {std::string(line)};
    const std::size_t indent = std::min(line.find_first_not_of(' '), line.size());
    const std::size_t hanging = hangingIndent(line, indent, width);

    std::vector<std::string> lines{std::string(std::min(indent, width / 2), ' ')};
    std::size_t taken = lines.back().size(), blanks = 0;
    bool isEmpty = true;
    const auto begin = [&] {
        lines.emplace_back(hanging, ' ');
        taken = hanging;
        blanks = 0;
        isEmpty = true;
    };
    for (std::string_view rest = line.substr(indent); !rest.empty();) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        std::string_view word = rest.substr(0, end);
        std::size_t wide = visibleWidth(word);
        if (!isEmpty && wide > 0 && taken + blanks + wide > width) begin();
        lines.back().append(blanks, ' ');
        taken += blanks;
        while (taken + wide > width) {
            lines.back() += takePart(word, width - taken);
            wide = visibleWidth(word);
            if (word.empty()) break;
            begin();
        }
        lines.back() += word;
        taken += wide;
        isEmpty = isEmpty && wide == 0;
        rest.remove_prefix(end);
        const std::size_t next = std::min(rest.find_first_not_of(' '), rest.size());
        blanks = isEmpty ? 0 : next;
        rest.remove_prefix(next);
    }
    return lines;
}

std::size_t terminalWidth(int descriptor, std::string_view columnsVariable) {
    std::size_t columns = 0;
    const char* last = columnsVariable.data() + columnsVariable.size();
    const auto [end, error] = std::from_chars(columnsVariable.data(), last, columns);
    if (error != std::errc() || end != last) columns = 0;
    winsize size{};
    if (columns == 0 && ioctl(descriptor, TIOCGWINSZ, &size) == 0) columns = size.ws_col;
    return columns == 0 ? LineFitter::usualWidth : std::clamp(columns, leastWidth, mostWidth);
}

void LineFitter::write(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        _line += text.substr(0, end);
        if (end == std::string_view::npos) return;
        for (const std::string& line : fittedLines(_line, _width)) *_stream << line << '\n';
        _line.clear();
        text.remove_prefix(end + 1);
    }
}

void LineFitter::flush() {
    *_stream << _line;
    _line.clear();
    _stream->flush();
}

} // namespace velkor::host
