/// What a conversion did to a model, for people and as JSON.
#pragma once

#include "output/Json.h"
#include "velkor/exchange/Conversion.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velkor::host {

/// What was converted into what.
struct ConversionFiles {
    std::string source;
    std::string sourceRelease;
    std::uint64_t instances = 0;
    /// As a person names it; empty when nothing was written.
    std::string result;
    std::string resultRelease;
};

/// A page: a section each step, every rule that was followed, and of what is lost why and the first places. With
/// `allPlaces` those of all rules are listed.
void writeConversion(TextSink out, bool color, const ConversionFiles& files, const FullReport& report, bool allPlaces);
/// `file`, `release`, `instances`, `result`, `result_release`, `lossless`, `changed_identifiers`, `steps`.
Json conversionJson(const ConversionFiles& files, const FullReport& report);

/// The rows of the tables, a section each step.
void writeConversionRules(TextSink out, bool color, const std::vector<StepRules>& steps);
Json conversionRulesJson(const std::vector<StepRules>& steps);

/// "instance", "before", "after" of each identifier that was changed, as CSV.
std::string identifierTable(const std::vector<IdentifierReport::Entry>& identifiers);

} // namespace velkor::host
