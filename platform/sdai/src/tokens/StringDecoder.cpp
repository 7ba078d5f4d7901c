#include "StringDecoder.h"

#include "Alphabets.h"
#include "Characters.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/text/Unicode.h"

#include <charconv>
#include <cstdio>

namespace velkor::sdai {

std::string decodeString(std::string_view token, std::string* error) {
    std::string text;
    text.reserve(token.size());
    part21::StringViolation violation;
    part21::StringDecoder(&text, error ? &violation : nullptr).decode(token);
    if (error && violation.position != std::string_view::npos) *error = std::move(violation.message);
    return text;
}

namespace part21 {

namespace {

/// Value of hexadecimal digits of either case; false when one is none.
bool hexadecimal(const char* at, std::size_t digits, std::uint32_t& value) noexcept {
    const auto result = std::from_chars(at, at + digits, value, 16);
    return result.ec == std::errc() && result.ptr == at + digits;
}

std::string inHex(unsigned value, int digits) {
    char text[16];
    std::snprintf(text, sizeof text, "%0*X", digits, value);
    return text;
}

} // namespace

void StringDecoder::decode(std::string_view token) {
    _begin = token.data();
    _next = _begin;
    _end = _begin + token.size();
    if (token.starts_with('\'')) ++_next;
    if (_end > _next && _end[-1] == '\'') --_end;

    while (_next < _end) {
        const char* plain = _next;
        while (_next < _end && isClass(*_next, Basic) && *_next != '\\' && *_next != '\'') ++_next;
        if (_text) _text->append(plain, _next);
        if (_next == _end) return;
        if (*_next == '\\') {
            directive();
        } else if (*_next == '\'') {
            const bool doubled = _end - _next >= 2 && _next[1] == '\'';
            if (!doubled) violation(_next, "an apostrophe inside a string is written twice");
            append('\'');
            _next += doubled ? 2 : 1;
        } else {
            foreignByte();
        }
    }
}

void StringDecoder::directive() {
    const std::size_t length = directiveLength(_next, _end);
    if (length == 2) {
        append('\\');
        _next += 2;
    } else if (length == 4 && _next[1] == 'S') {
        pageCharacter(_next[3]);
    } else if (length == 4 && _next[1] == 'P' && _next[2] >= 'A' && _next[2] <= 'I') {
        _page = _next[2];
        _next += 4;
    } else if (length == 4 && _next[1] == 'P') {
        violation(_next, R"(expected a letter A to I in the directive \P.\)");
        take(2);
        if (isClass(*_next, Basic)) {
            take(1);
        } else {
            foreignByte();
        }
        take(1);
    } else if (length == 3 && _next[1] == 'X') {
        arbitrary();
    } else if (length == 4 && _next[1] == 'X' && _next[2] != '0') {
        extended(_next[2] == '2' ? 4 : 8);
    } else if (length == 4 && _next[1] == 'X') {
        violation(_next, R"(directive \X0\ without \X2\ or \X4\ before it)");
        take(4);
    } else if (length == 3 && _next[1] == 'S') {
        violation(_next, R"(expected a character of the basic alphabet behind \S\)");
        take(3);
    } else {
        violation(_next, R"(expected a directive or a second reverse solidus behind "\")");
        take(1);
    }
}

void StringDecoder::pageCharacter(char code) {
    const char32_t character = alphabetCharacter(_page, static_cast<unsigned char>(code + 128));
    if (character == 0) {
        violation(_next, std::string("ISO 8859-") + static_cast<char>('1' + _page - 'A') +
                             " has no character for \\S\\" + code);
        take(4);
        return;
    }
    append(character);
    _next += 4;
}

void StringDecoder::arbitrary() {
    std::uint32_t value = 0;
    if (_end - _next < 5 || !hexadecimal(_next + 3, 2, value)) {
        violation(_next, R"(expected two hexadecimal digits behind \X\)");
        take(3);
        return;
    }
    if (!isClass(_next[3], Hex) || !isClass(_next[4], Hex))
        violation(_next, "hexadecimal digits are written in upper case");
    append(value);
    _next += 5;
}

void StringDecoder::extended(std::size_t digits) {
    const char* first = _next + 4;
    const char* last = first;
    bool upperCase = true;
    std::uint32_t value = 0;
    for (; static_cast<std::size_t>(_end - last) >= digits && hexadecimal(last, digits, value); last += digits) {
        for (std::size_t i = 0; i < digits; ++i) upperCase = upperCase && isClass(last[i], Hex);
    }
    if (std::string_view(last, static_cast<std::size_t>(_end - last)).substr(0, 4) != R"(\X0\)") {
        violation(_next, digits == 4 ? R"(expected groups of four hexadecimal digits and \X0\ behind \X2\)"
                                     : R"(expected groups of eight hexadecimal digits and \X0\ behind \X4\)");
        take(4);
        return;
    }
    if (first == last) violation(_next, "expected at least one character in an extended directive");
    if (!upperCase) violation(_next, "hexadecimal digits are written in upper case");

    for (const char* at = first; at != last; at += digits) {
        hexadecimal(at, digits, value);
        std::uint32_t low = 0;
        // Many writers put UTF-16 where the standard has one group for one character.
        const bool pair = digits == 4 && (value & 0xFC00U) == 0xD800 && at + 4 != last && hexadecimal(at + 4, 4, low) &&
                          (low & 0xFC00U) == 0xDC00;
        if (pair) {
            value = 0x10000 + ((value & 0x3FFU) << 10) + (low & 0x3FFU);
            violation(at, "a pair of surrogates is no character; it is written as \\X4\\" + inHex(value, 8) + "\\X0\\");
            at += 4;
        } else if (value > 0x10FFFF || (value & 0xFFFFF800U) == 0xD800) {
            violation(at, "code " + inHex(value, static_cast<int>(digits)) + " is no character");
            value = 0xFFFD;
        }
        append(value);
    }
    _next = last + 4;
}

void StringDecoder::foreignByte() {
    const auto byte = static_cast<unsigned char>(*_next);
    std::int32_t character = byte;
    std::size_t length = 1;
    if (byte == '\n' || byte == '\r') {
        violation(_next, "line end inside a string");
    } else if (byte < 0x80) {
        violation(_next, "control character " + inHex(byte, 2) + " inside a string");
    } else if (length = text::decode({_next, _end}, character); character >= 0) {
        const auto code = static_cast<unsigned>(character);
        violation(_next, "character outside the basic alphabet; it is written as " +
                             (code > 0xFFFF ? "\\X4\\" + inHex(code, 8) : "\\X2\\" + inHex(code, 4)) + "\\X0\\");
    } else {
        character = byte;
        violation(_next, "byte " + inHex(byte, 2) + " outside the basic alphabet");
    }
    append(static_cast<char32_t>(character));
    _next += length;
}

void StringDecoder::append(char32_t character) {
    if (_text != nullptr) text::append(*_text, static_cast<std::int32_t>(character));
}

void StringDecoder::take(std::size_t length) {
    if (_text) _text->append(_next, length);
    _next += length;
}

void StringDecoder::violation(const char* at, std::string message) {
    if (_violation == nullptr || _violation->position != std::string_view::npos) return;
    _violation->position = static_cast<std::size_t>(at - _begin);
    _violation->message = std::move(message);
}

} // namespace part21

} // namespace velkor::sdai
