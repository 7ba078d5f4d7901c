#include "RuleProgram.h"

#include <algorithm>

namespace velkor::rules {

namespace {

/// The entries of a table, sorted by its names, that stand under one of them.
template <class Entry>
std::span<const Entry> entriesOf(std::span<const Entry> table, TextId Entry::*name, TextId wanted) noexcept {
    if (wanted == noText) return {};
    const auto first = std::ranges::lower_bound(table, wanted, {}, name);
    return {first, std::ranges::upper_bound(first, table.end(), wanted, {}, name)};
}

template <class Entry>
std::uint16_t positionIn(std::span<const Entry> table, const Entry& entry) noexcept {
    return static_cast<std::uint16_t>(&entry - table.data());
}

/// Entity and supertypes, the root first.
std::vector<const sdai::EntityDefinition*> lineage(const sdai::EntityDefinition& entity) {
    std::vector<const sdai::EntityDefinition*> entities;
    for (const auto* at = &entity; at != nullptr; at = at->supertype()) entities.push_back(at);
    std::ranges::reverse(entities);
    return entities;
}

} // namespace

std::span<const std::uint16_t> RuleProgram::Lists::at(std::uint32_t position) const noexcept {
    return std::span(positions).subspan(begins[position], begins[position + 1U] - begins[position]);
}

RuleProgram::RuleProgram(const RuleStore& store, const RuleTables& tables, const sdai::Model& model)
    : _store(store), _tables(tables), _model(model) {
    resolveNames();
    listRules();
    noteDerivedSlots();
}

void RuleProgram::resolveNames() {
    const sdai::SchemaDefinition& schema = _model.schema();
    _entityNames.assign(schema.entities().size(), noText);
    _typeNames.assign(schema.definedTypes().size(), noText);
    _types.resize(_store.typeNames);
    for (TextId name = 0; name < _store.typeNames; ++name) {
        const sdai::Type* type = schema.named(_store.text(name));
        _types[name] = type;
        if (type == nullptr) continue;
        if (const auto* entity = type->asEntity()) _entityNames[entity->position()] = name;
        if (const auto* definedType = type->asDefined()) _typeNames[definedType->position()] = name;
    }
}

void RuleProgram::listRules() {
    for (const sdai::EntityDefinition* entity : _model.schema().entities()) {
        for (const auto* owner : lineage(*entity)) {
            for (const WhereRule& rule : entriesOf(_tables.entityRules, &WhereRule::owner, name(*owner)))
                _entityRules.positions.push_back(positionIn(_tables.entityRules, rule));
        }
        _entityRules.finish();
        listInverseAttributes(*entity);
    }
    for (const sdai::DefinedType* type : _model.schema().definedTypes()) {
        std::vector<std::uint16_t> positions;
        for (const auto* made = type; made != nullptr; made = made->underlying().asDefined()) {
            std::size_t place = 0;
            for (const WhereRule& rule :
                 entriesOf(_tables.typeRules, &WhereRule::owner, _typeNames[made->position()])) {
                positions.insert(positions.begin() + static_cast<std::ptrdiff_t>(place++),
                                 positionIn(_tables.typeRules, rule));
            }
        }
        _typeRules.positions.insert(_typeRules.positions.end(), positions.begin(), positions.end());
        _typeRules.finish();
    }
}

void RuleProgram::listInverseAttributes(const sdai::EntityDefinition& entity) {
    std::vector<std::uint16_t> positions;
    for (const auto* owner : lineage(entity)) {
        for (const InverseAttribute& attribute :
             entriesOf(_tables.inverseAttributes, &InverseAttribute::entity, name(*owner))) {
            std::erase_if(positions, [&](std::uint16_t position) {
                return _tables.inverseAttributes[position].name == attribute.name;
            });
            positions.push_back(positionIn(_tables.inverseAttributes, attribute));
        }
    }
    _inverseAttributes.positions.insert(_inverseAttributes.positions.end(), positions.begin(), positions.end());
    _inverseAttributes.finish();
}

void RuleProgram::noteDerivedSlots() {
    for (const sdai::EntityDefinition* entity : _model.schema().entities()) {
        std::vector<bool>& derived = _derivedSlots.emplace_back(entity->attributes().size());
        for (std::size_t i = 0; i < derived.size(); ++i) derived[i] = entity->attributes()[i].isDerived;
        for (const auto* owner = entity; owner != nullptr; owner = owner->supertype()) {
            for (const DerivedAttribute& attribute :
                 entriesOf(_tables.derivedAttributes, &DerivedAttribute::entity, name(*owner))) {
                const int slot = entity->attributeIndex(_store.text(attribute.name));
                if (slot >= 0 && part(*entity, attribute.name).kind == Part::Kind::Derived)
                    derived[static_cast<std::size_t>(slot)] = true;
            }
        }
    }
}

const sdai::EntityDefinition* RuleProgram::entity(TextId name) const noexcept {
    const sdai::Type* found = type(name);
    return found != nullptr ? found->asEntity() : nullptr;
}

const sdai::DefinedType* RuleProgram::definedType(TextId name) const noexcept {
    const sdai::Type* found = type(name);
    return found != nullptr ? found->asDefined() : nullptr;
}

RuleProgram::Part RuleProgram::part(const sdai::EntityDefinition& entity, TextId name) const noexcept {
    const int slot = entity.attributeIndex(_store.text(name));
    const sdai::Attribute* stated = slot < 0 ? nullptr : entity.attributes()[static_cast<std::size_t>(slot)].attribute;
    const Part asStated{Part::Kind::Explicit, static_cast<std::uint16_t>(slot)};
    for (const auto* owner = &entity; owner != nullptr; owner = owner->supertype()) {
        const TextId ownerName = this->name(*owner);
        for (const DerivedAttribute& derived :
             entriesOf(_tables.derivedAttributes, &DerivedAttribute::entity, ownerName)) {
            if (derived.name == name) return {Part::Kind::Derived, positionIn(_tables.derivedAttributes, derived)};
        }
        if (stated != nullptr && &stated->owner() == owner && !stated->isDerived()) return asStated;
        for (const InverseAttribute& inverse :
             entriesOf(_tables.inverseAttributes, &InverseAttribute::entity, ownerName)) {
            if (inverse.name == name) return {Part::Kind::Inverse, positionIn(_tables.inverseAttributes, inverse)};
        }
    }
    return stated != nullptr ? asStated : Part();
}

bool RuleProgram::isDerived(const sdai::EntityDefinition& entity, std::size_t slot) const noexcept {
    return _derivedSlots[entity.position()][slot];
}

const Function* RuleProgram::function(TextId name) const noexcept {
    const auto found = entriesOf(_tables.functions, &Function::name, name);
    return found.empty() ? nullptr : &found.front();
}

std::span<const std::uint16_t> RuleProgram::whereRulesOf(const sdai::EntityDefinition& entity) const noexcept {
    return _entityRules.at(entity.position());
}
std::span<const std::uint16_t> RuleProgram::whereRulesOf(const sdai::DefinedType& type) const noexcept {
    return _typeRules.at(type.position());
}
std::span<const std::uint16_t> RuleProgram::inverseAttributesOf(const sdai::EntityDefinition& entity) const noexcept {
    return _inverseAttributes.at(entity.position());
}

} // namespace velkor::rules
