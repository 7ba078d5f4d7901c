/// Collects what is wrong with an exchange structure, bounded in number.
#pragma once

#include "LineTable.h"
#include "velkor/sdai/Problem.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::sdai::part21 {

class ProblemList {
public:
    explicit ProblemList(std::size_t limit) noexcept : _limit(limit) {}

    /// Whether the next problem is kept; spares the making of its message.
    bool isFull() const noexcept { return _problems.size() >= _limit; }
    /// Counts a problem and keeps it while there is room. The code is a constant.
    void add(Severity severity, std::uint64_t offset, std::uint64_t instance, const char* code, std::string message);
    /// Puts the problems in file order and places each on its line.
    void finish(const LineTable& lines);

    std::uint64_t total() const noexcept { return _total; }
    std::vector<Problem>& problems() noexcept { return _problems; }
    const std::vector<Problem>& problems() const noexcept { return _problems; }

private:
    std::size_t _limit;
    std::uint64_t _total = 0;
    std::vector<Problem> _problems;
};

/// The beginning of a text for a message: in quotation marks, up to the end of its line.
std::string firstLine(std::string_view text, std::size_t longest);

} // namespace velkor::sdai::part21
