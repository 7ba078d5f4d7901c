/// The rules of one release with the names resolved in its dictionary. Immutable once made, shared by all threads.
#pragma once

#include "RuleTables.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <span>
#include <vector>

namespace velkor::rules {

class RuleProgram {
public:
    /// What a name stands for in an entity.
    struct Part {
        enum class Kind : std::uint8_t { None, Explicit, Derived, Inverse };
        Kind kind = Kind::None;
        /// Index into the entity's attributes(), or into the tables' derivedAttributes or inverseAttributes.
        std::uint16_t index = 0;
    };

    RuleProgram(const RuleStore& store, const RuleTables& tables, const sdai::Model& model);

    const RuleStore& store() const noexcept { return _store; }
    const RuleTables& tables() const noexcept { return _tables; }
    const sdai::Model& model() const noexcept { return _model; }

    /// Null when the dictionary has no such entity or type.
    const sdai::EntityDefinition* entity(TextId name) const noexcept;
    const sdai::DefinedType* definedType(TextId name) const noexcept;
    /// The declaration that is nearest to the entity counts: derived before explicit where it redeclares it.
    Part part(const sdai::EntityDefinition& entity, TextId name) const noexcept;
    const Function* function(TextId name) const noexcept;

    /// By position of the entity in its schema: the WHERE rules that its instances must keep, inherited ones first.
    std::span<const std::uint16_t> whereRulesOf(const sdai::EntityDefinition& entity) const noexcept;
    /// The WHERE rules of a defined type that its values must keep, those of the types that it is made of first.
    std::span<const std::uint16_t> whereRulesOf(const sdai::DefinedType& type) const noexcept;
    /// The inverse attributes that entity and supertypes declare.
    std::span<const std::uint16_t> inverseAttributesOf(const sdai::EntityDefinition& entity) const noexcept;

private:
    RuleStore _store;
    const RuleTables& _tables;
    const sdai::Model& _model;
    // … as the implementation needs
};

} // namespace velkor::rules
