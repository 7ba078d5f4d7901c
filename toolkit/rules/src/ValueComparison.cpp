#include "ValueComparison.h"

#include "ValueSet.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <bit>

namespace velkor::rules {

namespace {

/// FALSE if one of them is, else UNKNOWN if one of them is.
constexpr Logical both(Logical a, Logical b) noexcept {
    return std::min(a, b);
}

constexpr std::uint64_t mixed(std::uint64_t value) noexcept {
    value ^= value >> 33;
    value *= 0xFF51AFD7ED558CCDULL;
    value ^= value >> 33;
    value *= 0xC4CEB9FE1A85EC53ULL;
    return value ^ value >> 33;
}

int sign(auto a, auto b) noexcept {
    return a < b ? -1 : a > b ? 1 : 0;
}

std::string_view name(const sdai::Type& type) noexcept {
    if (const auto* entity = type.asEntity()) return entity->name();
    return type.asDefined() != nullptr ? type.asDefined()->name() : std::string_view();
}

} // namespace

void ValueComparison::begin() noexcept {
    _depth = 0;
    _compared.clear();
}

Logical ValueComparison::compare(const Value& a, const Value& b, Sense sense) {
    if (a.isIndeterminate() || b.isIndeterminate()) return Logical::Unknown;
    _evaluation.spend();
    if (a.isNumber() && b.isNumber()) {
        const bool areIntegers = a.kind() == ValueKind::Integer && b.kind() == ValueKind::Integer;
        return logical(areIntegers ? a.integer() == b.integer() : a.number() == b.number());
    }
    if (a.isText() && b.isText()) return texts(a, b);
    if (a.isEntity() && b.isEntity()) return entities(a, b, sense);
    if (a.kind() != b.kind()) return Logical::Unknown;
    switch (a.kind()) {
    case ValueKind::Logical:
        return rules::logical(a.logical() == b.logical());
    case ValueKind::Binary:
        return texts(a, b);
    case ValueKind::Enumerator:
        return enumerators(a, b);
    case ValueKind::Aggregate:
        return aggregates(a.aggregate(), b.aggregate(), sense);
    default:
        return Logical::Unknown;
    }
}

Logical ValueComparison::texts(const Value& a, const Value& b) {
    if (a.kind() == ValueKind::TypeName && b.kind() == ValueKind::TypeName)
        return rules::logical(&a.named() == &b.named());
    const std::string_view first = text(a);
    const std::string_view second = text(b);
    _evaluation.spend(std::min(first.size(), second.size()) / 32);
    return rules::logical(first == second);
}

std::string_view ValueComparison::text(const Value& value) {
    if (value.kind() != ValueKind::TypeName) return value.text();
    const std::string_view schema = _program.model().schema().name();
    const std::string_view type = name(value.named());
    char* text = _evaluation.room<char>(schema.size() + 1 + type.size());
    char* end = std::ranges::copy(schema, text).out;
    *end++ = '.';
    end = std::ranges::copy(type, end).out;
    return {text, static_cast<std::size_t>(end - text)};
}

const sdai::EnumerationType* ValueComparison::enumeration(const Value& value) const {
    const sdai::DefinedType* type = _reader.definedType(value);
    return type != nullptr ? type->resolved().asEnumeration() : nullptr;
}

Logical ValueComparison::enumerators(const Value& a, const Value& b) const {
    const sdai::EnumerationType* first = enumeration(a);
    const sdai::EnumerationType* second = enumeration(b);
    if (first != nullptr && second != nullptr && first != second) return Logical::False;
    return rules::logical(std::ranges::equal(
        a.text(), b.text(), {}, [](char c) { return text::asciiUpper(c); },
        [](char c) { return text::asciiUpper(c); }));
}

Logical ValueComparison::entities(const Value& a, const Value& b, Sense sense) {
    const bool isSame = a.kind() == b.kind() &&
                        (a.kind() == ValueKind::Instance ? a.instance() == b.instance() : &a.entity() == &b.entity());
    if (isSame || sense == Sense::Identity) return rules::logical(isSame);
    const sdai::EntityDefinition* entity = _types.entity(a);
    if (entity == nullptr || entity != _types.entity(b)) return Logical::False;
    for (const auto& [first, second] : _compared) {
        if (entities(first, a, Sense::Identity) == Logical::True &&
            entities(second, b, Sense::Identity) == Logical::True)
            return Logical::True;
    }
    if (_compared.size() == deepest) throw BoundReached();
    _compared.emplace_back(a, b);
    const Logical result = attributes(a, b, *entity);
    _compared.pop_back();
    return result;
}

Logical ValueComparison::attributes(const Value& a, const Value& b, const sdai::EntityDefinition& entity) {
    Logical result = Logical::True;
    for (std::size_t i = 0; i < entity.attributes().size() && result != Logical::False; ++i) {
        if (_program.isDerived(entity, i)) continue;
        result = both(result, compare(slot(a, entity, i), slot(b, entity, i), Sense::Value));
    }
    return result;
}

Value ValueComparison::slot(const Value& value, const sdai::EntityDefinition& entity, std::size_t index) {
    return value.kind() == ValueKind::Instance ? _reader.attribute(value.instance(), entity, index)
                                               : value.entity().slots[index];
}

Logical ValueComparison::aggregates(Aggregate& a, Aggregate& b, Sense sense) {
    if (&a == &b && sense == Sense::Identity && std::ranges::none_of(_reader.members(a), &Value::isIndeterminate))
        return Logical::True;
    if (_reader.size(a) != _reader.size(b)) return Logical::False;
    if (_depth == deepest) throw BoundReached();
    ++_depth;
    const auto first = _reader.members(a);
    const auto second = _reader.members(b);
    const bool isOrdered = a.isOrdered() && b.isOrdered();
    const Logical result = isOrdered ? inOrder(first, second, sense) : inAnyOrder(first, second, sense);
    --_depth;
    return result;
}

Logical ValueComparison::inOrder(std::span<const Value> a, std::span<const Value> b, Sense sense) {
    Logical result = Logical::True;
    for (std::size_t i = 0; i < a.size() && result != Logical::False; ++i)
        result = both(result, compare(a[i], b[i], sense));
    return result;
}

/// What has an identical partner needs no closer look; only the rest is compared pair by pair.
Logical ValueComparison::inAnyOrder(std::span<const Value> a, std::span<const Value> b, Sense sense) {
    ValueSet partners(b.size(), _evaluation, *this);
    for (const Value& value : b) partners.addAnother(value);
    std::vector<Value> restA;
    for (const Value& value : a) {
        if (!partners.take(value)) restA.push_back(value);
    }
    if (restA.empty()) return Logical::True;
    std::vector<Value> restB;
    partners.forEach([&](const Value& value) { restB.push_back(value); });
    return matched(restA, restB, sense);
}

Logical ValueComparison::matched(std::span<const Value> a, std::vector<Value>& b, Sense sense) {
    Logical result = Logical::True;
    for (const Value& value : a) {
        Logical best = Logical::False;
        for (Value& candidate : b) {
            const Logical answer = compare(value, candidate, sense);
            best = std::max(best, answer);
            if (answer != Logical::True) continue;
            candidate = b.back();
            b.pop_back();
            break;
        }
        result = both(result, best);
        if (result == Logical::False) break;
    }
    return result;
}

Logical ValueComparison::member(const Value& element, const Value& aggregate, Sense sense) {
    if (element.isIndeterminate() || !aggregate.isAggregate()) return Logical::Unknown;
    Logical result = Logical::False;
    for (const Value& value : _reader.members(aggregate.aggregate())) {
        result = std::max(result, compare(element, value, sense));
        if (result == Logical::True) break;
    }
    return result;
}

Logical ValueComparison::isValueUnique(Aggregate& aggregate) {
    const auto members = _reader.members(aggregate);
    ValueSet seen(members.size(), _evaluation, *this);
    std::vector<Value> close;
    Logical result = Logical::True;
    for (const Value& value : members) {
        if (value.isIndeterminate()) {
            result = Logical::Unknown;
        } else if (!seen.add(value)) {
            return Logical::False;
        } else if (value.isEntity() || value.isAggregate()) {
            close.push_back(value);
        }
    }
    // Only of entities, and what holds them, may values be equal that are not identical.
    for (std::size_t i = 0; i < close.size(); ++i) {
        for (std::size_t k = i + 1; k < close.size(); ++k) {
            const Logical isEqual = equal(close[i], close[k]);
            if (isEqual == Logical::True) return Logical::False;
            if (isEqual == Logical::Unknown) result = Logical::Unknown;
        }
    }
    return result;
}

Logical ValueComparison::isSubset(Aggregate& a, Aggregate& b) {
    const auto members = _reader.members(b);
    ValueSet available(members.size(), _evaluation, *this);
    bool isClear = true;
    for (const Value& value : members) {
        isClear = isClear && !value.isIndeterminate();
        available.addAnother(value);
    }
    Logical result = Logical::True;
    for (const Value& value : _reader.members(a)) {
        if (available.take(value)) continue;
        if (isClear && !value.isIndeterminate()) return Logical::False;
        result = Logical::Unknown;
    }
    return result;
}

std::optional<int> ValueComparison::order(const Value& a, const Value& b) {
    if (a.isNumber() && b.isNumber()) {
        const bool areIntegers = a.kind() == ValueKind::Integer && b.kind() == ValueKind::Integer;
        return areIntegers ? sign(a.integer(), b.integer()) : sign(a.number(), b.number());
    }
    if (a.isText() && b.isText()) return sign(text(a), text(b));
    if (a.kind() != b.kind()) return std::nullopt;
    if (a.kind() == ValueKind::Binary) return sign(a.text(), b.text());
    if (a.kind() == ValueKind::Logical) return sign(a.logical(), b.logical());
    if (a.kind() != ValueKind::Enumerator) return std::nullopt;
    const sdai::EnumerationType* first = enumeration(a);
    const sdai::EnumerationType* second = enumeration(b);
    if (first == nullptr) first = second;
    if (first == nullptr || (second != nullptr && first != second)) return std::nullopt;
    return sign(first->position(a.text()), first->position(b.text()));
}

std::uint64_t ValueComparison::hash(const Value& value, unsigned depth) {
    const auto kind = static_cast<std::uint64_t>(value.kind());
    switch (value.kind()) {
    case ValueKind::Integer:
    case ValueKind::Real:
        // 0.0 and -0.0 are one number.
        return mixed(std::bit_cast<std::uint64_t>(value.number() + 0.0));
    case ValueKind::String:
    case ValueKind::TypeName:
    case ValueKind::Binary:
    case ValueKind::Enumerator:
        return text::hash64(text(value));
    case ValueKind::Logical:
        return mixed(kind << 32 | static_cast<std::uint64_t>(value.integer()));
    case ValueKind::Instance:
        return mixed(kind << 32 | value.instance());
    case ValueKind::Entity:
        return mixed(reinterpret_cast<std::uintptr_t>(&value.entity()));
    case ValueKind::Aggregate: {
        // A sum, because the order of members may not count.
        std::uint64_t sum = _reader.size(value.aggregate());
        if (depth == deepest) return sum;
        for (const Value& member : _reader.members(value.aggregate())) sum += hash(member, depth + 1);
        _evaluation.spend(value.aggregate().size);
        return mixed(sum);
    }
    default:
        return 0;
    }
}

} // namespace velkor::rules
