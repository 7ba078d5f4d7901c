/// The rules that a release states: what they say, and how many of each kind there are.
///
///     for (const RuleFacts& rule : rulesOf("IFC4", "IFCWALL")) show(rule.name, rule.expression);
#pragma once

#include "velkor/ToolkitExport.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor {

/// What states a rule.
enum class RuleKind : std::uint8_t {
    Where,   ///< WHERE rule of an entity
    Type,    ///< WHERE rule of a defined type
    Global,  ///< RULE
    Unique,  ///< UNIQUE
    Inverse, ///< number of users that an INVERSE attribute allows
};

/// "where rule of an entity", …
VELKOR_TOOLKIT_API const char* name(RuleKind kind);

/// What there is to know of a rule.
struct RuleFacts {
    RuleKind kind;
    /// Owner and label as the schema spells them: "IfcWall.CorrectPredefinedType"; of an inverse attribute its name.
    std::string name;
    /// The entity, type or global rule that states it, as spelled.
    std::string owner;
    /// EXPRESS text on one line.
    std::string expression;
    /// What must hold, in plain words; may be empty.
    std::string wording;
    /// Why the rule, as published, is known to be faulty, and where that is said; empty for nearly all. Its findings
    /// are warnings.
    std::string fault;
    std::string faultSource;
};

/// How many rules there are of each kind.
struct RuleCounts {
    std::size_t where = 0;
    std::size_t type = 0;
    std::size_t global = 0;
    std::size_t unique = 0;
    std::size_t inverse = 0;

    std::size_t total() const noexcept { return where + type + global + unique + inverse; } ///< Rules of all kinds.
};

/// All rules of a release by the name of its dictionary, in alphabetical order; none for a name that is no release.
VELKOR_TOOLKIT_API std::vector<RuleFacts> rulesOf(std::string_view schema);
/// Those that an entity or a defined type states itself, letter case ignored.
VELKOR_TOOLKIT_API std::vector<RuleFacts> rulesOf(std::string_view schema, std::string_view owner);
/// Letter case ignored; owner and label, or a label or a global rule alone where that is unambiguous.
VELKOR_TOOLKIT_API std::optional<RuleFacts> ruleNamed(std::string_view schema, std::string_view name);
/// Names of up to `most` rules that are likely meant by a name that is none, the likeliest first.
VELKOR_TOOLKIT_API std::vector<std::string> nearestRules(std::string_view schema, std::string_view name,
                                                         std::size_t most = 5);
VELKOR_TOOLKIT_API RuleCounts ruleCounts(std::string_view schema); ///< How many rules a schema states.

} // namespace velkor
