#include "SchemaNames.h"

#include <algorithm>

namespace velkor::rulegen {

using express::ExpressDefinedType;
using express::ExpressEntity;
using express::ExpressType;
using Kind = ExpressType::Kind;

namespace {

// Selects within selects of a schema are a few deep.
constexpr int deepestSelect = 20;

} // namespace

SchemaNames::SchemaNames(const express::ExpressSchema& schema) : _schema(schema) {
    for (const auto& entity : schema.entities) _entities.emplace(upperCase(entity.name), &entity);
    for (const auto& type : schema.types) _types.emplace(upperCase(type.name), &type);
    for (const auto& function : schema.functions) _functions.emplace(upperCase(function.name), &function);
    for (const auto& constant : schema.constants) _constants.emplace(upperCase(constant.name), &constant);
}

bool SchemaNames::hasEnumerator(const ExpressDefinedType& type, const std::string& enumerator) {
    return type.underlying.kind == Kind::Enumeration &&
           std::ranges::any_of(type.underlying.names, [wanted = upperCase(enumerator)](const std::string& name) {
               return upperCase(name) == wanted;
           });
}

std::vector<const ExpressDefinedType*> SchemaNames::enumerations(const std::string& enumerator) const {
    std::vector<const ExpressDefinedType*> result;
    for (const auto& type : _schema.types) {
        if (hasEnumerator(type, enumerator)) result.push_back(&type);
    }
    return result;
}

const ExpressEntity* SchemaNames::supertype(const ExpressEntity& entity) const {
    return entity.supertype.empty() ? nullptr : this->entity(entity.supertype);
}

std::vector<const ExpressEntity*> SchemaNames::line(const ExpressEntity& entity) const {
    std::vector<const ExpressEntity*> result;
    // A source may make an entity its own supertype.
    for (const ExpressEntity* at = &entity; at != nullptr && result.size() <= _entities.size(); at = supertype(*at)) {
        result.push_back(at);
    }
    return result;
}

bool SchemaNames::isKindOf(const ExpressEntity& entity, const ExpressEntity& ancestor) const {
    const auto entities = line(entity);
    return std::ranges::find(entities, &ancestor) != entities.end();
}

SchemaNames::AttributeUse SchemaNames::attribute(const ExpressEntity& entity, const std::string& name) const {
    const std::string wanted = upperCase(name);
    const auto isWanted = [&](const auto& attribute) { return upperCase(attribute.name) == wanted; };
    for (const ExpressEntity* at : line(entity)) {
        for (const auto* list : {&at->explicitAttributes, &at->derivedAttributes}) {
            const auto found = std::ranges::find_if(*list, isWanted);
            if (found != list->end()) return {true, {&found->type, nullptr}};
        }
        const auto found = std::ranges::find_if(at->inverseAttributes, isWanted);
        // Of an aggregate the members are what a place behind an index is; a scalar is the user.
        if (found != at->inverseAttributes.end()) {
            return {true, found->isAggregate ? StaticType{} : StaticType{nullptr, this->entity(found->user)}};
        }
    }
    return {};
}

bool SchemaNames::subtypeHasAttribute(const ExpressEntity& entity, const std::string& name) const {
    return std::ranges::any_of(_schema.entities, [&](const ExpressEntity& other) {
        return isKindOf(other, entity) && attribute(other, name).isThere;
    });
}

bool SchemaNames::mayHave(const StaticType& type, const std::string& name, int depth) const {
    const StaticType at = resolved(type);
    if (at.entity != nullptr) return attribute(*at.entity, name).isThere || subtypeHasAttribute(*at.entity, name);
    if (at.type == nullptr || at.type->kind == Kind::Generic || at.type->kind == Kind::Aggregate) return true;
    if (at.type->kind != Kind::Select || depth > deepestSelect) return false;
    return std::ranges::any_of(at.type->names, [&](const std::string& item) {
        if (const ExpressEntity* choice = entity(item)) return mayHave({nullptr, choice}, name, depth + 1);
        const ExpressDefinedType* choice = this->type(item);
        return choice != nullptr && mayHave({&choice->underlying, nullptr}, name, depth + 1);
    });
}

bool SchemaNames::mayHaveAttribute(const StaticType& type, const std::string& name) const {
    return mayHave(type, name, 0);
}

StaticType SchemaNames::resolved(const StaticType& type) const {
    StaticType at = type;
    for (std::size_t steps = 0; at.type != nullptr && at.type->kind == Kind::Named && steps <= _types.size(); ++steps) {
        if (const ExpressEntity* entity = this->entity(at.type->text)) return {nullptr, entity};
        const ExpressDefinedType* defined = this->type(at.type->text);
        at.type = defined != nullptr ? &defined->underlying : nullptr;
    }
    return at;
}

StaticType SchemaNames::element(const StaticType& aggregate) const {
    const StaticType at = resolved(aggregate);
    return at.type != nullptr && at.type->element ? StaticType{at.type->element.get(), nullptr} : StaticType{};
}

} // namespace velkor::rulegen
