/// The property statements of a schema, read and checked one by one against its declarations.
/// What they say together is for SchemaBuilder to judge.
#pragma once

#include "DeclarationList.h"

#include <cstdint>
#include <span>
#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::sdai {

/// The references of one statement, in StatementList::references.
struct Relation {
    Range references;
    /// Position of the statement counted from 1; 0 while there is none.
    std::uint32_t statement = 0;
};

/// What is stated about one entity.
struct EntityStatements {
    Relation composition;
    Relation supertypes;
    Relation attributes;
    Relation rules;
};

/// What is stated about one attribute or uniqueness rule.
struct OwnedStatements {
    /// The attributes of a rule; no references for an attribute.
    Relation infos;
    /// Of an attribute.
    TypeReference type;
    bool optional = false;
    /// The entity that names the attribute or rule as its own; 0 while none does.
    std::uint16_t owner = 0;
};

struct StatementList {
    /// How many entities each Entities statement but the last names.
    static constexpr std::size_t EntitiesPerStatement = 100;

    /// By ordinal of the declaration.
    std::vector<EntityStatements> entityStatements;
    std::vector<OwnedStatements> ownedStatements;
    std::vector<std::uint16_t> references;
    Relation version;
    Relation definedTypes;
    /// All Entities statements together; `statement` is the last of them.
    std::vector<std::uint16_t> entities;
    std::uint32_t entitiesStatement = 0;
    int entitiesStatements = 0;

    const EntityStatements& aboutEntity(const Declaration& d) const { return entityStatements[d.ordinal]; }
    const OwnedStatements& aboutOwned(const Declaration& d) const { return ownedStatements[d.ordinal]; }

    std::span<const std::uint16_t> of(const Relation& relation) const noexcept {
        return {references.data() + relation.references.first, relation.references.count};
    }
};

/// Reads the list; the error names the position.
tl::expected<StatementList, std::string> readStatements(std::span<const char* const> texts,
                                                        const DeclarationList& declarations);

} // namespace velkor::sdai
