#include "Arithmetic.h"
#include "Interpreter.h"
#include "velkor/text/Unicode.h"

namespace velkor::rules {

namespace {

Value whole(std::size_t number) noexcept {
    return Value(static_cast<std::int64_t>(number));
}

} // namespace

Value Interpreter::builtin(BuiltinFunction function) {
    const Value last = pop();
    switch (function) {
    case BuiltinFunction::ATan:
        return arcTangent(pop(), last);
    case BuiltinFunction::Exists:
        return Value(logical(!last.isIndeterminate()));
    case BuiltinFunction::Format: {
        const Value number = pop();
        return last.isText() ? formatted(number, _comparison.text(last), _evaluation) : Value();
    }
    case BuiltinFunction::BLength:
    case BuiltinFunction::Length:
        return length(function, last);
    case BuiltinFunction::HiBound:
    case BuiltinFunction::HiIndex:
    case BuiltinFunction::LoBound:
    case BuiltinFunction::LoIndex:
        return last.isAggregate() ? bound(function, last) : Value();
    case BuiltinFunction::Nvl: {
        const Value value = pop();
        return value.isIndeterminate() ? last : value;
    }
    case BuiltinFunction::Odd:
        return isOdd(last);
    // Which roles a value plays is only known for those that code names.
    case BuiltinFunction::RolesOf:
        return {};
    case BuiltinFunction::SizeOf:
        return last.isAggregate() ? whole(_reader.size(last.aggregate())) : Value();
    case BuiltinFunction::TypeOf:
        return typesOf(last);
    case BuiltinFunction::UsedIn:
        return usedIn(pop(), last);
    case BuiltinFunction::Value:
        return last.isText() ? numberIn(_comparison.text(last)) : Value();
    case BuiltinFunction::ValueIn:
        return Value(_comparison.isValueIn(last, pop()));
    case BuiltinFunction::ValueUnique:
        return last.isAggregate() ? Value(_comparison.isValueUnique(last.aggregate())) : Value();
    case BuiltinFunction::Insert: {
        const Value element = pop();
        return _algebra.inserted(pop(), element, last);
    }
    case BuiltinFunction::Remove:
        return _algebra.removed(pop(), last);
    default:
        return realFunction(function, last);
    }
}

Value Interpreter::bound(BuiltinFunction function, const Value& value) {
    Aggregate& aggregate = value.aggregate();
    const bool isArray = aggregate.kind == AggregateKind::Array;
    const std::int64_t last = aggregate.lower + std::int64_t{_reader.size(aggregate)} - 1;
    switch (function) {
    case BuiltinFunction::LoIndex:
        return Value(aggregate.lower);
    case BuiltinFunction::HiIndex:
        return Value(last);
    case BuiltinFunction::LoBound:
        if (isArray || aggregate.declared == nullptr) return isArray ? Value(aggregate.lower) : Value();
        return Value(std::int64_t{aggregate.declared->lowerBound()});
    default: {
        if (isArray) return Value(last);
        const int upper = aggregate.declared != nullptr ? aggregate.declared->upperBound() : -1;
        return upper >= 0 ? Value(std::int64_t{upper}) : Value();
    }
    }
}

Value Interpreter::length(BuiltinFunction function, const Value& value) {
    if (function == BuiltinFunction::BLength)
        return value.kind() == ValueKind::Binary ? whole(value.text().size()) : Value();
    if (!value.isText()) return {};
    const std::string_view text = _comparison.text(value);
    _evaluation.spend(text.size() / 32);
    return whole(text::characterCount(text));
}

Value Interpreter::typesOf(const Value& value) {
    const auto named = _types.of(value);
    const auto builtIn = _types.builtIn(value);
    _evaluation.spend(named.size() + builtIn.size());
    Aggregate& names = _evaluation.makeAggregate(AggregateKind::Set, named.size() + builtIn.size());
    for (const sdai::Type* type : named) _evaluation.append(names, Value(*type));
    for (const std::string_view name : builtIn) _evaluation.append(names, Value::ofText(ValueKind::String, name));
    return Value(names);
}

Value Interpreter::usedIn(const Value& value, const Value& role) {
    if (!value.isEntity() || !role.isText()) return {};
    // Nothing refers to what a rule has made.
    if (value.kind() == ValueKind::Entity) return usersOf({}, AggregateKind::Bag);
    const auto users = _roles.users(_comparison.text(role), value.instance());
    return users ? usersOf(*users, AggregateKind::Bag) : Value();
}

} // namespace velkor::rules
