/// What a conversion did to a model: every rule that was followed, how often, and at which instances first.
///
///     for (const RuleUse& use : report.uses) show(use.rule->what, use.count, use.first);
///     if (!report.isLossless()) …
#pragma once

#include "velkor/ToolkitExport.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velkor {

/// What becomes of what a rule is for. What is converted or rebuilt says the same as before in another form; what is
/// kept stays though the step was asked to change it.
enum class Effect : std::uint8_t { Converted, Rebuilt, Lost, Kept };

/// "converted", "rebuilt", "lost", "kept".
VELKOR_TOOLKIT_API std::string_view word(Effect effect);

/// A row of the tables of rules; lasts as long as the process.
struct ConversionRule {
    /// Short stable word: "date-to-text".
    std::string_view name;
    Effect effect;
    /// What is done, for people, a sentence without its full stop: "Dates and times become ISO 8601 texts".
    std::string_view what;
    /// Why it is right or why there is nothing better.
    std::string_view reason;
};

/// One thing that a step did.
struct Change {
    /// The instance in the model that the step was given; 0 for the file as a whole.
    std::uint64_t id = 0;
    /// Where that instance stands, counted from 1; 0 for the file as a whole.
    std::uint64_t line = 0;
    /// Keyword as the file has it.
    std::string entity;
    /// What became of what: "IFCDOORSTYLE becomes IFCDOORTYPE".
    std::string detail;
};

/// How often a rule was followed, and where.
struct RuleUse {
    const ConversionRule* rule = nullptr;
    std::uint64_t count = 0;
    /// In file order, bounded by the limit asked for.
    std::vector<Change> first;
};

/// What one step did. Each instance of the model is kept, converted, rebuilt or lost: kept when it says in the same
/// form what it said; rebuilt when others stand in its place or it became another entity by a rule of its own.
struct VELKOR_TOOLKIT_API StepReport {
    /// "release", "units", "identifiers", "properties".
    std::string_view step;
    std::uint64_t kept = 0;
    std::uint64_t converted = 0;
    std::uint64_t rebuilt = 0;
    std::uint64_t lost = 0;
    /// Instances that had no predecessor.
    std::uint64_t added = 0;
    /// Those that were followed, in the order of the tables.
    std::vector<RuleUse> uses;

    /// Whether no rule took anything away.
    bool isLossless() const;
};

/// Products that have no shape any more are named one by one.
struct ConversionReport {
    std::vector<StepReport> steps;

    /// True when no rule lost anything.
    bool isLossless() const {
        for (const StepReport& step : steps)
            if (!step.isLossless()) return false;
        return true;
    }
};

} // namespace velkor
