#include "ProblemList.h"

#include "velkor/text/Printable.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::sdai::part21 {

void ProblemList::add(Severity severity, std::uint64_t offset, std::uint64_t instance, ProblemCode code,
                      std::string message) {
    if (_choice && !_choice(code.text())) return;
    ++_total;
    if (isFull()) return;
    _problems.push_back({severity, offset, 0, instance, std::string(code.text()), std::move(message)});
}

void ProblemList::finish(const LineTable& lines) {
    std::stable_sort(_problems.begin(), _problems.end(),
                     [](const Problem& left, const Problem& right) { return left.offset < right.offset; });
    for (Problem& problem : _problems) problem.line = lines.line(problem.offset);
}

std::string firstLine(std::string_view text, std::size_t longest) {
    const std::string_view line = text.substr(0, longest);
    return text::quoted(text::printableAscii(line.substr(0, line.find_first_of("\r\n"))));
}

} // namespace velkor::sdai::part21
