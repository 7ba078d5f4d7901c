/// Tokens of EXPRESS (ISO 10303-11, clause 7).
#pragma once

#include <cstdint>
#include <string_view>

namespace velkor::express {

enum class ExpressTokenKind : std::uint8_t {
    End,
    Word,    ///< keyword or identifier
    Integer, ///< digits
    Real,    ///< digits with a point, perhaps an exponent
    Text,    ///< string literal with its quotes: '…' or the encoded "…"
    Binary,  ///< % and digits 0 and 1
    Symbol,  ///< one to four characters: ; := :<>: <*
    Bad,     ///< a literal or remark without its end
};

struct ExpressToken {
    ExpressTokenKind kind = ExpressTokenKind::End;
    std::string_view text;
    int line = 1;

    bool isSymbol(std::string_view symbol) const noexcept { return kind == ExpressTokenKind::Symbol && text == symbol; }
    /// Keywords are written in any case.
    bool isWord(std::string_view upperCase) const noexcept;
};

class ExpressLexer {
public:
    /// A byte order mark is skipped.
    explicit ExpressLexer(std::string_view text) noexcept;

    ExpressToken next() noexcept;

private:
    bool skipRemarks() noexcept;
    bool skipEmbeddedRemark() noexcept;
    std::size_t numberLength() const noexcept;

    std::string_view _rest;
    int _line = 1;
};

} // namespace velkor::express
