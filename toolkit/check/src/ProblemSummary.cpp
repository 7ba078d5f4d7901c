#include "velkor/check/ProblemSummary.h"

#include <algorithm>
#include <map>
#include <utility>

namespace velkor {

const char* name(sdai::Severity severity) {
    return severity == sdai::Severity::Error ? "error" : "warning";
}

ProblemSummary summarized(std::span<const sdai::Problem> problems, std::uint64_t total) {
    ProblemSummary summary;
    summary.total = total;
    std::map<std::pair<std::string_view, sdai::Severity>, std::size_t> places;
    for (const sdai::Problem& problem : problems) {
        ++(problem.severity == sdai::Severity::Error ? summary.errors : summary.warnings);
        const auto [place, isNew] = places.try_emplace({problem.code, problem.severity}, summary.kinds.size());
        if (isNew) summary.kinds.push_back({problem.code, problem.severity, 0, problem});
        ++summary.kinds[place->second].count;
    }
    std::ranges::stable_sort(summary.kinds, [](const auto& a, const auto& b) {
        return a.severity != b.severity ? a.severity == sdai::Severity::Error : a.count > b.count;
    });
    return summary;
}

} // namespace velkor
