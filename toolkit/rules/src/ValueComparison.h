/// Comparison of values: by value and by instance (ISO 10303-11, 12.2), membership and order. UNKNOWN where one of them
/// is indeterminate or the two are of kinds that do not compare.
#pragma once

#include "ValueTypes.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velkor::rules {

class ValueComparison {
public:
    ValueComparison(const RuleProgram& program, Evaluation& evaluation, ValueReader& reader, const ValueTypes& types)
        : _program(program), _evaluation(evaluation), _reader(reader), _types(types) {}

    /// "=": instances by the values of their attributes.
    Logical equal(const Value& a, const Value& b) { return compare(a, b, Sense::Value); }
    /// ":=:": instances by identity, all else by value.
    Logical identical(const Value& a, const Value& b) { return compare(a, b, Sense::Identity); }
    /// Below 0, 0 or above 0 as `a` stands before, with or behind `b`; nothing when they have no order.
    std::optional<int> order(const Value& a, const Value& b);

    /// "element IN aggregate", by identity.
    Logical isIn(const Value& element, const Value& aggregate) { return member(element, aggregate, Sense::Identity); }
    /// VALUE_IN
    Logical isValueIn(const Value& element, const Value& aggregate) { return member(element, aggregate, Sense::Value); }
    /// VALUE_UNIQUE
    Logical isValueUnique(Aggregate& aggregate);
    /// Whether all members of `a` are members of `b`, by identity and as often.
    Logical isSubset(Aggregate& a, Aggregate& b);

    /// Equal for identical values.
    std::uint64_t hash(const Value& value, unsigned depth = 0);
    /// The text of a STRING or type name.
    std::string_view text(const Value& value);

    void begin() noexcept;

private:
    enum class Sense : std::uint8_t { Value, Identity };
    /// Values within each other.
    static constexpr unsigned deepest = 100;

    Logical compare(const Value& a, const Value& b, Sense sense);
    Logical texts(const Value& a, const Value& b);
    Logical enumerators(const Value& a, const Value& b) const;
    const sdai::EnumerationType* enumeration(const Value& value) const;
    Logical entities(const Value& a, const Value& b, Sense sense);
    Logical attributes(const Value& a, const Value& b, const sdai::EntityDefinition& entity);
    Value slot(const Value& value, const sdai::EntityDefinition& entity, std::size_t index);
    Logical aggregates(Aggregate& a, Aggregate& b, Sense sense);
    Logical inOrder(std::span<const Value> a, std::span<const Value> b, Sense sense);
    Logical inAnyOrder(std::span<const Value> a, std::span<const Value> b, Sense sense);
    Logical matched(std::span<const Value> a, std::vector<Value>& b, Sense sense);
    Logical member(const Value& element, const Value& aggregate, Sense sense);

    const RuleProgram& _program;
    Evaluation& _evaluation;
    ValueReader& _reader;
    const ValueTypes& _types;
    unsigned _depth = 0;
    // Pairs of entities whose comparison is under way: one that is met again is equal as far as it goes.
    std::vector<std::pair<Value, Value>> _compared;
};

} // namespace velkor::rules
