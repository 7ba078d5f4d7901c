/// Classes of the bytes of an exchange structure, and the one decision that scanner, lexer and
/// string decoder must take alike: how far a control directive reaches.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace velkor::sdai::part21 {

enum CharacterClass : std::uint8_t {
    Space = 1,      ///< separates tokens; tolerantly all control characters
    Digit = 2,      ///< 0 to 9
    Upper = 4,      ///< A to Z and "_", the standard's UPPER
    Hex = 8,        ///< 0 to 9, A to F
    Delimiter = 16, ///< ends a run of characters that is no token
    Basic = 32,     ///< the basic alphabet, codes 32 to 126
};

inline constexpr std::array<std::uint8_t, 256> characterClasses = [] {
    std::array<std::uint8_t, 256> classes{};
    for (unsigned c = 0; c <= ' '; ++c) classes[c] |= Space | Delimiter;
    for (unsigned c = '0'; c <= '9'; ++c) classes[c] |= Digit | Hex;
    for (unsigned c = 'A'; c <= 'Z'; ++c) classes[c] |= Upper;
    for (unsigned c = 'A'; c <= 'F'; ++c) classes[c] |= Hex;
    classes['_'] |= Upper;
    for (const char c : {',', '(', ')', ';', '=', '\'', '"', '/', '\\'})
        classes[static_cast<unsigned char>(c)] |= Delimiter;
    for (unsigned c = ' '; c <= '~'; ++c) classes[c] |= Basic;
    return classes;
}();

inline bool isClass(char c, std::uint8_t mask) noexcept {
    return (characterClasses[static_cast<unsigned char>(c)] & mask) != 0;
}

inline bool isSpace(char c) noexcept {
    return isClass(c, Space);
}
inline bool isDigit(char c) noexcept {
    return isClass(c, Digit);
}

/// Whether one of the print control directives \N\ and \F\ begins here, which count as white space.
inline bool isPrintControl(const char* at, const char* end) noexcept {
    return end - at >= 3 && at[0] == '\\' && (at[1] == 'N' || at[1] == 'F') && at[2] == '\\';
}

/// Bytes that belong together from a reverse solidus inside a string: 1 when it starts no
/// directive. Only \S\ reaches over an apostrophe, so only this decides where a string ends.
inline std::size_t directiveLength(const char* at, const char* end) noexcept {
    const auto left = static_cast<std::size_t>(end - at);
    if (left >= 2 && at[1] == '\\') return 2;
    if (left >= 4) {
        if (at[1] == 'S' && at[2] == '\\') return isClass(at[3], Basic) ? 4 : 3;
        const bool page = at[1] == 'P' && at[3] == '\\';
        const bool extended = at[1] == 'X' && (at[2] == '0' || at[2] == '2' || at[2] == '4') && at[3] == '\\';
        if ((page && at[2] != '\'') || extended) return 4;
    }
    if (left >= 3 && at[1] == 'X' && at[2] == '\\') return 3;
    return 1;
}

} // namespace velkor::sdai::part21
