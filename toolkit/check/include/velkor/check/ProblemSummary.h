/// Problems counted by kind.
///
///     const ProblemSummary summary = summarized(result.problems, result.total);
///     for (const auto& kind : summary.kinds) show(kind.count, kind.code, kind.first.line);
#pragma once

#include "velkor/sdai/Problem.h"
#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace velkor {

struct ProblemSummary {
    /// Problems of one code.
    struct Kind {
        std::string code;
        sdai::Severity severity;
        std::uint64_t count;
        /// The first in the file.
        sdai::Problem first;
    };

    /// Errors before warnings, the most frequent first.
    std::vector<Kind> kinds;
    /// Of the problems listed; `total` counts those beyond the limit of the check as well.
    std::uint64_t errors = 0;
    std::uint64_t warnings = 0;
    std::uint64_t total = 0;

    std::uint64_t listed() const noexcept { return errors + warnings; } ///< How many problems are listed.
};

/// "error" or "warning".
VELKOR_TOOLKIT_API const char* name(sdai::Severity severity);

/// `problems` in file order; `total` is how many there are with those that are not listed. One pass.
VELKOR_TOOLKIT_API ProblemSummary summarized(std::span<const sdai::Problem> problems, std::uint64_t total);

} // namespace velkor
