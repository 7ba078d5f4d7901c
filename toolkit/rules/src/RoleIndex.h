/// Who refers to an instance by which attribute, for the roles that inverse attributes and USEDIN ask for. Built once,
/// in one pass over the instances of the referring entities; immutable then, shared by all threads.
#pragma once

#include "RuleProgram.h"

#include <cstdint>
#include <span>
#include <vector>

namespace velkor::rules {

class RoleIndex {
public:
    explicit RoleIndex(const RuleProgram& program);

    /// Numbers of the instances that refer to instance `number` by the attribute that `role`, a position in the tables'
    /// inverseAttributes, is the inverse of. In file order; one that refers twice stands twice.
    std::span<const std::uint32_t> users(std::uint16_t role, std::uint32_t number) const noexcept;
    /// The same for any entity and attribute, for USEDIN; empty for what is no role.
    std::span<const std::uint32_t> users(TextId entity, TextId attribute, std::uint32_t number) const noexcept;

    std::size_t memoryUse() const noexcept;
};

} // namespace velkor::rules
