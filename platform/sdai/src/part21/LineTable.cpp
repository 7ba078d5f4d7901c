#include "LineTable.h"

#include <algorithm>

namespace velkor::sdai::part21 {

namespace {

constexpr std::uint64_t blockBytes = std::uint64_t{8} * 1024;

/// Line ends among the characters from `first` up to `last`. A CR LF counts at its LF, so that
/// text between the two is still on the line that they end.
std::uint64_t countLineEnds(std::string_view text, std::uint64_t first, std::uint64_t last) noexcept {
    std::uint64_t count = 0;
    const char* next = text.data() + first + 1;
    const char* end = text.data() + text.size();
    for (const char* at = text.data() + first; at != text.data() + last; ++at, ++next) {
        count += *at == '\n' || (*at == '\r' && (next == end || *next != '\n'));
    }
    return count;
}

} // namespace

std::uint64_t LineTable::line(std::uint64_t offset) const {
    offset = std::min<std::uint64_t>(offset, _text.size());
    const std::uint64_t block = offset / blockBytes;
    while (_lineEnds.size() <= block) {
        const std::uint64_t first = (_lineEnds.size() - 1) * blockBytes;
        _lineEnds.push_back(_lineEnds.back() + countLineEnds(_text, first, first + blockBytes));
    }
    return 1 + _lineEnds[block] + countLineEnds(_text, block * blockBytes, offset);
}

} // namespace velkor::sdai::part21
