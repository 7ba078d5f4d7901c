/// What `velkor report` tells about a model, as a page and as JSON.
#pragma once

#include "Json.h"
#include "report/ModelFacts.h"
#include "report/ProblemSummary.h"
#include "UnitReport.h"

#include <iosfwd>

namespace velkor::host {

struct Report {
    ModelFacts facts;
    UnitReport units;
    ProblemSummary problems;
};

void writeReportPage(std::ostream& out, bool color, const Report& report);

Json reportJson(const Report& report);

} // namespace velkor::host
