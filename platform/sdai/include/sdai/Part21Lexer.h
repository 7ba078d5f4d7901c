/// Tokens of the clear text encoding (ISO 10303-21, clause 7 and annex B), one at a time
/// over a piece of text. The lexer allocates nothing; decoding a string does.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::sdai {

enum class TokenKind : std::uint8_t {
    End,          ///< end of the text
    Keyword,      ///< IFCWALL, also the user-defined form with a leading "!"
    InstanceName, ///< #12
    Integer,
    Real,
    String,      ///< with its apostrophes
    Enumeration, ///< .METRE. with its dots; also .T. .F. .U.
    Binary,      ///< "0FF" with its quotes
    Omitted,     ///< $
    Derived,     ///< *
    Open,        ///< (
    Close,       ///< )
    Comma,
    Equals,
    Semicolon,
    Bad, ///< no token of the standard; as long as what a reader should skip
};

struct Token {
    TokenKind kind = TokenKind::End;
    /// The token as it stands in the text; its address places it.
    std::string_view text;
};

class Part21Lexer {
public:
    explicit Part21Lexer(std::string_view text) noexcept : _next(text.data()), _end(text.data() + text.size()) {}

    /// The next token, white space and comments skipped.
    Token next() noexcept;
    /// The next token, left in place.
    Token peek() const noexcept {
        Part21Lexer copy = *this;
        return copy.next();
    }
    const char* position() const noexcept { return _next; }

    /// Skips one parameter, nested ones included, up to the "," or ")" behind it without
    /// reading it closely. False when the text ends first.
    bool skipParameter() noexcept;

private:
    const char* _next;
    const char* _end;
};

/// A String token's text in UTF-8, all directives decoded: '' \\ \S\ \P.\ \X\ \X2\..\X0\
/// \X4\..\X0\. What is not a valid directive stands as it is written; bytes that are not
/// UTF-8 are taken as ISO 8859-1. `error`, when given, receives the first violation in words.
std::string decodeString(std::string_view token, std::string* error = nullptr);

/// A Real or Integer token's value. Also reads what some writers put in place of numbers that
/// their printf could not write ("1.#INF", "-1.#IND"); those are Bad tokens. False when the
/// text is no number.
bool decodeReal(std::string_view token, double& value) noexcept;
/// False when the text is no integer or does not fit.
bool decodeInteger(std::string_view token, std::int64_t& value) noexcept;

} // namespace velkor::sdai
