/// Judges a model by the rules of its release: WHERE, RULE, UNIQUE, the bounds of INVERSE, and equal members of
/// aggregates that must not have any.
///
///     const RuleCheckResult result = checkRules(*model);
///     for (const sdai::Problem& problem : result.problems) show(problem.rule, problem.message);
#pragma once

#include "velkor/model/CheckResult.h"
#include "velkor/model/CodeFilter.h"
#include "velkor/sdai/Model.h"
#include "velkor/ToolkitExport.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace velkor {

/// What findings of rules are coded by.
inline constexpr std::array<std::string_view, 6> ruleCodes{
    "element-not-unique", "global-rule", "inverse-cardinality", "rule-not-decided", "uniqueness-rule", "where-rule"};

/// What a check of rules is made with.
struct RuleCheckOptions {
    /// How many findings are listed at most; all are counted.
    std::size_t limit = defaultLimit;
    Progress progress = {};
    /// Threads; 0 for as many as the machine has cores. The findings are the same whatever their number.
    unsigned jobs = 0;
    /// Names of the rules that are judged, as ruleNamed() knows them; empty for all.
    std::vector<std::string> rules = {};
    /// Kinds of findings that count; what none of them needs is not judged.
    CodeFilter codes = {};
};

/// What was judged.
struct RuleCoverage {
    std::uint64_t instances = 0;
    /// Rules that the release states, and those of them that were judged: all, unless some were asked for.
    std::size_t rules = 0;
    std::size_t judgedRules = 0;
    /// Single judgements: one rule on one instance or value.
    std::uint64_t judgements = 0;
    /// Of them, those whose answer was UNKNOWN or indeterminate, which breaks no rule; by rule, the most frequent
    /// first.
    struct Unknown {
        std::string rule;
        std::uint64_t count;
    };
    std::uint64_t unknown = 0;
    std::vector<Unknown> unknownByRule;
    /// Judgements that a bound of steps, depth or memory ended; each is a finding as well.
    std::uint64_t undecided = 0;
    double seconds = 0.0;
};

/// What breaks rules, and what was judged.
struct RuleCheckResult : CheckResult {
    RuleCoverage coverage;
};

/// Findings in file order. Time and memory in proportion to the file.
VELKOR_TOOLKIT_API RuleCheckResult checkRules(const sdai::Model& model, const RuleCheckOptions& options = {});

} // namespace velkor
