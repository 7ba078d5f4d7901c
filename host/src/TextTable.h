/// A table for people: columns as wide as their widest cell, two blanks between them.
///
///     TextTable table({{"name"}, {"count", TextTable::Right}});
///     table.add({"IFCWALL", "12"});
///     table.write(out);
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace velkor::host {

class TextTable {
public:
    enum Alignment { Left, Right };
    struct Column {
        std::string heading;
        Alignment alignment = Left;
    };

    explicit TextTable(std::vector<Column> columns) : _columns(std::move(columns)) {}
    /// One cell of printable text per column.
    void add(std::vector<std::string> cells) { _rows.push_back(std::move(cells)); }
    bool empty() const noexcept { return _rows.empty(); }
    /// Headings and rows, each line begun with `indent` and ended without blanks.
    void write(std::ostream& out, const std::string& indent = {}) const;

private:
    std::vector<Column> _columns;
    std::vector<std::vector<std::string>> _rows;
};

} // namespace velkor::host
