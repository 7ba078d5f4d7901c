/// Union, intersection and difference of aggregates (ISO 10303-11, 12.6), and aggregates made into other kinds.
#pragma once

#include "ValueComparison.h"
#include "ValueSet.h"

#include <optional>

namespace velkor::rules {

class AggregateAlgebra {
public:
    AggregateAlgebra(Evaluation& evaluation, ValueReader& reader, ValueComparison& comparison)
        : _evaluation(evaluation), _reader(reader), _comparison(comparison) {}

    /// "a + b"; one of them may be an element.
    Value sum(const Value& a, const Value& b);
    /// The same with a, an aggregate that nobody else holds, made the answer: adding one by one takes linear time.
    Value extended(const Value& a, const Value& b);
    /// "a - b"; b may be an element.
    Value difference(const Value& a, const Value& b);
    /// "a * b"
    Value intersection(Aggregate& a, Aggregate& b);

    /// The members as an aggregate of another kind; those of a SET each once. Indeterminate for what is no aggregate.
    Value converted(const Value& value, AggregateKind kind);
    /// The members as an ARRAY with these bounds. One that is too long is indeterminate, places that are left over are.
    Value array(const Value& value, const Value& low, const Value& high);
    /// A copy that nobody holds yet.
    Aggregate& copy(Aggregate& aggregate);

    /// INSERT and REMOVE.
    Value inserted(const Value& list, const Value& element, const Value& position);
    Value removed(const Value& list, const Value& position);

private:
    Aggregate& appended(AggregateKind kind, std::span<const Value> a, std::span<const Value> b);
    Value made(Aggregate& aggregate) const { return Value(aggregate); }

    Evaluation& _evaluation;
    ValueReader& _reader;
    ValueComparison& _comparison;
};

} // namespace velkor::rules
