/// The token that a reader stands on, and the first error.
#pragma once

#include "ExpressLexer.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::express {

/// The first error sticks and turns every later token into the end, so that readers unwind without asking.
class ExpressTokens {
public:
    /// The name of the source stands in errors.
    ExpressTokens(std::string_view text, std::string name);

    const ExpressToken& token() const noexcept { return _token; }
    bool isAtEnd() const noexcept { return _token.kind == ExpressTokenKind::End; }
    const std::optional<std::string>& error() const noexcept { return _error; }

    void advance();
    /// "NAME:LINE: expected …, found …", for the token stood on.
    void fail(std::string_view expected);
    /// The same for a token that was read before.
    void failAt(const ExpressToken& token, std::string_view expected);

    bool isWord(std::string_view word) const noexcept { return _token.isWord(word); }
    bool isSymbol(std::string_view symbol) const noexcept { return _token.isSymbol(symbol); }
    bool takeWord(std::string_view word);
    bool takeSymbol(std::string_view symbol);
    void expectWord(std::string_view word);
    void expectSymbol(std::string_view symbol);
    std::string identifier(std::string_view expected);
    /// In parentheses, separated by commas.
    std::vector<std::string> identifiers(std::string_view expected);
    int integer();

    /// The tokens since here, for text between: remember token().text.data() before.
    /// On one line, without remarks, up to but not including the token stood on.
    std::string textFrom(const char* begin) const;

private:
    ExpressLexer _lexer;
    std::string _name;
    ExpressToken _token;
    std::optional<std::string> _error;
};

} // namespace velkor::express
