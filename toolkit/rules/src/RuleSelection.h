/// Which rules a check judges: those that were asked for by name, of the kinds whose findings count.
#pragma once

#include "RuleNames.h"
#include "velkor/rules/RuleCheck.h"

#include <array>
#include <vector>

namespace velkor::rules {

inline constexpr const char* whereCode = "where-rule";
inline constexpr const char* globalCode = "global-rule";
inline constexpr const char* uniqueCode = "uniqueness-rule";
inline constexpr const char* inverseCode = "inverse-cardinality";
inline constexpr const char* elementCode = "element-not-unique";
inline constexpr const char* notDecidedCode = "rule-not-decided";

/// The code of what breaks a rule of the kind.
const char* codeOf(RuleKind kind) noexcept;

class RuleSelection {
public:
    RuleSelection(const RuleStore& store, const RuleTables& tables, const RuleCheckOptions& options);

    bool takes(RuleKind kind, std::uint16_t index) const noexcept { return list(kind)[index]; }
    /// Whether equal members of aggregates are looked for. They belong to no rule of a name.
    bool takesMembers() const noexcept { return _takesMembers; }
    std::size_t count() const noexcept { return _count; }
    /// Those of `indexes` that are taken.
    std::vector<std::uint16_t> taken(RuleKind kind, std::span<const std::uint16_t> indexes) const;

private:
    static constexpr std::size_t kinds = 5;
    const std::vector<bool>& list(RuleKind kind) const noexcept { return _taken[static_cast<std::size_t>(kind)]; }

    std::array<std::vector<bool>, kinds> _taken;
    std::size_t _count = 0;
    bool _takesMembers = false;
};

} // namespace velkor::rules
