/// The kinds of problems that reading and judging a model tells of, by their codes.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <string_view>

namespace velkor::sdai {

/// What checkSyntax, checkPopulation and Model::schemaProblem tell, in alphabetical order.
inline constexpr std::array<std::string_view, 38> checkCodes{
    "abstract-entity",         "aggregate-size",
    "attribute-count",         "byte-order-mark",
    "character-invalid",       "comment-not-closed",
    "dangling-reference",      "data-missing",
    "data-parameters-missing", "end-missing",
    "endsec-missing",          "header-entity-missing",
    "header-entity-repeated",  "header-entity-unknown",
    "header-missing",          "instance-name-too-large",
    "instance-name-zero",      "instance-repeated",
    "integer-for-real",        "missing-value",
    "parameter-count",         "parameter-type",
    "schema-unknown",          "section-skipped",
    "semicolon-missing",       "start-missing",
    "string-invalid",          "string-not-closed",
    "text-behind-end",         "text-length",
    "token-invalid",           "unexpected-token",
    "unknown-entity",          "unknown-enumerator",
    "untyped-value",           "value-of-derived",
    "wrong-reference",         "wrong-type",
};

/// What opening a file alone tells, where it goes on behind damage.
inline constexpr std::array<std::string_view, 4> openingCodes{"comment-in-comment", "keyword-missing",
                                                              "statement-empty", "unexpected-text"};

/// One of them: a word that is none does not compile.
class ProblemCode {
public:
    /// Compiles for codes of the table alone.
#if defined(__clang__) && __clang_major__ < 16
    // Beside a consteval call, clang 14 destroys temporaries of other arguments twice. Other compilers look through the
    // codes for it.
    constexpr
#else
    consteval
#endif
        ProblemCode(const char* code)
        : _text(code) {
        if (!isAmong(checkCodes, code) && !isAmong(openingCodes, code)) throw "no code of a problem";
    }
    /// The code as it is written.
    constexpr std::string_view text() const noexcept {
        return _text;
    }

private:
    static constexpr bool isAmong(std::span<const std::string_view> codes, std::string_view code) {
        for (const std::string_view known : codes) {
            if (known == code) return true;
        }
        return false;
    }

    std::string_view _text;
};

/// Whether problems of a code are wanted; empty for all. Those that are not are neither listed nor counted.
using CodeChoice = std::function<bool(std::string_view code)>;

} // namespace velkor::sdai
