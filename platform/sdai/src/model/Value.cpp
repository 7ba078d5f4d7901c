#include "velkor/sdai/Value.h"

#include "velkor/sdai/Model.h"
#include "velkor/sdai/Part21Lexer.h"

#include <cmath>
#include <iterator>

namespace velkor::sdai {

namespace {

/// A value as its first token, typed parameters looked through: IFCLABEL('x') gives 'x'.
struct Plain {
    Token token;
    /// Keyword of the innermost typed parameter; empty when the value is not typed.
    std::string_view keyword;
    /// From the token on.
    std::string_view text;
};

Plain plain(std::string_view text) noexcept {
    Part21Lexer lexer(text);
    Plain result;
    for (;;) {
        result.token = lexer.next();
        if (result.token.kind != TokenKind::Keyword || lexer.peek().kind != TokenKind::Open) break;
        result.keyword = result.token.text;
        lexer.next();
    }
    const char* begin = result.token.text.data();
    result.text = text.substr(static_cast<std::size_t>(begin - text.data()));
    return result;
}

std::string_view withinDots(std::string_view enumeration) noexcept {
    return enumeration.substr(1, enumeration.size() - 2);
}

} // namespace

bool Primitive::isSet() const noexcept {
    const TokenKind kind = Part21Lexer(_text).next().kind;
    return kind != TokenKind::End && kind != TokenKind::Omitted && kind != TokenKind::Derived;
}

std::string_view Primitive::encoded() const noexcept {
    constexpr std::string_view space = " \t\r\n";
    const auto first = _text.find_first_not_of(space);
    if (first == std::string_view::npos) return {};
    return _text.substr(first, _text.find_last_not_of(space) - first + 1);
}

DXSdaiAppInstance* Primitive::asInstance() const {
    const Token token = Part21Lexer(_text).next();
    return token.kind == TokenKind::InstanceName ? _model->instance(decodeInstanceName(token.text)) : nullptr;
}

Aggregate Primitive::asAggregate() const {
    if (_type == nullptr) return {};
    const AggregateType* type = _type->resolved().asAggregate();
    if (type == nullptr && _type->resolved().asSelect() != nullptr) {
        const Select select = asSelect();
        const Type* chosen = select.chosenType();
        // One step: a type chosen that is itself a select holds no aggregate.
        const bool holdsAggregate = chosen != nullptr && chosen->resolved().asAggregate() != nullptr;
        return holdsAggregate ? select.underlyingValue().asAggregate() : Aggregate();
    }
    const Token token = Part21Lexer(_text).next();
    if (type == nullptr || token.kind != TokenKind::Open) return {};
    return {_model, type, _text.substr(static_cast<std::size_t>(token.text.data() - _text.data()))};
}

Enumeration Primitive::asEnumeration() const {
    if (_type == nullptr) return {};
    const Plain value = plain(_text);
    if (value.token.kind != TokenKind::Enumeration) return {};
    const Type* type = value.keyword.empty() ? _type : _model->schema().definedType(value.keyword);
    const EnumerationType* enumeration = type != nullptr ? type->resolved().asEnumeration() : nullptr;
    if (enumeration == nullptr) return {};
    const int position = enumeration->position(withinDots(value.token.text));
    return position < 0 ? Enumeration() : Enumeration{enumeration, position};
}

Select Primitive::asSelect() const {
    if (_type == nullptr || !isSet()) return {};
    Part21Lexer lexer(_text);
    const Token token = lexer.next();
    if (token.kind == TokenKind::InstanceName) {
        const DXSdaiAppInstance* instance = asInstance();
        return {instance != nullptr ? instance->entity() : nullptr, *this};
    }
    if (token.kind != TokenKind::Keyword || lexer.next().kind != TokenKind::Open) return {nullptr, *this};
    const DefinedType* chosen = _model->schema().definedType(token.text);
    const char* begin = lexer.position();
    lexer.skipParameter();
    const std::string_view inner(begin, static_cast<std::size_t>(lexer.position() - begin));
    return {chosen, Primitive(_model, chosen != nullptr ? chosen : _type, inner)};
}

std::string Primitive::asString() const {
    const Token token = plain(_text).token;
    return token.kind == TokenKind::String ? decodeString(token.text) : std::string();
}

std::optional<double> Primitive::asReal() const {
    const Token token = plain(_text).token;
    double value = 0.0;
    const bool isNumber =
        token.kind == TokenKind::Real || token.kind == TokenKind::Integer || token.kind == TokenKind::Bad;
    return isNumber && decodeReal(token.text, value) ? std::optional(value) : std::nullopt;
}

std::optional<std::int64_t> Primitive::asInteger() const {
    const Token token = plain(_text).token;
    std::int64_t integer = 0;
    if (token.kind == TokenKind::Integer && decodeInteger(token.text, integer)) return integer;
    // Some writers give whole numbers a point.
    double real = 0.0;
    if (token.kind == TokenKind::Real && decodeReal(token.text, real) && std::trunc(real) == real &&
        std::abs(real) < 0x1p53) {
        return static_cast<std::int64_t>(real);
    }
    const Enumeration enumeration = asEnumeration();
    return enumeration.type != nullptr ? std::optional<std::int64_t>(enumeration.value) : std::nullopt;
}

std::optional<bool> Primitive::asBoolean() const {
    const auto logical = asLogical();
    return logical && *logical != Logical::Unknown ? std::optional(*logical == Logical::True) : std::nullopt;
}

std::optional<Logical> Primitive::asLogical() const {
    const Token token = plain(_text).token;
    if (token.kind != TokenKind::Enumeration) return std::nullopt;
    const std::string_view word = withinDots(token.text);
    if (word == "T") return Logical::True;
    if (word == "F") return Logical::False;
    return word == "U" ? std::optional(Logical::Unknown) : std::nullopt;
}

std::string_view Primitive::asBinary() const noexcept {
    const Token token = plain(_text).token;
    return token.kind == TokenKind::Binary ? token.text.substr(1, token.text.size() - 2) : std::string_view();
}

std::size_t Aggregate::memberCount() const noexcept {
    return static_cast<std::size_t>(std::ranges::distance(*this));
}

void AggregateIterator::beginning() noexcept {
    _lexer = Part21Lexer(_aggregate._text);
    _isFirst = true;
    _current = {};
}

bool AggregateIterator::next() noexcept {
    _current = {};
    if (_lexer.peek().kind != (_isFirst ? TokenKind::Open : TokenKind::Comma)) return false;
    _lexer.next();
    const Token token = _lexer.peek();
    if (token.kind == TokenKind::End || (_isFirst && token.kind == TokenKind::Close)) return false;
    _isFirst = false;
    _lexer.skipParameter();
    const char* const begin = token.text.data();
    _current = {begin, static_cast<std::size_t>(_lexer.position() - begin)};
    return true;
}

Primitive AggregateIterator::current() const noexcept {
    if (_current.data() == nullptr) return {};
    return {_aggregate._model, &_aggregate._type->element(), _current};
}

} // namespace velkor::sdai
