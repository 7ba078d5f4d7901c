/// What the pages of a report say alike, whatever they are made of.
#pragma once

#include "output/Report.h"
#include "terminal/Page.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor::host {

/// What stands beside a heading.
struct Remark {
    std::string text = {};
    Page::Style style = Page::Style::Plain;
};

/// Labels and texts; an empty text is one that the file does not state.
using Entries = std::vector<std::pair<std::string_view, std::string>>;

/// The name of the file without its folder.
std::string fileName(const ModelFacts& facts);
/// "IFC4 model, 7 instances, 2 errors".
std::string headline(const Report& report);

Entries fileEntries(const ModelFacts& facts);

Remark projectRemark(const ModelFacts& facts);
/// Empty without a project.
Entries projectEntries(const ModelFacts& facts);

/// What an entity is called in a list of instances; what no dictionary has is "(unknown)".
std::string keywordText(const sdai::Model::KeywordCount& keyword);
/// Instances of all entities but the first `shown`.
std::uint64_t otherInstances(const ModelFacts& facts, std::size_t shown);

/// "13.2 kB".
std::string shortSizeText(std::uint64_t bytes);

/// A number with so many digits behind the point.
std::string decimal(double value, int digits);
/// A part of a whole in percent; "0.0 %" of nothing.
std::string shareText(std::uint64_t part, std::uint64_t whole);

/// "2 errors and 1 warning", or `none`.
std::string problemCounts(const ProblemSummary& problems, std::string_view none = "no problems found");
/// "2 times, first in line 17, #10".
std::string placeText(const ProblemSummary::Kind& kind);
/// A command line that lists all of them, as a shell takes it.
std::string commandText(std::string_view command, const ModelFacts& facts);

Remark instancesRemark(const ModelFacts& facts);
Remark unitsRemark(const UnitReport& units);
/// What the units of length and angle are worth, and the names of the others. Empty when none are assigned.
Entries unitEntries(const UnitReport& units);
Remark identifiersRemark(const Report& report);
Remark propertySetsRemark(const Report& report);
/// Empty when there is nothing to check or to check by. At most `mostNames` names are said.
Entries propertySetEntries(const PropertySetCheck& sets, std::size_t mostNames);
Remark classificationRemark(const Report& report);
Remark problemsRemark(const Report& report);

/// Most frequent first, those without a neutral identifier before the others.
std::vector<ProductClass> classesByWeight(const Classification& classification);

} // namespace velkor::host
