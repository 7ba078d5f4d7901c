/// Tokens of EXPRESS (ISO 10303-11, clause 7).
#pragma once

#include <cstdint>
#include <string_view>

namespace velkor::dictgen {

enum class ExpressTokenKind : std::uint8_t {
    End,
    Word,    ///< keyword or identifier
    Integer, ///< digits
    Text,    ///< string or real literal; never part of a declaration that is read
    Symbol,  ///< a single character
    Bad,     ///< a literal or remark without its end
};

struct ExpressToken {
    ExpressTokenKind kind = ExpressTokenKind::End;
    std::string_view text;
    int line = 1;

    bool isSymbol(char symbol) const noexcept { return kind == ExpressTokenKind::Symbol && text.front() == symbol; }
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

    std::string_view _rest;
    int _line = 1;
};

} // namespace velkor::dictgen
