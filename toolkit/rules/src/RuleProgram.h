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
    /// Either of them.
    const sdai::Type* type(TextId name) const noexcept { return name < _types.size() ? _types[name] : nullptr; }
    /// Name of an entity in the store; noText when the rules do not know it.
    TextId name(const sdai::EntityDefinition& entity) const noexcept { return _entityNames[entity.position()]; }

    /// The declaration that is nearest to the entity counts: derived before explicit where it redeclares it.
    Part part(const sdai::EntityDefinition& entity, TextId name) const noexcept;
    /// Whether instances of the entity have "*" at a place of attributes().
    bool isDerived(const sdai::EntityDefinition& entity, std::size_t slot) const noexcept;
    const Function* function(TextId name) const noexcept;

    /// By position of the entity in its schema: the WHERE rules that its instances must keep, inherited ones first.
    std::span<const std::uint16_t> whereRulesOf(const sdai::EntityDefinition& entity) const noexcept;
    /// The WHERE rules of a defined type that its values must keep, those of the types that it is made of first.
    std::span<const std::uint16_t> whereRulesOf(const sdai::DefinedType& type) const noexcept;
    /// The inverse attributes that entity and supertypes declare, inherited ones first; of one that is redeclared the
    /// nearest.
    std::span<const std::uint16_t> inverseAttributesOf(const sdai::EntityDefinition& entity) const noexcept;

private:
    /// Lists of positions in a table, one for each entity or type.
    struct Lists {
        std::vector<std::uint32_t> begins{0};
        std::vector<std::uint16_t> positions;

        void finish() { begins.push_back(static_cast<std::uint32_t>(positions.size())); }
        std::span<const std::uint16_t> at(std::uint32_t position) const noexcept;
    };

    void resolveNames();
    void listRules();
    void listInverseAttributes(const sdai::EntityDefinition& entity);
    void noteDerivedSlots();

    RuleStore _store;
    const RuleTables& _tables;
    const sdai::Model& _model;
    // By name, for the names of types.
    std::vector<const sdai::Type*> _types;
    // By position in the schema.
    std::vector<TextId> _entityNames;
    std::vector<TextId> _typeNames;
    Lists _entityRules;
    Lists _typeRules;
    Lists _inverseAttributes;
    // By position of the entity, the places that hold "*".
    std::vector<std::vector<bool>> _derivedSlots;
};

} // namespace velkor::rules
