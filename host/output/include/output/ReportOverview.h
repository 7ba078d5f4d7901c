/// One page for a browser about many models: a row for each, with a link to its own page.
#pragma once

#include "terminal/TextSink.h"
#include "velkor/check/ProblemSummary.h"

#include <cstdint>
#include <string>
#include <vector>

namespace velkor::host {

struct OverviewRow {
    /// What the model is called.
    std::string name;
    /// The file of its page beside the overview, of letters that a link needs not escape; empty without one, and
    /// `reason` says why.
    std::string page = {};
    std::string reason = {};
    std::string release = {};
    std::uint64_t bytes = 0;
    std::uint64_t instances = 0;
    /// Without the kinds.
    ProblemSummary problems = {};
    ProblemSummary setFindings = {};
};

void writeReportOverview(TextSink out, const std::vector<OverviewRow>& rows);

} // namespace velkor::host
