/// Who refers to an instance by which attribute, for the roles that inverse attributes and USEDIN ask for. Built once,
/// in one pass over the instances of the referring entities; immutable then, shared by all threads.
///
/// A role of an inverse attribute is held when code takes the attribute or a UNIQUE clause names it, or when its bounds
/// can be broken; those of USEDIN are held when they stand in the code as text.
#pragma once

#include "RuleProgram.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace velkor::rules {

class RoleIndex {
public:
    explicit RoleIndex(const RuleProgram& program);

    /// Numbers of the instances that refer to instance `number` by the attribute that `role`, a position in the tables'
    /// inverseAttributes, is the inverse of. In file order; one that refers twice stands twice.
    std::span<const std::uint32_t> users(std::uint16_t role, std::uint32_t number) const noexcept;
    /// The same for a role as USEDIN has it, 'ENTITY.ATTRIBUTE'; nothing for what no code asks for.
    std::optional<std::span<const std::uint32_t>> users(std::string_view role, std::uint32_t number) const noexcept;

    std::size_t memoryUse() const noexcept;

private:
    /// Instances referred to, in ascending order, each with one that refers to it.
    struct Role {
        TextId entity;
        TextId attribute;
        std::vector<std::uint32_t> targets;
        std::vector<std::uint32_t> users;
        /// Position of the first target at or behind each multiple of 2^shift.
        std::vector<std::uint32_t> begins;
        unsigned shift = 0;

        std::span<const std::uint32_t> usersOf(std::uint32_t number) const noexcept;
        void fill(std::vector<std::uint64_t>& references, std::uint32_t instanceCount);
    };
    struct Builder;

    static constexpr std::uint16_t noRole = 0xFFFF;

    std::uint16_t roleOf(TextId entity, TextId attribute) const noexcept;

    const RuleStore& _store;
    // Sorted by entity and attribute.
    std::vector<Role> _roles;
    // By position in the tables' inverseAttributes.
    std::vector<std::uint16_t> _inverseRoles;
};

} // namespace velkor::rules
