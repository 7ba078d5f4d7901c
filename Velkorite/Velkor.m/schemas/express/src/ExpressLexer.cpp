#include "ExpressLexer.h"

#include <algorithm>
#include <array>

namespace velkor::express {

namespace {

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isWordCharacter(char c) {
    return isLetter(c) || isDigit(c) || c == '_';
}
bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// Longer ones first.
constexpr std::array<std::string_view, 10> longSymbols{":<>:", ":=:", ":=", "<=", ">=", "<>", "<*", "**", "||", "*)"};

/// Of the literal that a text begins with; npos when it does not end. A doubled quote belongs to it.
std::size_t literalLength(std::string_view text) {
    for (std::size_t end = text.find(text.front(), 1);; end = text.find(text.front(), end + 2)) {
        if (end == std::string_view::npos) return end;
        if (end + 1 == text.size() || text[end + 1] != text.front()) return end + 1;
    }
}

std::size_t digitsFrom(std::string_view text, std::size_t begin) {
    while (begin < text.size() && isDigit(text[begin])) ++begin;
    return begin;
}

} // namespace

bool ExpressToken::isWord(std::string_view upperCase) const noexcept {
    return kind == ExpressTokenKind::Word && std::ranges::equal(text, upperCase, [](char a, char b) {
               return (a >= 'a' && a <= 'z' ? static_cast<char>(a - 'a' + 'A') : a) == b;
           });
}

ExpressLexer::ExpressLexer(std::string_view text) noexcept : _rest(text) {
    if (_rest.starts_with("\xEF\xBB\xBF")) _rest.remove_prefix(3);
}

ExpressToken ExpressLexer::next() noexcept {
    if (!skipRemarks()) return {ExpressTokenKind::Bad, _rest.substr(0, 2), _line};
    if (_rest.empty()) return {ExpressTokenKind::End, _rest, _line};

    ExpressToken token{ExpressTokenKind::Symbol, _rest.substr(0, 1), _line};
    const char first = _rest.front();
    if (isLetter(first)) {
        token.kind = ExpressTokenKind::Word;
        token.text =
            _rest.substr(0, static_cast<std::size_t>(std::ranges::find_if_not(_rest, isWordCharacter) - _rest.begin()));
    } else if (isDigit(first)) {
        token.text = _rest.substr(0, numberLength());
        token.kind =
            token.text.find('.') == std::string_view::npos ? ExpressTokenKind::Integer : ExpressTokenKind::Real;
    } else if (first == '\'' || first == '"') {
        const std::size_t length = literalLength(_rest);
        token.kind = length == std::string_view::npos ? ExpressTokenKind::Bad : ExpressTokenKind::Text;
        token.text = _rest.substr(0, length);
    } else if (first == '%') {
        const auto end = std::ranges::find_if_not(_rest.substr(1), [](char c) { return c == '0' || c == '1'; });
        token.text = _rest.substr(0, static_cast<std::size_t>(end - _rest.begin()));
        token.kind = ExpressTokenKind::Binary;
    } else {
        const auto found =
            std::ranges::find_if(longSymbols, [&](std::string_view symbol) { return _rest.starts_with(symbol); });
        if (found != longSymbols.end()) token.text = _rest.substr(0, found->size());
    }
    _line += static_cast<int>(std::ranges::count(token.text, '\n'));
    _rest.remove_prefix(token.text.size());
    return token;
}

std::size_t ExpressLexer::numberLength() const noexcept {
    std::size_t length = digitsFrom(_rest, 0);
    if (length == _rest.size() || _rest[length] != '.') return length;
    length = digitsFrom(_rest, length + 1);
    if (length == _rest.size() || (_rest[length] != 'E' && _rest[length] != 'e')) return length;
    std::size_t exponent = length + 1;
    if (exponent < _rest.size() && (_rest[exponent] == '+' || _rest[exponent] == '-')) ++exponent;
    const std::size_t end = digitsFrom(_rest, exponent);
    return end > exponent ? end : length;
}

// False at a remark that does not end.
bool ExpressLexer::skipRemarks() noexcept {
    for (;;) {
        while (!_rest.empty() && isSpace(_rest.front())) {
            if (_rest.front() == '\n') ++_line;
            _rest.remove_prefix(1);
        }
        if (_rest.starts_with("--")) {
            _rest.remove_prefix(std::min(_rest.find_first_of("\r\n"), _rest.size()));
        } else if (!_rest.starts_with("(*")) {
            return true;
        } else if (!skipEmbeddedRemark()) {
            return false;
        }
    }
}

// Embedded remarks nest.
bool ExpressLexer::skipEmbeddedRemark() noexcept {
    std::size_t depth = 0;
    int lines = 0;
    for (std::size_t i = 0; i + 1 < _rest.size(); ++i) {
        const std::string_view two = _rest.substr(i, 2);
        if (two[0] == '\n') ++lines;
        if (two != "(*" && two != "*)") continue;
        two == "(*" ? ++depth : --depth;
        ++i;
        if (depth > 0) continue;
        _rest.remove_prefix(i + 1);
        _line += lines;
        return true;
    }
    return false;
}

} // namespace velkor::express
