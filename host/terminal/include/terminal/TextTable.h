/// A table for people: columns as wide as their widest cell, up to `widest`; two blanks between them. A cell that is
/// wider stands out of its column; on a terminal it is wrapped or cut, as all are in the columns that give where the
/// table is too wide.
///
///     TextTable table({{"name"}, {"count", TextTable::Right}});
///     table.add({"IFCWALL", "12"});
///     table.write(out);
#pragma once

#include "terminal/TextSink.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

class TextTable {
public:
    /// Of a column.
    static constexpr std::size_t widest = 120;
    enum Alignment { Left, Right };
    struct Column {
        std::string heading;
        Alignment alignment = Left;
    };

    explicit TextTable(std::vector<Column> columns) : _columns(std::move(columns)) {}
    /// One cell of any text per column.
    void add(const std::vector<std::string_view>& cells);
    bool empty() const noexcept { return _rows.empty(); }
    /// Headings and rows, each line begun with `indent` and ended without blanks.
    void write(TextSink out, const std::string& indent = {}) const;

private:
    bool fit(std::vector<std::size_t>& widths, std::size_t available) const;
    void writeRow(TextSink out, const std::string& indent, const std::vector<std::string>& cells,
                  const std::vector<std::size_t>& widths) const;
    void writeRecords(TextSink out, const std::string& indent) const;

    std::vector<Column> _columns;
    std::vector<std::vector<std::string>> _rows;
};

} // namespace velkor::host
