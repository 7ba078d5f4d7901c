/// Definitions of property sets and quantity sets, for people, as JSON and as comma-separated values.
#pragma once

#include "output/Json.h"
#include "velkor/propertysets/SetCatalogue.h"
#include "velkor/propertysets/SetDifference.h"

#include <string_view>
#include <vector>

namespace velkor::host {

using SetList = std::vector<const SetDefinition*>;

/// A row for each.
void writeSets(TextSink out, const SetList& sets);
/// `name`, `kind`, `template_type`, `properties` (how many), `applies_to`, `file`.
Json setsJson(const SetCatalogue& catalogue, const SetList& sets);
void writeSetsCsv(TextSink out, const SetCatalogue& catalogue, const SetList& sets);

/// Everything that a definition says; `releases` are those that define the set.
void writeSet(TextSink out, const SetCatalogue& catalogue, const SetDefinition& set,
              const std::vector<std::string_view>& releases);
/// `name`, `kind`, `template_type`, `applies_to`, `methods`, `properties`, `releases`, `file`; null for what is not
/// stated.
Json setJson(const SetCatalogue& catalogue, const SetDefinition& set, const std::vector<std::string_view>& releases);

void writeSetDifferences(TextSink out, std::string_view before, std::string_view after,
                         const CatalogueDifference& difference);
Json setDifferencesJson(std::string_view before, std::string_view after, const CatalogueDifference& difference);
/// A line for each thing that differs: "set,property,change,before,after".
void writeSetDifferencesCsv(TextSink out, const CatalogueDifference& difference);

} // namespace velkor::host
