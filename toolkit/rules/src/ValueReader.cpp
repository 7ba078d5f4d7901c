#include "ValueReader.h"

#include <algorithm>
#include <charconv>

namespace velkor::rules {

using sdai::Part21Lexer;
using sdai::Token;
using sdai::TokenKind;
using sdai::TypeKind;

namespace {

/// Bytes of text whose reading counts as a step.
constexpr std::size_t bytesPerStep = 32;

std::string_view from(const char* at, std::string_view text) noexcept {
    return {at, static_cast<std::size_t>(text.data() + text.size() - at)};
}

/// Takes a member off the text of an aggregate that begins with it. False when it was the last.
bool takeMember(std::string_view& encoded) {
    Part21Lexer lexer(encoded);
    const bool isFollowed = lexer.skipParameter() && lexer.next().kind == TokenKind::Comma;
    encoded = from(lexer.position(), encoded);
    return isFollowed;
}

AggregateKind kindOf(const sdai::AggregateType& type) noexcept {
    switch (type.kind()) {
    case TypeKind::Set:
        return AggregateKind::Set;
    case TypeKind::Array:
        return AggregateKind::Array;
    default:
        return AggregateKind::List;
    }
}

} // namespace

ValueReader::ValueReader(const RuleProgram& program, Evaluation& evaluation)
    : _program(program), _evaluation(evaluation), _places(placeCount) {}

Value ValueReader::read(const sdai::Type& declared, std::string_view text) {
    Part21Lexer lexer(text);
    Token token = lexer.next();
    const sdai::Type* type = &declared;
    const sdai::Type* resolved = &type->resolved();
    if (token.kind == TokenKind::InstanceName) return reference(token, *resolved);
    if (const sdai::SelectType* select = resolved->asSelect()) {
        if (token.kind != TokenKind::Keyword) return {};
        const sdai::DefinedType* chosen = _program.model().schema().definedType(token.text);
        if (chosen == nullptr || !select->accepts(*chosen) || lexer.next().kind != TokenKind::Open) return {};
        type = chosen;
        resolved = &chosen->resolved();
        token = lexer.next();
    }
    const Value value = typed(*resolved, token, from(token.text.data(), text));
    const sdai::DefinedType* definedType = type->asDefined();
    const bool isTyped = definedType != nullptr && !value.isIndeterminate();
    return isTyped ? value.withType(static_cast<std::uint16_t>(definedType->position() + 1)) : value;
}

Value ValueReader::typed(const sdai::Type& resolved, const Token& token, std::string_view rest) {
    if (resolved.isSimple()) return simple(resolved.kind(), token);
    if (const auto* enumeration = resolved.asEnumeration()) {
        if (token.kind != TokenKind::Enumeration) return {};
        const std::string_view name = token.text.substr(1, token.text.size() - 2);
        return enumeration->position(name) >= 0 ? Value::ofText(ValueKind::Enumerator, name) : Value();
    }
    const bool isAggregate = resolved.isAggregate() && token.kind == TokenKind::Open;
    return isAggregate ? Value::ofText(ValueKind::EncodedAggregate, rest) : Value();
}

Value ValueReader::simple(TypeKind kind, const Token& token) {
    const bool isNumber = token.kind == TokenKind::Integer || token.kind == TokenKind::Real;
    switch (kind) {
    case TypeKind::Integer: {
        std::int64_t number = 0;
        double wide = 0.0;
        if (token.kind != TokenKind::Integer) return {};
        if (sdai::decodeInteger(token.text, number)) return Value(number);
        // One that needs more than 64 bits is as large as it is, if not exact.
        return sdai::decodeReal(token.text, wide) ? Value(wide) : Value();
    }
    case TypeKind::Real: {
        double number = 0.0;
        return isNumber && sdai::decodeReal(token.text, number) ? Value(number) : Value();
    }
    case TypeKind::Boolean:
    case TypeKind::Logical:
        if (token.text == ".T.") return Value(Logical::True);
        if (token.text == ".F.") return Value(Logical::False);
        return token.text == ".U." && kind == TypeKind::Logical ? Value(Logical::Unknown) : Value();
    case TypeKind::String:
        return token.kind == TokenKind::String ? string(token.text) : Value();
    default:
        return token.kind == TokenKind::Binary ? binary(token.text) : Value();
    }
}

Value ValueReader::string(std::string_view token) {
    const std::string_view body = token.substr(1, token.size() - 2);
    _evaluation.spend(body.size() / bytesPerStep);
    const auto isPlain = [](char c) { return c >= ' ' && c <= '~' && c != '\'' && c != '\\'; };
    if (std::ranges::all_of(body, isPlain)) return Value::ofText(ValueKind::String, body);
    return Value::ofText(ValueKind::String, _evaluation.copy(sdai::decodeString(token)));
}

Value ValueReader::binary(std::string_view token) {
    const std::string_view digits = token.substr(1, token.size() - 2);
    const std::size_t unused = static_cast<std::size_t>(digits[0] - '0');
    _evaluation.spend(digits.size() / bytesPerStep);
    char* bits = _evaluation.room<char>(4 * (digits.size() - 1));
    char* end = bits;
    for (const char digit : digits.substr(1)) {
        unsigned value = 0;
        std::from_chars(&digit, &digit + 1, value, 16);
        for (unsigned bit = 4; bit-- > 0;) *end++ = (value >> bit & 1U) != 0 ? '1' : '0';
    }
    const auto count = static_cast<std::size_t>(end - bits);
    return Value::ofText(ValueKind::Binary, std::string_view(bits, count).substr(std::min(unused, count)));
}

Value ValueReader::reference(const Token& token, const sdai::Type& resolved) const {
    const auto number = _program.model().file().find(sdai::decodeInstanceName(token.text));
    const sdai::EntityDefinition* entity = number ? _program.model().entityAt(*number) : nullptr;
    if (entity == nullptr) return {};
    const sdai::EntityDefinition* wanted = resolved.asEntity();
    const sdai::SelectType* select = resolved.asSelect();
    const bool fits =
        (wanted != nullptr && entity->isKindOf(*wanted)) || (select != nullptr && select->accepts(*entity));
    return fits ? Value::ofInstance(*number) : Value();
}

/// An aggregate that still stands in the file, as one whose members can be asked for.
Value ValueReader::opened(const Value& value, const sdai::Type& declared) {
    if (value.kind() != ValueKind::EncodedAggregate) return value;
    const sdai::DefinedType* own = definedType(value);
    Aggregate& aggregate = _evaluation.makeAggregate(AggregateKind::List);
    aggregate.declared = (own != nullptr ? own->resolved() : declared.resolved()).asAggregate();
    aggregate.kind = kindOf(*aggregate.declared);
    aggregate.lower = aggregate.kind == AggregateKind::Array ? aggregate.declared->lowerBound() : 1;
    aggregate.holding = Holding::Several;
    // Behind the "(".
    aggregate.encoded = value.text().substr(1);
    const TokenKind first = Part21Lexer(aggregate.encoded).next().kind;
    aggregate.isEncoded = first != TokenKind::Close && first != TokenKind::End;
    aggregate.size = aggregate.isEncoded ? Aggregate::uncounted : 0;
    return Value(aggregate).withType(value.type());
}

Value ValueReader::attribute(std::uint32_t number, const sdai::EntityDefinition& entity, std::size_t slot) {
    const std::string_view text = parameter(number, slot);
    if (text.empty()) return {};
    return value(entity.attributes()[slot].attribute->type(), text);
}

ValueReader::Place& ValueReader::place(std::uint32_t number) {
    Place& place = _places[number % placeCount];
    if (place.number == number) return place;
    const std::string_view text = _program.model().file().instanceText(number);
    place.number = number;
    place.known = 0;
    place.parameters = {};
    Part21Lexer lexer(text);
    lexer.next();
    if (lexer.next().kind != TokenKind::Open) return place;
    const std::string_view parameters = from(lexer.position(), text);
    if (parameters.size() > Place::nobody || lexer.peek().kind == TokenKind::Close) return place;
    place.parameters = parameters;
    place.known = 1;
    place.begins[0] = 0;
    return place;
}

std::string_view ValueReader::parameter(std::uint32_t number, std::size_t slot) {
    Place& at = place(number);
    if (slot < at.known) return at.parameters.substr(at.begins[slot]);
    if (at.known == 0) return {};
    std::size_t reached = at.known - 1;
    const std::string_view begin = at.parameters.substr(at.begins[reached]);
    Part21Lexer lexer(begin);
    for (; reached < slot; ++reached) {
        if (!lexer.skipParameter() || lexer.next().kind != TokenKind::Comma) return {};
        if (reached + 1 != at.known || at.known == at.begins.size()) continue;
        at.begins[at.known++] = static_cast<std::uint32_t>(lexer.position() - at.parameters.data());
    }
    const std::string_view found = from(lexer.position(), at.parameters);
    _evaluation.spend((begin.size() - found.size()) / bytesPerStep);
    return found;
}

std::uint32_t ValueReader::size(Aggregate& aggregate) {
    if (aggregate.size != Aggregate::uncounted) return aggregate.size;
    std::string_view rest = aggregate.encoded;
    std::size_t count = aggregate.decoded + std::size_t{1};
    // Paid for while it goes on, so that a list is not looked through for nothing.
    constexpr std::size_t bytesAtOnce = 16 * 1024;
    std::size_t paid = rest.size();
    while (takeMember(rest)) {
        ++count;
        if (paid - rest.size() < bytesAtOnce) continue;
        _evaluation.spend((paid - rest.size()) / bytesPerStep);
        paid = rest.size();
    }
    _evaluation.spend(1 + (paid - rest.size()) / bytesPerStep);
    if (count >= Aggregate::uncounted) throw BoundReached();
    aggregate.size = static_cast<std::uint32_t>(count);
    return aggregate.size;
}

void ValueReader::decodeOne(Aggregate& aggregate) {
    _evaluation.spend();
    const bool isCounted = aggregate.size != Aggregate::uncounted;
    _evaluation.reserve(aggregate, isCounted ? aggregate.size - aggregate.decoded : 1);
    aggregate.members[aggregate.decoded] = read(aggregate.declared->element(), aggregate.encoded);
    ++aggregate.decoded;
    aggregate.isEncoded = takeMember(aggregate.encoded);
    if (!aggregate.isEncoded) aggregate.size = aggregate.decoded;
}

Value ValueReader::member(Aggregate& aggregate, std::uint64_t position) {
    while (aggregate.decoded <= position) {
        if (!aggregate.isEncoded) return {};
        decodeOne(aggregate);
    }
    Value& member = aggregate.members[position];
    if (member.kind() == ValueKind::EncodedAggregate) member = opened(member, aggregate.declared->element());
    return member;
}

std::span<Value> ValueReader::members(Aggregate& aggregate) {
    if (aggregate.isEncoded) size(aggregate);
    while (aggregate.isEncoded) decodeOne(aggregate);
    const std::span<Value> members(aggregate.members, aggregate.size);
    if (aggregate.declared == nullptr) return members;
    for (Value& member : members) {
        if (member.kind() == ValueKind::EncodedAggregate) member = opened(member, aggregate.declared->element());
    }
    return members;
}

const sdai::DefinedType* ValueReader::definedType(const Value& value) const noexcept {
    return value.type() != 0 ? _program.model().schema().definedTypes()[value.type() - 1U] : nullptr;
}

} // namespace velkor::rules
