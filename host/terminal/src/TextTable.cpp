#include "terminal/TextTable.h"

#include "terminal/DisplayText.h"
#include "terminal/Page.h"
#include "velkor/text/Printable.h"

#include <algorithm>
#include <numeric>

namespace velkor::host {

namespace {

constexpr std::string_view gap = "  ";
constexpr std::size_t readable = 8;
/// Of a cell on a terminal: what is seen of it, as often as it has to be wrapped.
constexpr std::size_t mostColumns = 480;

std::size_t sum(const std::vector<std::size_t>& widths) {
    return std::accumulate(widths.begin(), widths.end(), std::size_t{0});
}

} // namespace

void TextTable::add(const std::vector<std::string_view>& cells) {
    std::vector<std::string>& row = _rows.emplace_back();
    for (const std::string_view cell : cells) row.push_back(text::printable(cell));
}

void TextTable::write(TextSink out, const std::string& indent) const {
    std::vector<std::size_t> widths;
    for (std::size_t i = 0; i < _columns.size(); ++i) {
        widths.push_back(displayWidth(_columns[i].heading));
        for (const auto& row : _rows) widths.back() = std::max(widths.back(), displayWidth(row[i]));
        widths.back() = std::min(widths.back(), widest);
    }
    const std::size_t taken = indent.size() + gap.size() * (widths.size() - 1);
    if (!fit(widths, out.width() - std::min(taken, out.width()))) return writeRecords(out, indent);

    std::vector<std::string> headings;
    for (const Column& column : _columns) headings.push_back(column.heading);
    writeRow(out, indent, headings, widths);
    for (const auto& row : _rows) writeRow(out, indent, row, widths);
}

// The widest columns give until all fit: first what leaves words whole, then down to what can still be read.
bool TextTable::fit(std::vector<std::size_t>& widths, std::size_t available) const {
    if (sum(widths) <= available) return true;
    std::vector<std::size_t> words, least;
    for (std::size_t i = 0; i < _columns.size(); ++i) {
        words.push_back(std::max<std::size_t>(1, widestWord(_columns[i].heading)));
        for (const auto& row : _rows) words.back() = std::max(words.back(), widestWord(row[i]));
        // A number that is cut is another one.
        if (_columns[i].alignment == Right) words.back() = widths[i];
        least.push_back(_columns[i].alignment == Right ? widths[i] : std::min(words.back(), readable));
    }
    if (sum(least) > available) return false;
    const std::vector<std::size_t>& floor = sum(words) <= available ? words : least;
    for (std::size_t over = sum(widths) - available; over > 0; --over) {
        std::size_t giving = widths.size();
        for (std::size_t i = 0; i < widths.size(); ++i)
            if (widths[i] > floor[i] && (giving == widths.size() || widths[i] > widths[giving])) giving = i;
        --widths[giving];
    }
    return true;
}

void TextTable::writeRow(TextSink out, const std::string& indent, const std::vector<std::string>& cells,
                         const std::vector<std::size_t>& widths) const {
    std::vector<std::vector<std::string>> lines;
    std::size_t height = 1;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const bool fits = !out.isTerminal() || displayWidth(cells[i]) <= widths[i];
        lines.push_back(fits ? std::vector{cells[i]} : cellLines(cells[i], widths[i], mostColumns / widths[i]));
        height = std::max(height, lines.back().size());
    }
    for (std::size_t k = 0; k < height; ++k) {
        std::string line = indent;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const std::string cell = k < lines[i].size() ? lines[i][k] : std::string();
            if (i > 0) line += gap;
            line += _columns[i].alignment == Right ? rightAligned(cell, widths[i]) : padded(cell, widths[i]);
        }
        out << line.erase(line.find_last_not_of(' ') + 1) << '\n';
    }
}

// Where no columns fit side by side they stand below each other, with their headings.
void TextTable::writeRecords(TextSink out, const std::string& indent) const {
    for (std::size_t k = 0; k < _rows.size(); ++k) {
        if (k > 0) out << '\n';
        for (std::size_t i = 0; i < _columns.size(); ++i) {
            if (!_rows[k][i].empty()) out << indent << _columns[i].heading << ": " << _rows[k][i] << '\n';
        }
    }
}

} // namespace velkor::host
