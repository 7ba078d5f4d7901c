#include "ProblemList.h"

#include <algorithm>

namespace velkor::sdai::part21 {

void ProblemList::add(Severity severity, std::uint64_t offset, std::uint64_t instance, const char* code,
                      std::string message) {
    ++_total;
    if (isFull()) return;
    _problems.push_back({severity, offset, 0, instance, code, std::move(message)});
}

void ProblemList::finish(const LineTable& lines) {
    std::stable_sort(_problems.begin(), _problems.end(),
                     [](const Problem& left, const Problem& right) { return left.offset < right.offset; });
    for (Problem& problem : _problems) problem.line = lines.line(problem.offset);
}

} // namespace velkor::sdai::part21
