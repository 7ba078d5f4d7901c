#include "velkor/model/CheckResult.h"

#include <algorithm>

namespace velkor {

void CheckResult::add(const std::vector<sdai::Problem>& more, std::uint64_t count, std::size_t limit) {
    total += count;
    const auto middle = problems.insert(problems.end(), more.begin(), more.end());
    std::ranges::inplace_merge(problems, middle, {}, &sdai::Problem::offset);
    if (problems.size() > limit) problems.resize(limit);
}

} // namespace velkor
