// Any bytes as a model, judged by the rules of its release: whatever stands in it, all jobs come to the same findings,
// in file order, and none of them takes its time without bound.

#include "velkor/rules/RuleCheck.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool condition, const char* reason) {
    if (condition) return;
    std::fprintf(stderr, "%s\n", reason);
    std::abort();
}

bool isSame(const velkor::sdai::Problem& one, const velkor::sdai::Problem& other) {
    return one.offset == other.offset && one.instance == other.instance && one.code == other.code &&
           one.rule == other.rule && one.message == other.message;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t limit = 20;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto model = velkor::sdai::Model::fromText(text, "input");
    if (!model) return 0;
    velkor::RuleCheckOptions options;
    options.limit = limit;
    options.jobs = 1;
    const velkor::RuleCheckResult alone = velkor::checkRules(**model, options);
    require(alone.isComplete && alone.problems.size() == std::min<std::uint64_t>(alone.total, limit),
            "problems were lost");
    require(std::ranges::is_sorted(alone.problems, {}, &velkor::sdai::Problem::offset), "problems are out of order");
    options.jobs = 3;
    const velkor::RuleCheckResult shared = velkor::checkRules(**model, options);
    require(shared.total == alone.total && std::ranges::equal(shared.problems, alone.problems, isSame),
            "jobs have come to other findings");
    require(shared.coverage.judgements == alone.coverage.judgements &&
                shared.coverage.unknown == alone.coverage.unknown,
            "jobs have judged something else");
    return 0;
}
