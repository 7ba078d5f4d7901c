#include "ValueKey.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <bit>
#include <type_traits>
#include <vector>

namespace velkor::rules {

namespace {

/// Values within each other.
constexpr unsigned deepest = 100;

template <class Number>
void appendBytes(std::string& key, char tag, Number number) {
    static_assert(std::has_unique_object_representations_v<Number>);
    key += tag;
    key.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void appendText(std::string& key, char tag, std::string_view text) {
    appendBytes(key, tag, std::uint64_t{text.size()});
    key.append(text);
}

} // namespace

bool ValueKey::append(const Value& value, std::string& key, unsigned depth) {
    if (depth == deepest) throw BoundReached();
    switch (value.kind()) {
    case ValueKind::Logical:
        appendBytes(key, 'L', value.integer());
        return true;
    case ValueKind::Integer:
    case ValueKind::Real:
        appendNumber(value, key);
        return true;
    case ValueKind::String:
        appendText(key, 'S', value.text());
        return true;
    case ValueKind::Binary:
        appendText(key, 'B', value.text());
        return true;
    case ValueKind::Enumerator:
        appendEnumerator(value, key);
        return true;
    case ValueKind::Instance:
        appendBytes(key, '#', value.instance());
        return true;
    case ValueKind::Entity:
        appendBytes(key, 'E', value.entity().entity->position());
        return appendMembers({value.entity().slots, value.entity().entity->attributes().size()}, true, key, depth);
    case ValueKind::Aggregate: {
        Aggregate& aggregate = value.aggregate();
        return appendMembers(_reader.members(aggregate), aggregate.isOrdered(), key, depth);
    }
    default:
        return false;
    }
}

/// A REAL that is whole is equal to the INTEGER.
void ValueKey::appendNumber(const Value& value, std::string& key) const {
    const double number = value.number();
    const bool isExact = value.kind() == ValueKind::Real ||
                         (std::abs(number) < 0x1p63 && static_cast<std::int64_t>(number) == value.integer());
    if (isExact) {
        // 0.0 and -0.0 are one number.
        appendBytes(key, 'N', std::bit_cast<std::uint64_t>(number + 0.0));
    } else {
        appendBytes(key, 'I', value.integer());
    }
}

void ValueKey::appendEnumerator(const Value& value, std::string& key) const {
    const sdai::DefinedType* type = _reader.definedType(value);
    const sdai::EnumerationType* enumeration = type != nullptr ? type->resolved().asEnumeration() : nullptr;
    appendBytes(key, '.', enumeration != nullptr ? enumeration->definedType().position() : 0xFFFFFFFFU);
    appendText(key, '.', text::asciiUpper(value.text()));
}

bool ValueKey::appendMembers(std::span<const Value> members, bool isOrdered, std::string& key, unsigned depth) {
    appendBytes(key, isOrdered ? '(' : '{', std::uint64_t{members.size()});
    if (isOrdered) {
        return std::ranges::all_of(members, [&](const Value& member) { return append(member, key, depth + 1); });
    }
    std::vector<std::string> keys;
    for (const Value& member : members) {
        if (!append(member, keys.emplace_back(), depth + 1)) return false;
    }
    std::ranges::sort(keys);
    for (const std::string& member : keys) key += member;
    return true;
}

} // namespace velkor::rules
