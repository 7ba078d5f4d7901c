/// Line numbers of a text whose lines end with CR, LF or both.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace velkor::sdai::part21 {

class LineTable {
public:
    explicit LineTable(std::string_view text) : _text(text) {}

    /// Line of a byte position, counted from 1. The first call reads the text once up to the
    /// position; later calls read at most one block.
    std::uint64_t line(std::uint64_t offset) const;
    std::size_t memoryUse() const noexcept { return _lineEnds.capacity() * sizeof(_lineEnds[0]); }

private:
    std::string_view _text;
    /// Line ends before each block of the text, as far as they were asked for.
    mutable std::vector<std::uint64_t> _lineEnds{0};
};

} // namespace velkor::sdai::part21
