/// Rules of a release for people and as JSON.
#pragma once

#include "output/Json.h"
#include "velkor/rules/RuleCatalogue.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

/// "where", "type", "global", "unique", "inverse": what JSON and tables call a kind.
const char* word(RuleKind kind);

/// What must hold, in words where there are any, else in EXPRESS; of an inverse attribute its declaration.
std::string_view meaning(const RuleFacts& rule);

/// That a release has no rule, or several, of a name, and which may be meant.
std::string noSuchRule(std::string_view schema, std::string_view name);

/// A row for each, or "no rules".
void writeRules(TextSink out, const std::vector<RuleFacts>& rules);
/// Everything about one rule, its EXPRESS text in lines.
void writeRule(TextSink out, std::string_view schema, const RuleFacts& rule);

/// `kind`, `name`, `owner`, `expression`, `wording`, `fault`, `fault_source`; null for what there is not.
Json ruleJson(const RuleFacts& rule);
Json rulesJson(const std::vector<RuleFacts>& rules);

Json countsJson(const RuleCounts& counts);

} // namespace velkor::host
