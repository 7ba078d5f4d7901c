/// What the names of a schema stand for, and what type an expression has as far as its source tells.
#pragma once

#include "ExpressSchema.h"
#include "StoreBuilder.h"

#include <map>
#include <string>
#include <vector>

namespace velkor::rulegen {

/// The declared type of an expression: a type, or an entity; neither when the source does not tell.
struct StaticType {
    const express::ExpressType* type = nullptr;
    const express::ExpressEntity* entity = nullptr;

    bool isKnown() const { return type != nullptr || entity != nullptr; }
};

/// Names in any letter case. The schema must outlive it.
class SchemaNames {
public:
    explicit SchemaNames(const express::ExpressSchema& schema);

    const express::ExpressSchema& schema() const { return _schema; }
    const express::ExpressEntity* entity(const std::string& name) const { return find(_entities, name); }
    const express::ExpressDefinedType* type(const std::string& name) const { return find(_types, name); }
    const express::ExpressFunction* function(const std::string& name) const { return find(_functions, name); }
    const express::ExpressVariable* constant(const std::string& name) const { return find(_constants, name); }
    /// The enumerations that have an enumerator of the name.
    std::vector<const express::ExpressDefinedType*> enumerations(const std::string& enumerator) const;
    static bool hasEnumerator(const express::ExpressDefinedType& type, const std::string& enumerator);

    const express::ExpressEntity* supertype(const express::ExpressEntity& entity) const;
    /// From the entity to its root.
    std::vector<const express::ExpressEntity*> line(const express::ExpressEntity& entity) const;
    bool isKindOf(const express::ExpressEntity& entity, const express::ExpressEntity& ancestor) const;

    struct AttributeUse {
        bool isThere = false;
        StaticType type;
    };
    /// An attribute of any kind that the entity declares or inherits.
    AttributeUse attribute(const express::ExpressEntity& entity, const std::string& name) const;
    /// The same of whatever an expression of the type can be: the entity or one of its subtypes, or anything a select
    /// leads to.
    bool mayHaveAttribute(const StaticType& type, const std::string& name) const;

    /// A named type followed to the entity or the type that it is defined as.
    StaticType resolved(const StaticType& type) const;
    StaticType element(const StaticType& aggregate) const;

private:
    template <class Declaration>
    using Map = std::map<std::string, const Declaration*>;
    template <class Declaration>
    static const Declaration* find(const Map<Declaration>& map, const std::string& name) {
        const auto found = map.find(upperCase(name));
        return found == map.end() ? nullptr : found->second;
    }
    bool subtypeHasAttribute(const express::ExpressEntity& entity, const std::string& name) const;
    bool mayHave(const StaticType& type, const std::string& name, int depth) const;

    const express::ExpressSchema& _schema;
    Map<express::ExpressEntity> _entities;
    Map<express::ExpressDefinedType> _types;
    Map<express::ExpressFunction> _functions;
    Map<express::ExpressVariable> _constants;
};

} // namespace velkor::rulegen
