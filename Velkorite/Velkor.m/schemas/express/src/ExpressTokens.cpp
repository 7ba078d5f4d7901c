#include "ExpressTokens.h"

#include <charconv>

namespace velkor::express {

ExpressTokens::ExpressTokens(std::string_view text, std::string name) : _lexer(text), _name(std::move(name)) {
    advance();
}

void ExpressTokens::advance() {
    _token = _error ? ExpressToken{} : _lexer.next();
    if (_token.kind == ExpressTokenKind::Bad) fail("an end of the literal or remark");
}

void ExpressTokens::fail(std::string_view expected) {
    failAt(_token, expected);
}

void ExpressTokens::failAt(const ExpressToken& token, std::string_view expected) {
    if (_error) return;
    _error = _name + ":" + std::to_string(token.line) + ": expected " + std::string(expected) + ", found " +
             (token.kind == ExpressTokenKind::End ? "the end" : '"' + std::string(token.text.substr(0, 40)) + '"');
    _token = {};
}

bool ExpressTokens::takeWord(std::string_view word) {
    if (!_token.isWord(word)) return false;
    advance();
    return true;
}

bool ExpressTokens::takeSymbol(std::string_view symbol) {
    if (!_token.isSymbol(symbol)) return false;
    advance();
    return true;
}

void ExpressTokens::expectWord(std::string_view word) {
    if (!takeWord(word)) fail(word);
}

void ExpressTokens::expectSymbol(std::string_view symbol) {
    if (!takeSymbol(symbol)) fail('"' + std::string(symbol) + '"');
}

std::string ExpressTokens::identifier(std::string_view expected) {
    std::string text(_token.text);
    _token.kind == ExpressTokenKind::Word ? advance() : fail(expected);
    return text;
}

std::vector<std::string> ExpressTokens::identifiers(std::string_view expected) {
    std::vector<std::string> names;
    expectSymbol("(");
    do names.push_back(identifier(expected));
    while (takeSymbol(","));
    expectSymbol(")");
    return names;
}

int ExpressTokens::integer() {
    int value = 0;
    const auto end = _token.text.data() + _token.text.size();
    if (_token.kind != ExpressTokenKind::Integer || std::from_chars(_token.text.data(), end, value).ec != std::errc()) {
        fail("an integer");
    }
    advance();
    return value;
}

std::string ExpressTokens::textFrom(const char* begin) const {
    if (_error) return {};
    std::string text;
    ExpressLexer lexer({begin, static_cast<std::size_t>(_token.text.data() - begin)});
    const char* behind = nullptr;
    for (ExpressToken token = lexer.next(); token.kind != ExpressTokenKind::End; token = lexer.next()) {
        if (behind != nullptr && token.text.data() != behind) text += ' ';
        text += token.text;
        behind = token.text.data() + token.text.size();
    }
    return text;
}

} // namespace velkor::express
