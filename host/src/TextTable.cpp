#include "TextTable.h"

#include <algorithm>
#include <ostream>

namespace velkor::host {

namespace {

// Characters, not bytes: bytes that continue a character take no room.
std::size_t width(const std::string& text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

} // namespace

void TextTable::write(std::ostream& out, const std::string& indent) const {
    std::vector<std::string> headings;
    std::vector<std::size_t> widths;
    for (std::size_t i = 0; i < _columns.size(); ++i) {
        headings.push_back(_columns[i].heading);
        widths.push_back(width(_columns[i].heading));
        for (const auto& row : _rows) widths.back() = std::max(widths.back(), width(row[i]));
    }
    const auto writeRow = [&](const std::vector<std::string>& cells) {
        std::string line = indent;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const std::string padding(widths[i] - width(cells[i]), ' ');
            if (i > 0) line += "  ";
            line += _columns[i].alignment == Right ? padding + cells[i] : cells[i] + padding;
        }
        out << line.erase(line.find_last_not_of(' ') + 1) << '\n';
    };
    writeRow(headings);
    for (const auto& row : _rows) writeRow(row);
}

} // namespace velkor::host
