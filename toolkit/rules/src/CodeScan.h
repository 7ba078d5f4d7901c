/// What code asks for, found without running it.
#pragma once

#include "RuleCode.h"
#include "RuleTables.h"

#include <cstdint>
#include <span>
#include <vector>

namespace velkor::rules {

/// Units behind an operation that belong to it; `at` stands on the first of them.
std::size_t operandCount(Operation operation, const std::uint16_t* at) noexcept;

struct CodeNeeds {
    /// By text of the store: whether some code takes the attribute of that name.
    std::vector<bool> attributes;
    /// Texts that USEDIN is given as a role; sorted, each once.
    std::vector<TextId> roles;
};

/// Of all rules, functions and derived attributes of a release.
CodeNeeds codeNeeds(const RuleStore& store, const RuleTables& tables);

} // namespace velkor::rules
