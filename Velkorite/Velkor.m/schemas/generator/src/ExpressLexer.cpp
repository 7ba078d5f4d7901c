#include "ExpressLexer.h"

#include <algorithm>

namespace velkor::dictgen {

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
        const auto end = std::ranges::find_if_not(_rest, isDigit);
        token.text = _rest.substr(0, static_cast<std::size_t>(end - _rest.begin()));
        token.kind = ExpressTokenKind::Integer;
    } else if (first == '\'' || first == '"') {
        // A doubled quote is two literals side by side, which nobody minds here.
        const auto end = _rest.find(first, 1);
        token.kind = end == std::string_view::npos ? ExpressTokenKind::Bad : ExpressTokenKind::Text;
        token.text = _rest.substr(0, end == std::string_view::npos ? end : end + 1);
    }
    _line += static_cast<int>(std::ranges::count(token.text, '\n'));
    _rest.remove_prefix(token.text.size());
    return token;
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

} // namespace velkor::dictgen
