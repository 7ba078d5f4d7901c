#include "terminal/TextTable.h"

#include "terminal/DisplayText.h"
#include "terminal/Page.h"

#include <algorithm>

namespace velkor::host {

void TextTable::add(const std::vector<std::string_view>& cells) {
    std::vector<std::string>& row = _rows.emplace_back();
    for (const std::string_view cell : cells) row.push_back(shortened(cell, widest));
}

void TextTable::write(TextSink out, const std::string& indent) const {
    std::vector<std::string> headings;
    std::vector<std::size_t> widths;
    for (std::size_t i = 0; i < _columns.size(); ++i) {
        headings.push_back(_columns[i].heading);
        widths.push_back(displayWidth(_columns[i].heading));
        for (const auto& row : _rows) widths.back() = std::max(widths.back(), displayWidth(row[i]));
    }
    const auto writeRow = [&](const std::vector<std::string>& cells) {
        std::string line = indent;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (i > 0) line += "  ";
            line += _columns[i].alignment == Right ? rightAligned(cells[i], widths[i]) : padded(cells[i], widths[i]);
        }
        out << line.erase(line.find_last_not_of(' ') + 1) << '\n';
    };
    writeRow(headings);
    for (const auto& row : _rows) writeRow(row);
}

} // namespace velkor::host
