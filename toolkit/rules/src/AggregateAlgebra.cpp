#include "AggregateAlgebra.h"

#include <algorithm>
#include <new>

namespace velkor::rules {

namespace {

using Kind = AggregateKind;

/// Kind of a union; nothing when the two do not go together. A SET or BAG takes a LIST in, and the left one decides.
std::optional<Kind> kindOfSum(Kind a, Kind b) noexcept {
    if (a == Kind::Array || b == Kind::Array) return std::nullopt;
    if (a == Kind::Initialiser) return b;
    if (b == Kind::Initialiser || a == b) return a;
    return a == Kind::List ? b : a;
}

/// A SET that takes part makes it a SET.
std::optional<Kind> kindOfIntersection(Kind a, Kind b) noexcept {
    if (a == Kind::Array || b == Kind::Array) return std::nullopt;
    if (a == Kind::Initialiser && b == Kind::Initialiser) return Kind::Initialiser;
    if (a == Kind::Set || b == Kind::Set) return Kind::Set;
    const bool haveBag = a == Kind::Bag || b == Kind::Bag;
    return haveBag ? std::optional(Kind::Bag) : std::nullopt;
}

} // namespace

/// Those of a, then those of b; of a SET each once.
Aggregate& AggregateAlgebra::appended(Kind kind, std::span<const Value> a, std::span<const Value> b) {
    _evaluation.spend(a.size() + b.size());
    Aggregate& result = _evaluation.makeAggregate(kind, a.size() + b.size());
    if (kind != Kind::Set) {
        for (const auto members : {a, b}) {
            for (const Value& member : members) _evaluation.append(result, member);
        }
        return result;
    }
    ValueSet seen(a.size() + b.size(), _evaluation, _comparison);
    for (const auto members : {a, b}) {
        for (const Value& member : members) {
            if (seen.add(member)) _evaluation.append(result, member);
        }
    }
    return result;
}

Value AggregateAlgebra::sum(const Value& a, const Value& b) {
    if (a.isAggregate() && b.isAggregate()) {
        const auto kind = kindOfSum(a.aggregate().kind, b.aggregate().kind);
        if (!kind) return {};
        const auto first = _reader.members(a.aggregate());
        return made(appended(*kind, first, _reader.members(b.aggregate())));
    }
    const Kind kind = (a.isAggregate() ? a : b).aggregate().kind;
    if (kind == Kind::Array) return {};
    if (a.isAggregate()) return made(appended(kind, _reader.members(a.aggregate()), {&b, 1}));
    return made(appended(kind, {&a, 1}, _reader.members(b.aggregate())));
}

Value AggregateAlgebra::extended(const Value& a, const Value& b) {
    Aggregate& aggregate = a.aggregate();
    const auto kind = kindOfSum(aggregate.kind, b.isAggregate() ? b.aggregate().kind : aggregate.kind);
    if (kind != aggregate.kind) return sum(a, b);
    const std::span<const Value> added = b.isAggregate() ? _reader.members(b.aggregate()) : std::span(&b, 1);
    const auto members = _reader.members(aggregate);
    _evaluation.spend(added.size());
    if (*kind == Kind::Set && aggregate.seen == nullptr) {
        aggregate.seen = new (_evaluation.room<ValueSet>(1)) ValueSet(members.size(), _evaluation, _comparison);
        for (const Value& member : members) aggregate.seen->addAnother(member);
    }
    for (const Value& value : added) {
        if (*kind != Kind::Set || aggregate.seen->add(value)) _evaluation.append(aggregate, value);
    }
    return a;
}

Value AggregateAlgebra::difference(const Value& a, const Value& b) {
    const Kind kind = a.aggregate().kind;
    const bool isMeant = kind == Kind::Set || kind == Kind::Bag || kind == Kind::Initialiser;
    if (!isMeant || (b.isAggregate() && b.aggregate().kind == Kind::Array)) return {};
    const auto members = _reader.members(a.aggregate());
    const std::span<const Value> taken = b.isAggregate() ? _reader.members(b.aggregate()) : std::span(&b, 1);
    _evaluation.spend(members.size() + taken.size());
    ValueSet removed(taken.size(), _evaluation, _comparison);
    for (const Value& value : taken) removed.addAnother(value);
    Aggregate& result = _evaluation.makeAggregate(kind, members.size());
    for (const Value& member : members) {
        if (!removed.take(member)) _evaluation.append(result, member);
    }
    return made(result);
}

Value AggregateAlgebra::intersection(Aggregate& a, Aggregate& b) {
    const auto kind = kindOfIntersection(a.kind, b.kind);
    if (!kind) return {};
    const auto first = _reader.members(a);
    const auto second = _reader.members(b);
    _evaluation.spend(first.size() + second.size());
    ValueSet common(second.size(), _evaluation, _comparison);
    for (const Value& value : second) common.addAnother(value);
    Aggregate& result = _evaluation.makeAggregate(*kind);
    ValueSet seen(*kind == Kind::Set ? first.size() : 0, _evaluation, _comparison);
    for (const Value& value : first) {
        if (common.take(value) && (*kind != Kind::Set || seen.add(value))) _evaluation.append(result, value);
    }
    return made(result);
}

Aggregate& AggregateAlgebra::copy(Aggregate& aggregate) {
    const auto members = _reader.members(aggregate);
    _evaluation.spend(members.size());
    Aggregate& result = _evaluation.makeAggregate(aggregate.kind, members.size());
    for (const Value& member : members) _evaluation.append(result, member);
    result.lower = aggregate.lower;
    result.declared = aggregate.declared;
    return result;
}

Value AggregateAlgebra::converted(const Value& value, Kind kind) {
    if (!value.isAggregate() || value.aggregate().kind == kind) return value.isAggregate() ? value : Value();
    Aggregate& aggregate = value.aggregate();
    if (aggregate.holding == Holding::Nobody && kind != Kind::Set) {
        aggregate.kind = kind;
        aggregate.lower = 1;
        return value;
    }
    return made(appended(kind, _reader.members(aggregate), {})).withType(value.type());
}

Value AggregateAlgebra::array(const Value& value, const Value& low, const Value& high) {
    const bool hasBounds = low.kind() == ValueKind::Integer && high.kind() == ValueKind::Integer;
    if (!value.isAggregate() || !hasBounds || high.integer() < low.integer()) return {};
    const auto span = static_cast<std::uint64_t>(high.integer()) - static_cast<std::uint64_t>(low.integer());
    const auto members = _reader.members(value.aggregate());
    if (span >= Aggregate::uncounted) throw BoundReached();
    if (members.size() > span + 1) return {};
    _evaluation.spend(span);
    Aggregate& result = _evaluation.makeAggregate(Kind::Array, span + 1);
    for (const Value& member : members) _evaluation.append(result, member);
    while (result.size <= span) _evaluation.append(result, Value());
    result.lower = low.integer();
    return made(result).withType(value.type());
}

Value AggregateAlgebra::inserted(const Value& list, const Value& element, const Value& position) {
    if (!list.isAggregate() || position.kind() != ValueKind::Integer) return {};
    const auto members = _reader.members(list.aggregate());
    if (position.integer() < 0 || position.integer() > static_cast<std::int64_t>(members.size())) return {};
    const auto place = static_cast<std::size_t>(position.integer());
    Aggregate& head = appended(Kind::List, members.first(place), {&element, 1});
    return made(appended(Kind::List, {head.members, head.size}, members.subspan(place)));
}

Value AggregateAlgebra::removed(const Value& list, const Value& position) {
    if (!list.isAggregate() || position.kind() != ValueKind::Integer) return {};
    const auto members = _reader.members(list.aggregate());
    if (position.integer() < 1 || position.integer() > static_cast<std::int64_t>(members.size())) return {};
    const auto place = static_cast<std::size_t>(position.integer());
    return made(appended(Kind::List, members.first(place - 1), members.subspan(place)));
}

} // namespace velkor::rules
