/// Text from anywhere made fit to be shown: nothing in it acts on a terminal, forges a line or turns the writing
/// direction.
///
/// Control characters (C0, DEL and C1), line and paragraph separators (U+2028, U+2029) and what embeds, overrides
/// or isolates a direction (U+202A to U+202E, U+2066 to U+2069) are written as JSON escapes them, "\u001b". Bytes
/// that are not UTF-8 stay where they stand for a printable character in 8-bit sets, 0xA0 to 0xFF, so that the
/// name of a file still finds it; others are written "\x9b". A reverse solidus is not doubled, so that what has been
/// made printable stays as it is.
#pragma once

#include "velkor/PlatformExport.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace velkor::text {

/// Bytes at the beginning of a text that can be shown as they are.
VELKOR_PLATFORM_API std::size_t printableLength(std::string_view text) noexcept;

/// Takes the first character off a text that does not begin with a printable one, and gives its escape.
VELKOR_PLATFORM_API std::string takeEscaped(std::string_view& text);

/// The whole text.
VELKOR_PLATFORM_API std::string printable(std::string_view text);

/// The text with "?" in place of each byte that is no printable ASCII, where nothing else is expected.
VELKOR_PLATFORM_API std::string printableAscii(std::string_view text);

/// The beginning of a text, made printable, "…" behind it when that is not all.
VELKOR_PLATFORM_API std::string excerpt(std::string_view text, std::size_t longestBytes);

} // namespace velkor::text
