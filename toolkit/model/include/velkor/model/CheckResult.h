/// What checks of a model are asked for and answer.
///
///     const CheckResult result = checkModel(*model, {1000, progress});
///     if (!result.isComplete) return;
///     show(result.problems, result.total);
#pragma once

#include "velkor/model/CodeFilter.h"
#include "velkor/model/Progress.h"
#include "velkor/sdai/Problem.h"
#include "velkor/ToolkitExport.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace velkor {

/// Of what is listed, unless told.
inline constexpr std::size_t defaultLimit = 100'000;

/// What every check is made with.
struct CheckOptions {
    /// How many findings are listed at most; all are counted.
    std::size_t limit = defaultLimit;
    Progress progress = {};
    /// Findings that it does not take are neither listed nor counted.
    CodeFilter codes = {};
};

struct VELKOR_TOOLKIT_API CheckResult {
    /// In file order, bounded by the limit asked for; `total` is the full count.
    std::vector<sdai::Problem> problems;
    std::uint64_t total = 0;
    /// False when the caller has ended the check before its end.
    bool isComplete = true;

    /// Puts more problems, `count` of them with those beyond the limit, in their places.
    void add(const std::vector<sdai::Problem>& more, std::uint64_t count, std::size_t limit);
};

} // namespace velkor
