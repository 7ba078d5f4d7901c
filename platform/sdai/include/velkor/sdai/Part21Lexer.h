/// Tokens of the clear text encoding (ISO 10303-21, clause 7 and annex B), one at a time
/// over a piece of text. The lexer allocates nothing; decoding a string does.
///
///     Part21Lexer lexer("(#1,'wall',2.5)");
///     for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) use(token);
///
/// Line ends inside a string are part of the token; a comment that is not closed counts for its
/// two characters alone; print control directives between tokens count as white space.
#pragma once

#include "velkor/PlatformExport.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::sdai {

/// Kinds of tokens.
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

/// A token of the exchange structure.
struct Token {
    TokenKind kind = TokenKind::End;
    /// The token as it stands in the text; its address places it.
    std::string_view text;
};

class VELKOR_PLATFORM_API Part21Lexer {
public:
    /// Reads a text from its beginning.
    explicit Part21Lexer(std::string_view text) noexcept : _next(text.data()), _end(text.data() + text.size()) {}

    /// The next token, white space and comments skipped.
    Token next() noexcept;
    /// The next token, left in place.
    Token peek() const noexcept {
        Part21Lexer copy = *this;
        return copy.next();
    }
    const char* position() const noexcept { return _next; } ///< Where the next token is looked for.

    /// Skips one parameter, nested ones included, up to the "," or ")" behind it without
    /// reading it closely. False when the text or the statement (";") ends first.
    bool skipParameter() noexcept;

    /// The next instance name, whatever stands before it, strings and comments passed over without being read closely.
    /// An End token when the text or the statement (";") ends first.
    Token nextReference() noexcept;

private:
    VELKOR_PLATFORM_LOCAL void skipSeparators() noexcept;
    VELKOR_PLATFORM_LOCAL bool skipComment() noexcept;
    VELKOR_PLATFORM_LOCAL Token token(TokenKind kind, const char* end) noexcept;
    VELKOR_PLATFORM_LOCAL Token badRun() noexcept;
    VELKOR_PLATFORM_LOCAL Token number() noexcept;
    VELKOR_PLATFORM_LOCAL Token string() noexcept;
    VELKOR_PLATFORM_LOCAL Token binary() noexcept;
    VELKOR_PLATFORM_LOCAL Token enumeration() noexcept;

    const char* _next;
    const char* _end;
    // Set once "*/" was looked for in vain, so that a text full of "/*" is not searched again.
    bool _noCommentEnd = false;
};

/// A String token's text in UTF-8. Decodes doubled apostrophes and reverse solidi and the
/// directives \S\, \P.\, \X\, \X2\ and \X4\, surrogate pairs and hexadecimal digits in lower
/// case included. What is not a valid directive stands as it is written; bytes that are not
/// UTF-8 are taken as ISO 8859-1. `error`, when given, receives the first violation in words.
VELKOR_PLATFORM_API std::string decodeString(std::string_view token, std::string* error = nullptr);

/// A Real or Integer token's value. Also reads what some writers put in place of numbers that
/// their printf could not write ("1.#INF", "-1.#IND"); those are Bad tokens. False when the
/// text is no number.
VELKOR_PLATFORM_API bool decodeReal(std::string_view token, double& value) noexcept;
/// False when the text is no integer or does not fit.
VELKOR_PLATFORM_API bool decodeInteger(std::string_view token, std::int64_t& value) noexcept;
/// An InstanceName token's number; 0, which no instance has, when it needs more than 64 bits, and for other texts.
VELKOR_PLATFORM_API std::uint64_t decodeInstanceName(std::string_view token) noexcept;

} // namespace velkor::sdai
