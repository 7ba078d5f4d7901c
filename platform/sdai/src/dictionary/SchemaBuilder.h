/// Makes a dictionary of the two lists of a schema, each checked for itself before, and judges
/// what they say together.
#pragma once

#include "Arena.h"
#include "DeclarationList.h"
#include "StatementList.h"
#include "velkor/sdai/Dictionary.h"

#include <memory>
#include <span>
#include <string>
#include <tl/expected.hpp>
#include <unordered_map>
#include <vector>

namespace velkor::sdai {

/// A dictionary and the memory that its objects live in.
class RestoredSchema final : public SchemaDefinition {
public:
    Arena arena;
};

class SchemaBuilder {
public:
    SchemaBuilder(std::span<const char* const> declarationTexts, const DeclarationList& declarations,
                  std::span<const char* const> statementTexts, const StatementList& statements);

    tl::expected<std::shared_ptr<const SchemaDefinition>, std::string> build();

private:
    // In the order of the build; each answers false when it met an error.
    bool makeTypes();
    bool orderDefinedTypes();
    bool orderEntities();
    bool linkSupertypes();
    bool checkStatements();
    bool makeAttributes();
    bool makeRules();
    bool placeAttributes();
    bool closeSelects();
    void count();

    bool makeDefinedType(std::size_t number);
    bool makeEnumeration(std::size_t number);
    void makeSelect(std::size_t number);
    void makeAggregate(std::size_t number);
    void makeEntity(std::size_t number);
    bool enterName(std::size_t number);
    bool isRepeatedSelect(const Type& first, std::size_t number) const;
    bool walkEntities();
    bool checkComposition(const EntityDefinition& entity, std::size_t number);
    bool placeOwnAttributes(EntityDefinition& entity);
    bool keepPlaces(EntityDefinition& entity);

    template <class T>
    T* make();
    template <class T>
    std::span<const T> kept(const std::vector<T>& values);
    const Type* type(const TypeReference& reference);
    const SimpleType* simpleType(const TypeReference& reference);
    EntityDefinition& entity(std::size_t number) const { return static_cast<EntityDefinition&>(*_types[number]); }
    const EntityStatements& aboutEntity(std::size_t number) const {
        return _statements.aboutEntity(_declarations[number]);
    }
    const OwnedStatements& aboutOwned(std::size_t number) const {
        return _statements.aboutOwned(_declarations[number]);
    }
    EntityDefinition& at(std::uint32_t position) const { return entity(_statements.entities[position]); }
    std::size_t numberOf(const EntityDefinition& entity) const { return _statements.entities[entity.position()]; }
    /// Number of the declaration of a type or entity; 0 when none has been entered.
    std::size_t numberOf(std::string_view name) const;
    std::string declared(std::size_t number) const;

    bool declarationError(std::size_t number, const std::string& message);
    bool statementError(const Relation& relation, const std::string& message);

    std::span<const char* const> _declarationTexts;
    std::span<const char* const> _statementTexts;
    const DeclarationList& _declarations;
    const StatementList& _statements;
    std::shared_ptr<RestoredSchema> _schema;
    std::string _error;

    // By number of the declaration.
    std::vector<Type*> _types;
    std::vector<Attribute*> _attributes;
    std::vector<bool> _isNamed;

    std::unordered_map<std::uint64_t, const SimpleType*> _simpleTypes;
    std::vector<std::uint16_t> _named;
    std::span<std::uint16_t> _names;
    std::vector<EntityDefinition*> _preorder;
    std::vector<std::uint32_t> _depths; // by position of the entity
    // Of the entity whose attributes are being placed.
    std::vector<AttributeSlot> _slots;
    std::vector<const Attribute*> _derived;
    std::size_t _places = 0;
};

} // namespace velkor::sdai
