/// Values of EXPRESS as rules handle them. A value takes 16 bytes and is copied freely; what it points to lies in the
/// file, in the tables or in the arena of the evaluation.
#pragma once

#include "velkor/sdai/Dictionary.h"

#include <cstdint>
#include <string_view>

namespace velkor::rules {

struct Aggregate;
struct EntityValue;
class ValueSet;

/// In the order of ISO 10303-11: FALSE < UNKNOWN < TRUE.
enum class Logical : std::uint8_t { False, Unknown, True };

constexpr Logical logical(bool truth) noexcept {
    return truth ? Logical::True : Logical::False;
}
constexpr Logical operator!(Logical value) noexcept {
    return static_cast<Logical>(2 - static_cast<int>(value));
}

enum class ValueKind : std::uint8_t {
    Indeterminate,
    Logical,
    Integer,
    Real,
    String,
    TypeName, ///< the text 'SCHEMA.NAME' of a type of the dictionary
    Binary,   ///< digits 0 and 1
    Enumerator,
    Instance, ///< of the model, by its number
    Entity,   ///< made by a rule
    Aggregate,
    EncodedAggregate, ///< a member of an aggregate, as it stands in the file; nothing else holds one
};

class Value {
public:
    constexpr Value() noexcept : _integer(0) {}
    explicit constexpr Value(Logical value) noexcept
        : _kind(ValueKind::Logical), _integer(static_cast<std::int64_t>(value)) {}
    explicit constexpr Value(std::int64_t value) noexcept : _kind(ValueKind::Integer), _integer(value) {}
    /// Indeterminate for what is no finite number.
    explicit Value(double value) noexcept;
    explicit Value(const sdai::Type& named) noexcept : _kind(ValueKind::TypeName), _named(&named) {}
    explicit Value(Aggregate& aggregate) noexcept : _kind(ValueKind::Aggregate), _aggregate(&aggregate) {}
    explicit Value(EntityValue& entity) noexcept : _kind(ValueKind::Entity), _entity(&entity) {}
    static Value ofInstance(std::uint32_t number) noexcept;
    /// A STRING, BINARY, enumerator or encoded aggregate; indeterminate when it is longer than 4 GB.
    static Value ofText(ValueKind kind, std::string_view text) noexcept;

    ValueKind kind() const noexcept { return _kind; }
    bool isIndeterminate() const noexcept { return _kind == ValueKind::Indeterminate; }
    bool isNumber() const noexcept { return _kind == ValueKind::Integer || _kind == ValueKind::Real; }
    bool isText() const noexcept { return _kind == ValueKind::String || _kind == ValueKind::TypeName; }
    bool isEntity() const noexcept { return _kind == ValueKind::Instance || _kind == ValueKind::Entity; }
    bool isAggregate() const noexcept { return _kind == ValueKind::Aggregate; }

    /// UNKNOWN for what is no LOGICAL.
    Logical logical() const noexcept {
        return _kind == ValueKind::Logical ? static_cast<Logical>(_integer) : Logical::Unknown;
    }
    std::int64_t integer() const noexcept { return _integer; }
    /// Of a REAL or an INTEGER.
    double number() const noexcept { return _kind == ValueKind::Integer ? static_cast<double>(_integer) : _real; }
    std::string_view text() const noexcept { return {_text, _length}; }
    const sdai::Type& named() const noexcept { return *_named; }
    std::uint32_t instance() const noexcept { return _length; }
    EntityValue& entity() const noexcept { return *_entity; }
    Aggregate& aggregate() const noexcept { return *_aggregate; }

    /// Position of the value's defined type among those of the schema, counted from 1; 0 when it has none.
    std::uint16_t type() const noexcept { return _type; }
    Value withType(std::uint16_t type) const noexcept;

private:
    ValueKind _kind = ValueKind::Indeterminate;
    std::uint16_t _type = 0;
    // Of a text; the number of an instance.
    std::uint32_t _length = 0;
    union {
        std::int64_t _integer;
        double _real;
        const char* _text;
        const sdai::Type* _named;
        EntityValue* _entity;
        Aggregate* _aggregate;
    };
};

static_assert(sizeof(Value) == 16);

/// Whether variables and members refer to what may be changed in place: to what only one of them holds.
enum class Holding : std::uint8_t { Nobody, One, Several };

inline void hold(Holding& holding) noexcept {
    holding = holding == Holding::Nobody ? Holding::One : Holding::Several;
}

enum class AggregateKind : std::uint8_t {
    List,
    Set,
    Bag,
    Array,
    Initialiser, ///< adapts to the kind of what it meets
};

struct Aggregate {
    static constexpr std::uint32_t uncounted = 0xFFFFFFFF;

    AggregateKind kind = AggregateKind::Initialiser;
    Holding holding = Holding::Nobody;
    /// Members behind the first `decoded` ones stand in the file, from `encoded` on, and are decoded when asked for.
    bool isEncoded = false;
    /// `uncounted` as long as nobody has asked.
    std::uint32_t size = 0;
    std::uint32_t decoded = 0;
    std::uint32_t capacity = 0;
    /// Index of the first member.
    std::int64_t lower = 1;
    /// What the schema declares; null for one that a rule makes.
    const sdai::AggregateType* declared = nullptr;
    std::string_view encoded;
    Value* members = nullptr;
    /// The members of a SET that is being added to; null when nobody has needed them.
    ValueSet* seen = nullptr;

    bool isOrdered() const noexcept { return kind != AggregateKind::Set && kind != AggregateKind::Bag; }
};

/// An entity value that a rule has made, with the explicit attributes of an instance in their order.
struct EntityValue {
    const sdai::EntityDefinition* entity = nullptr;
    Holding holding = Holding::Nobody;
    Value* slots = nullptr;
};

/// Notes that one more variable or member refers to a value.
void hold(const Value& value) noexcept;

} // namespace velkor::rules
