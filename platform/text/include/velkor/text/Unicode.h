/// Operations on UTF-8 text that everything above shares: counting, case, hashing.
///
/// Text that is not valid UTF-8 is never refused: a byte that belongs to no valid sequence counts
/// as one character, has no case, and equals only itself.
#pragma once

#include "velkor/PlatformExport.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::text {

/// Number of characters (code points).
VELKOR_PLATFORM_API std::size_t characterCount(std::string_view utf8) noexcept;

/// Byte position of a character counted from 0; the text's size when it has no such character.
VELKOR_PLATFORM_API std::size_t byteOffset(std::string_view utf8, std::size_t character) noexcept;

/// Number of bytes of the first character of a text that is not empty. `code` is its code point, below 0
/// for a byte outside any valid sequence.
VELKOR_PLATFORM_API std::size_t decode(std::string_view utf8, std::int32_t& code) noexcept;
/// The first character of a text that is not empty.
VELKOR_PLATFORM_API std::string_view firstCharacter(std::string_view utf8) noexcept;
/// As much of a text as so many bytes hold without cutting a character.
VELKOR_PLATFORM_API std::string_view beginning(std::string_view utf8, std::size_t mostBytes) noexcept;
/// Puts a character behind a text. `code` is that of a character of Unicode.
VELKOR_PLATFORM_API void append(std::string& utf8, std::int32_t code);

/// Without the blanks, tabs and line ends at both ends: what XML takes for space.
constexpr std::string_view trimmed(std::string_view text) noexcept {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Case mapping of ASCII alone.
constexpr char asciiUpper(char c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
constexpr char asciiLower(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
VELKOR_PLATFORM_API std::string asciiUpper(std::string_view text);

/// Case mapping character by character, as utf8proc maps it: the length in characters stays.
VELKOR_PLATFORM_API std::string toUpper(std::string_view utf8);
VELKOR_PLATFORM_API std::string toLower(std::string_view utf8);

/// True when the texts are equal but for letter case, by Unicode case folding.
VELKOR_PLATFORM_API bool equalIgnoringCase(std::string_view a, std::string_view b) noexcept;

/// XXH32 with seed 0 over the bytes. It is stored in identifiers and therefore never changes.
VELKOR_PLATFORM_API std::uint32_t hash32(std::string_view bytes) noexcept;
/// XXH64 with seed 0 over the bytes.
VELKOR_PLATFORM_API std::uint64_t hash64(std::string_view bytes) noexcept;

} // namespace velkor::text
