/// The immutable data dictionary of one EXPRESS schema (ISO 10303-22, clause 6), as
/// restored from its two text lists.
///
/// A select that its lists declare twice is one type here. Every object lives in its SchemaDefinition and is handed out
/// as a pointer to constant data that stays valid as long as the schema does. Names are upper case and are views into
/// the texts that the schema was restored from.
///
///     const EntityDefinition* wall = schema.entity("IFCWALL");
///     for (const AttributeSlot& slot : wall->attributes()) print(slot.attribute->name());
#pragma once

#include "velkor/PlatformExport.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::sdai {

class Attribute;
class AggregateType;
class DefinedType;
class EntityDefinition;
class EnumerationType;
class SchemaDefinition;
class SelectType;
class SimpleType;

/// Kinds of types of EXPRESS.
enum class TypeKind : std::uint8_t {
    Integer,
    Real,
    Boolean,
    Logical,
    String,
    Binary,
    Defined,
    Enumeration,
    Select,
    List,
    Set,
    Array,
    Entity,
};

/// Places of names in a list, for look-up in constant time: a hash table of positions
/// counted from 1 in the schema's memory, 0 where nothing stands.
using NameTable = std::span<const std::uint16_t>;

/// What an attribute, an aggregate element or a select item is of.
class VELKOR_PLATFORM_API Type {
public:
    TypeKind kind() const noexcept { return _kind; }                     ///< Which kind it is.
    bool isSimple() const noexcept { return _kind <= TypeKind::Binary; } ///< True for the simple types of EXPRESS.
    /// True for LIST, SET and ARRAY.
    bool isAggregate() const noexcept { return _kind >= TypeKind::List && _kind <= TypeKind::Array; }

    /// The type as its own class; null when the kind is another.
    const SimpleType* asSimple() const noexcept;
    const DefinedType* asDefined() const noexcept;
    const EnumerationType* asEnumeration() const noexcept;
    const SelectType* asSelect() const noexcept;
    const AggregateType* asAggregate() const noexcept;
    const EntityDefinition* asEntity() const noexcept;

    /// This type with defined types followed down to what they stand for.
    const Type& resolved() const noexcept;

    /// The type in EXPRESS notation, for people: "LIST [1:?] OF UNIQUE IFCLABEL".
    std::string expressText() const;

protected:
    friend class SchemaBuilder;
    explicit Type(TypeKind kind) noexcept : _kind(kind) {} ///< A type of a kind.

private:
    TypeKind _kind;
};

/// A simple type of EXPRESS.
class SimpleType : public Type {
public:
    /// Width of a STRING or BINARY, precision of a REAL; 0 when none is stated.
    int width() const noexcept { return _width; }
    bool isFixed() const noexcept { return _fixed; } ///< True when texts or binaries have exactly the length.

private:
    friend class SchemaBuilder;
    using Type::Type;
    bool _fixed = false;
    int _width = 0;
};

/// A TYPE of EXPRESS.
class DefinedType : public Type {
public:
    std::string_view name() const noexcept { return _name; }             ///< Name as the dictionary has it.
    const Type& underlying() const noexcept { return *_underlying; }     ///< The type that it is defined by.
    const SchemaDefinition& schema() const noexcept { return *_schema; } ///< The schema that declares it.
    /// Position in the schema's base order of defined types, counted from 0.
    std::uint32_t position() const noexcept { return _position; }

private:
    friend class SchemaBuilder;
    DefinedType() noexcept : Type(TypeKind::Defined) {}
    std::uint32_t _position = 0;
    friend class Type;
    std::string_view _name;
    const Type* _underlying = nullptr;
    // What is left when every defined type below is followed.
    const Type* _resolved = nullptr;
    const SchemaDefinition* _schema = nullptr;
};

/// The enumeration under a defined type. Positions count from 0 in schema order, texts are
/// asked for by position + 1 (`text`), as the SDAI runtime counts.
class VELKOR_PLATFORM_API EnumerationType : public Type {
public:
    /// The enumerators in the schema's order.
    std::span<const std::string_view> values() const noexcept { return _values; }
    /// The defined type that names this enumeration.
    const DefinedType& definedType() const noexcept { return *_definedType; }
    const SchemaDefinition& schema() const noexcept { return *_schema; } ///< The schema that declares it.
    /// Position of an enumerator, letter case ignored; -1 when there is none of the name.
    int position(std::string_view name) const noexcept;
    /// Enumerator by position counted from 1; empty when there is no such position.
    std::string_view text(int positionFrom1) const noexcept;

private:
    friend class SchemaBuilder;
    EnumerationType() noexcept : Type(TypeKind::Enumeration) {}
    std::span<const std::string_view> _values;
    NameTable _positions;
    const DefinedType* _definedType = nullptr;
    const SchemaDefinition* _schema = nullptr;
};

/// The select under a defined type.
class VELKOR_PLATFORM_API SelectType : public Type {
public:
    /// The items as the schema lists them: defined types and entities.
    std::span<const Type* const> items() const noexcept { return _items; }
    /// The defined type that names this select.
    const DefinedType& definedType() const noexcept { return *_definedType; }
    /// True when the entity (or an entity it is a kind of), or a value of the defined type, may
    /// stand here; selects among the items are looked into at every depth.
    bool accepts(const EntityDefinition& entity) const noexcept;
    bool accepts(const DefinedType& type) const noexcept;

private:
    friend class SchemaBuilder;
    SelectType() noexcept : Type(TypeKind::Select) {}
    std::span<const Type* const> _items;
    const DefinedType* _definedType = nullptr;
    // One bit per entity in preorder, then one per defined type in base order.
    const std::uint64_t* _accepted = nullptr;
};

/// A list, set or array of another type.
class AggregateType : public Type {
public:
    const Type& element() const noexcept { return *_element; } ///< Type of the members.
    int lowerBound() const noexcept { return _lower; } ///< Least number of members; of an array the first index.
    /// -1 when unbounded. Bounds of an ARRAY given by an expression are 0 and 0.
    int upperBound() const noexcept { return _upper; }
    bool hasUniqueElements() const noexcept { return _unique; }     ///< True when no two members may be equal.
    bool hasOptionalElements() const noexcept { return _optional; } ///< True when members of an array may be unset.

private:
    friend class SchemaBuilder;
    using Type::Type;
    bool _unique = false;
    bool _optional = false;
    int _lower = 0;
    int _upper = 0;
    const Type* _element = nullptr;
};

/// One attribute, as the entity that declares it states it.
class Attribute {
public:
    std::string_view name() const noexcept { return _name; }           ///< Name as the dictionary has it.
    const EntityDefinition& owner() const noexcept { return *_owner; } ///< The entity that declares it.
    const Type& type() const noexcept { return *_type; }               ///< Type of its values.
    bool isOptional() const noexcept { return _optional; }             ///< True when it may be unset.
    bool isDerived() const noexcept { return _derived; }               ///< True for one of DERIVE.
    /// The inherited attribute that this one redeclares; null for most.
    const Attribute* redeclared() const noexcept { return _redeclared; }

private:
    friend class SchemaBuilder;
    Attribute() = default;
    std::string_view _name;
    const EntityDefinition* _owner = nullptr;
    const Type* _type = nullptr;
    const Attribute* _redeclared = nullptr;
    std::uint32_t _hash = 0;
    bool _optional = false;
    bool _derived = false;
};

/// An explicit attribute at its place in an instance of one entity.
struct AttributeSlot {
    /// The declaration that holds for the entity: the latest redeclaration, if there is one.
    const Attribute* attribute;
    /// The attribute is redeclared as derived: the instance carries "*" here.
    bool isDerived;
};

/// A UNIQUE rule: its label, and the attributes that together are unique.
struct UniquenessRule {
    std::string_view label;
    std::span<const Attribute* const> attributes;
};

/// An entity with what it declares and inherits.
class VELKOR_PLATFORM_API EntityDefinition : public Type {
public:
    std::string_view name() const noexcept { return _name; }             ///< Name as the dictionary has it.
    const SchemaDefinition& schema() const noexcept { return *_schema; } ///< The schema that declares it.
    bool isAbstract() const noexcept { return _abstract; }               ///< True when only subtypes have instances.
    /// Null for a root entity. IFC entities have at most one supertype.
    const EntityDefinition* supertype() const noexcept { return _supertype; }
    std::span<const EntityDefinition* const> subtypes() const noexcept { return _subtypes; } ///< The direct subtypes.
    /// Position in the schema's base order of entities, counted from 0.
    std::uint32_t position() const noexcept { return _position; }

    /// True for the entity itself and every subtype at any depth of `ancestor`, which must
    /// belong to the same schema.
    bool isKindOf(const EntityDefinition& ancestor) const noexcept {
        return _first - ancestor._first < ancestor._count;
    }
    /// The same by name, letter case ignored; false for a name the schema does not know.
    bool isKindOf(std::string_view ancestorName) const noexcept;

    /// The explicit attributes of an instance in the order of its parameters, inherited first.
    std::span<const AttributeSlot> attributes() const noexcept { return _slots; }
    /// Index into attributes() by name, letter case ignored; -1 when there is none of the name.
    int attributeIndex(std::string_view name) const noexcept;
    /// What this entity declares itself: explicit attributes, then derived ones.
    std::span<const Attribute> ownAttributes() const noexcept { return _own; }
    /// The derived attributes that have no place in an instance, inherited first; the latest
    /// redeclaration of each.
    std::span<const Attribute* const> derivedAttributes() const noexcept { return _derived; }
    /// Attribute by name, letter case ignored: own or inherited, explicit or derived, the latest
    /// redeclaration; null when unknown.
    const Attribute* attribute(std::string_view name) const noexcept;
    std::span<const UniquenessRule> uniquenessRules() const noexcept { return _rules; } ///< Its UNIQUE rules.

private:
    friend class SchemaBuilder;
    EntityDefinition() noexcept : Type(TypeKind::Entity) {}
    // Position of a name in _slots followed by _derived; -1 when unknown.
    VELKOR_PLATFORM_LOCAL int place(std::string_view name, std::uint32_t hash) const noexcept;
    bool _abstract = false;
    std::uint32_t _position = 0;
    friend class SelectType;
    // Order number in a preorder walk of the entity tree, and the size of the subtree.
    std::uint32_t _first = 0;
    std::uint32_t _count = 1;
    std::string_view _name;
    const SchemaDefinition* _schema = nullptr;
    const EntityDefinition* _supertype = nullptr;
    std::span<const EntityDefinition* const> _subtypes;
    std::span<const AttributeSlot> _slots;
    std::span<const Attribute* const> _derived;
    NameTable _names;
    std::span<const Attribute> _own;
    std::span<const UniquenessRule> _rules;
};

/// How many declarations of each kind a schema's list holds.
struct SchemaCounts {
    int declarations = 0;
    int statements = 0;
    int entities = 0;
    int definedTypes = 0;
    int enumerationTypes = 0;
    int selectTypes = 0;
    int aggregateTypes = 0;
    int explicitAttributes = 0;
    int derivedAttributes = 0;
    int uniquenessRules = 0;
    int entitiesStatements = 0;
};

/// A schema with its entities and defined types.
class VELKOR_PLATFORM_API SchemaDefinition {
public:
    virtual ~SchemaDefinition() = default;
    SchemaDefinition(const SchemaDefinition&) = delete;
    SchemaDefinition& operator=(const SchemaDefinition&) = delete;

    std::string_view name() const noexcept { return _name; } ///< Name as the dictionary has it.
    /// How many entities, types and attributes there are.
    const SchemaCounts& counts() const noexcept { return _counts; }
    /// All entities and defined types in the schema's base order.
    std::span<const EntityDefinition* const> entities() const noexcept { return _entities; }
    std::span<const DefinedType* const> definedTypes() const noexcept { return _definedTypes; }

    /// By name, letter case ignored; null when the schema has none of the name.
    const EntityDefinition* entity(std::string_view name) const noexcept;
    const DefinedType* definedType(std::string_view name) const noexcept;

    /// Either of them, as a type.
    const Type* named(std::string_view name) const noexcept;

    /// Bytes held by this dictionary beside the texts that it points to and the arrays of
    /// pointers to them.
    std::size_t memoryUse() const noexcept { return _memoryUse; }

protected:
    friend class SchemaBuilder;
    SchemaDefinition() = default;
    std::string_view _name;
    SchemaCounts _counts;
    std::span<const EntityDefinition* const> _entities;
    std::span<const DefinedType* const> _definedTypes;
    // Defined types and entities in the order of their declarations, and positions in that.
    std::span<const Type* const> _named;
    NameTable _names;
    std::size_t _memoryUse = 0;
};

} // namespace velkor::sdai
