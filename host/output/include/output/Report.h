/// What `velkor report` tells about a model, as a page, as HTML and as JSON.
#pragma once

#include "output/Json.h"
#include "velkor/check/ProblemSummary.h"
#include "velkor/classification/ProductClasses.h"
#include "velkor/model/ModelFacts.h"
#include "velkor/propertysets/PropertySetCheck.h"
#include "velkor/units/UnitReport.h"

#include <string>
#include <tl/expected.hpp>

namespace velkor::host {

struct Report {
    ModelFacts facts;
    UnitReport units;
    ProblemSummary problems;
    /// Instances with an identifier, and what is wrong with those.
    std::uint64_t identifierCount = 0;
    ProblemSummary identifiers;
    /// What the sets' definitions cover, without the findings, and those by kind.
    PropertySetCheck propertySets;
    ProblemSummary setFindings;
    /// Without a document of correspondences why there is none.
    tl::expected<ConfiguredClassification, std::string> classified;
};

void writeReportPage(TextSink out, bool color, const Report& report);

/// One page for a browser that needs neither a network nor a script. It is well-formed XML, too.
void writeReportHtml(TextSink out, const Report& report);

Json reportJson(const Report& report);

} // namespace velkor::host
