/// Collects what is wrong with an exchange structure, bounded in number.
#pragma once

#include "LineTable.h"
#include "velkor/sdai/Problem.h"
#include "velkor/sdai/ProblemCode.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::sdai::part21 {

class ProblemList {
public:
    explicit ProblemList(std::size_t limit, CodeChoice choice = {}) : _limit(limit), _choice(std::move(choice)) {}

    /// Whether the next problem is kept; spares the making of its message.
    bool isFull() const noexcept { return _problems.size() >= _limit; }
    /// Counts a problem that is wanted, and keeps it while there is room.
    void add(Severity severity, std::uint64_t offset, std::uint64_t instance, ProblemCode code, std::string message);
    /// Puts the problems in file order and places each on its line.
    void finish(const LineTable& lines);

    std::uint64_t total() const noexcept { return _total; }
    std::vector<Problem>& problems() noexcept { return _problems; }
    const std::vector<Problem>& problems() const noexcept { return _problems; }

private:
    std::size_t _limit;
    CodeChoice _choice;
    std::uint64_t _total = 0;
    std::vector<Problem> _problems;
};

/// The beginning of a text for a message: in quotation marks, up to the end of its line.
std::string firstLine(std::string_view text, std::size_t longest);

} // namespace velkor::sdai::part21
