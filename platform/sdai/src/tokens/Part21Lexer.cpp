#include "velkor/sdai/Part21Lexer.h"

#include "Characters.h"

#include <cstring>

namespace velkor::sdai {

using namespace part21;

namespace {

/// What a look for references stops at.
constexpr std::array<bool, 256> isReferenceStop = [] {
    std::array<bool, 256> stops{};
    for (const char c : {'#', '\'', '/', ';'}) stops[static_cast<unsigned char>(c)] = true;
    return stops;
}();

} // namespace

Token Part21Lexer::next() noexcept {
    skipSeparators();
    if (_next == _end) return {TokenKind::End, {_next, static_cast<std::size_t>(_end - _next)}};
    switch (*_next) {
    case '(':
        return token(TokenKind::Open, _next + 1);
    case ')':
        return token(TokenKind::Close, _next + 1);
    case ',':
        return token(TokenKind::Comma, _next + 1);
    case '=':
        return token(TokenKind::Equals, _next + 1);
    case ';':
        return token(TokenKind::Semicolon, _next + 1);
    case '$':
        return token(TokenKind::Omitted, _next + 1);
    case '*':
        return token(TokenKind::Derived, _next + 1);
    case '\'':
        return string();
    case '"':
        return binary();
    case '.':
        return enumeration();
    default:
        break;
    }
    if (isDigit(*_next) || *_next == '+' || *_next == '-') return number();
    const bool instanceName = *_next == '#';
    const char* at = _next + (instanceName || *_next == '!' ? 1 : 0);
    if (at == _end || !isClass(*at, instanceName ? Digit : Upper)) return badRun();
    while (at != _end && isClass(*at, instanceName ? Digit : Upper | Digit)) ++at;
    if (at != _end && !isClass(*at, Delimiter)) return badRun();
    return token(instanceName ? TokenKind::InstanceName : TokenKind::Keyword, at);
}

bool Part21Lexer::skipParameter() noexcept {
    std::size_t depth = 0;
    while (_next != _end) {
        switch (*_next) {
        case '\'':
            string();
            continue;
        case '/':
            if (!skipComment()) ++_next;
            continue;
        case '(':
            ++depth;
            break;
        case ')':
            if (depth-- == 0) return true;
            break;
        case ',':
            if (depth == 0) return true;
            break;
        case ';':
            return false;
        default:
            break;
        }
        ++_next;
    }
    return false;
}

Token Part21Lexer::nextReference() noexcept {
    for (;;) {
        while (_next != _end && !isReferenceStop[static_cast<unsigned char>(*_next)]) ++_next;
        if (_next == _end || *_next == ';') return {TokenKind::End, {_next, 0}};
        if (*_next == '#') {
            const Token name = next();
            if (name.kind == TokenKind::InstanceName) return name;
        } else if (*_next == '\'') {
            string();
        } else if (!skipComment()) {
            ++_next;
        }
    }
}

void Part21Lexer::skipSeparators() noexcept {
    while (_next != _end) {
        if (isSpace(*_next)) {
            ++_next;
        } else if (isPrintControl(_next, _end)) {
            _next += 3;
        } else if (!skipComment()) {
            return;
        }
    }
}

bool Part21Lexer::skipComment() noexcept {
    if (_end - _next < 2 || _next[0] != '/' || _next[1] != '*') return false;
    _next += 2;
    if (_noCommentEnd) return true;
    const void* close = memmem(_next, static_cast<std::size_t>(_end - _next), "*/", 2);
    if (close != nullptr) _next = static_cast<const char*>(close) + 2;
    _noCommentEnd = close == nullptr;
    return true;
}

Token Part21Lexer::token(TokenKind kind, const char* end) noexcept {
    const Token result{kind, {_next, static_cast<std::size_t>(end - _next)}};
    _next = end;
    return result;
}

Token Part21Lexer::badRun() noexcept {
    const char* at = _next + 1;
    while (at != _end && !isClass(*at, Delimiter)) ++at;
    return token(TokenKind::Bad, at);
}

Token Part21Lexer::number() noexcept {
    const auto digits = [this](const char* at) {
        while (at != _end && isDigit(*at)) ++at;
        return at;
    };
    const auto sign = [this](const char* at) { return at + (at != _end && (*at == '+' || *at == '-') ? 1 : 0); };

    const char* first = sign(_next);
    const char* at = digits(first);
    if (at == first) return badRun();
    TokenKind kind = TokenKind::Integer;
    if (at != _end && *at == '.') {
        kind = TokenKind::Real;
        at = digits(at + 1);
        if (at != _end && *at == 'E') {
            const char* exponent = sign(at + 1);
            at = digits(exponent);
            if (at == exponent) return badRun();
        }
    }
    if (at != _end && !isClass(*at, Delimiter)) return badRun();
    return token(kind, at);
}

Token Part21Lexer::string() noexcept {
    for (const char* at = _next + 1; at < _end;) {
        if (*at == '\'') {
            if (at + 1 == _end || at[1] != '\'') return token(TokenKind::String, at + 1);
            at += 2;
        } else {
            at += *at == '\\' ? directiveLength(at, _end) : 1;
        }
    }
    return token(TokenKind::Bad, _end);
}

Token Part21Lexer::binary() noexcept {
    const char* at = _next + 1;
    while (at != _end && isClass(*at, Hex)) ++at;
    if (at == _end || *at != '"') {
        while (at != _end && !isClass(*at, Delimiter)) ++at;
        return token(TokenKind::Bad, at != _end && *at == '"' ? at + 1 : at);
    }
    // The first digit tells how many bits of the next are unused.
    const bool hasBits = at - _next > 2;
    const bool counted = _next[1] == '0' || (hasBits && _next[1] >= '1' && _next[1] <= '3');
    return token(counted ? TokenKind::Binary : TokenKind::Bad, at + 1);
}

Token Part21Lexer::enumeration() noexcept {
    const char* at = _next + 1;
    if (at == _end || !isClass(*at, Upper)) return badRun();
    while (at != _end && isClass(*at, Upper | Digit)) ++at;
    if (at == _end || *at != '.') return badRun();
    return token(TokenKind::Enumeration, at + 1);
}

} // namespace velkor::sdai
