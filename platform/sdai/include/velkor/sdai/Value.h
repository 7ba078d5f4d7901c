/// Attribute values of instances, decoded when converted. All classes here are small
/// values that point into the model; they stay valid as long as the model is open.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/sdai/Dictionary.h"
#include "velkor/sdai/Part21Lexer.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

class DXSdaiAppInstance;

namespace velkor::sdai {

class Model;
class Aggregate;
class Select;

/// An enumeration value: its type and the position of the value, counted from 0.
struct Enumeration {
    /// Null when the value is no enumeration or its enumerator is unknown.
    const EnumerationType* type = nullptr;
    /// -1 when unset or unknown: outside every table.
    int value = -1;

    /// The enumerator; empty when there is none.
    std::string_view text() const noexcept { return type ? type->text(value + 1) : std::string_view(); }
};

/// The values of LOGICAL.
enum class Logical : std::uint8_t { False, True, Unknown };

/// The runtime's handle on one value of any type. Conversions never fail loudly: a value of
/// another type converts to the neutral answer that each one names.
class VELKOR_PLATFORM_API Primitive {
public:
    Primitive() = default;
    /// Of a place of that type, as the file encodes it.
    Primitive(const Model* model, const Type* type, std::string_view text) noexcept
        : _model(model), _type(type), _text(text) {}

    /// True unless the value is absent, "$" or "*".
    bool isSet() const noexcept;
    /// The declared type of the place that holds the value; null for an unset handle.
    const Type* declaredType() const noexcept { return _type; }
    /// The value as it stands in the file.
    std::string_view encoded() const noexcept;

    /// The referred instance; null when the value is no reference or the reference dangles.
    DXSdaiAppInstance* asInstance() const;
    /// Null aggregate when the value is none.
    Aggregate asAggregate() const;
    /// Type null and value -1 when the value is no enumerator of its type.
    Enumeration asEnumeration() const;
    /// A typed parameter, IFCLABEL('x'), or what stands in place of a select; null select when
    /// unset.
    Select asSelect() const;
    /// The text in UTF-8; empty when the value is no STRING.
    std::string asString() const;
    /// Numbers, also through a typed parameter. An enumeration gives its position as an integer.
    std::optional<double> asReal() const;
    std::optional<std::int64_t> asInteger() const;
    std::optional<bool> asBoolean() const;    ///< The value as BOOLEAN; nothing when it is none.
    std::optional<Logical> asLogical() const; ///< The value as LOGICAL; nothing when it is none.
    /// Bits of a BINARY as the hexadecimal digits of the file, the leading count of unused bits
    /// included; empty when the value is none.
    std::string_view asBinary() const noexcept;

private:
    const Model* _model = nullptr;
    const Type* _type = nullptr;
    std::string_view _text;
};

/// A select value: the type chosen and the value under it.
class Select {
public:
    Select() = default;
    /// A value of the chosen type.
    Select(const Type* chosen, Primitive value) noexcept : _chosen(chosen), _value(value) {}
    bool isNull() const noexcept { return _value.declaredType() == nullptr; } ///< True without a value.
    /// The defined type or entity chosen; null when the file's keyword is unknown.
    const Type* chosenType() const noexcept { return _chosen; }
    /// The value without the type that was chosen.
    const Primitive& underlyingValue() const noexcept { return _value; }

private:
    const Type* _chosen = nullptr;
    Primitive _value;
};

class AggregateIterator;
class MemberIterator;

/// A list, set, bag or array of values.
///
///     for (const Primitive unit : assignment.GetAttr("UNITS").asAggregate()) use(unit.asInstance());
class VELKOR_PLATFORM_API Aggregate {
public:
    Aggregate() = default;
    /// Of a place of that type, as the file encodes it.
    Aggregate(const Model* model, const AggregateType* type, std::string_view text) noexcept
        : _model(model), _type(type), _text(text) {}
    bool isNull() const noexcept { return _type == nullptr; }    ///< True for a null aggregate.
    const AggregateType* type() const noexcept { return _type; } ///< Type of the aggregate; null when it is none.
    /// Counted anew at each call by a pass over the text.
    std::size_t memberCount() const noexcept;

    /// The members in their order, each found when the iterator gets there.
    MemberIterator begin() const noexcept;
    std::default_sentinel_t end() const noexcept { return {}; } ///< Behind the last member.

private:
    friend class AggregateIterator;
    const Model* _model = nullptr;
    const AggregateType* _type = nullptr;
    std::string_view _text;
};

/// The iterator of SDAI over an aggregate: stands before the first member until next() is called.
///
///     for (AggregateIterator it(units); it.next();) use(it.current().asInstance());
class VELKOR_PLATFORM_API AggregateIterator {
public:
    /// In front of the first member.
    explicit AggregateIterator(const Aggregate& aggregate) noexcept : _aggregate(aggregate) { beginning(); }
    void beginning() noexcept; ///< Goes back in front of the first member.
    /// Moves to the next member; false behind the last.
    bool next() noexcept;
    /// The member stood on; an unset handle before the first and behind the last.
    Primitive current() const noexcept;

private:
    Aggregate _aggregate;
    // Before the "(" or the "," that a member stands behind.
    Part21Lexer _lexer{std::string_view()};
    bool _isFirst = true;
    std::string_view _current;
};

/// The iterator of a range-based loop over an aggregate, an input iterator.
class MemberIterator {
public:
    using value_type = Primitive;           ///< What members are.
    using difference_type = std::ptrdiff_t; ///< Demanded of iterators.

    /// At the first member.
    explicit MemberIterator(const Aggregate& aggregate) noexcept : _member(aggregate) { ++*this; }
    Primitive operator*() const noexcept { return _member.current(); } ///< The member that it stands at.
    /// Goes on to the next member.
    MemberIterator& operator++() noexcept {
        _isAtEnd = !_member.next();
        return *this;
    }
    void operator++(int) noexcept { ++*this; }                                   ///< Goes on to the next member.
    bool operator==(std::default_sentinel_t) const noexcept { return _isAtEnd; } ///< True behind the last member.

private:
    AggregateIterator _member;
    bool _isAtEnd = false;
};

inline MemberIterator Aggregate::begin() const noexcept {
    return MemberIterator(*this);
}

} // namespace velkor::sdai
