/// Values as parameters of the clear text encoding (ISO 10303-21, clause 7), put behind what a text
/// already holds. Each is one token of the standard and is decoded (Part21Lexer.h) to the value that it came from.
///
///     std::string parameters;
///     appendReference(parameters, 12);
///     (parameters += ',') += omittedValue;
#pragma once

#include "velkor/PlatformExport.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::sdai {

inline constexpr std::string_view omittedValue = "$";
inline constexpr std::string_view derivedValue = "*";

/// A text in UTF-8, any character included, as a literal in the basic alphabet. Apostrophes and reverse
/// solidi are doubled; what the alphabet lacks, control characters too, stands in \X2\, beyond the basic plane in
/// \X4\. Bytes that are not UTF-8 are taken as ISO 8859-1, as decodeString() takes them.
VELKOR_PLATFORM_API void appendString(std::string& text, std::string_view utf8);

/// The shortest form that reads back as the same double, with its decimal point: 1., 0.1, 1.5E-05.
/// False, and nothing appended, for what is no finite number: the standard has no form for it.
[[nodiscard]] VELKOR_PLATFORM_API bool appendReal(std::string& text, double value);

VELKOR_PLATFORM_API void appendInteger(std::string& text, std::int64_t value); ///< The value as an INTEGER.

/// False, and nothing appended, for 0, which no instance has.
[[nodiscard]] VELKOR_PLATFORM_API bool appendReference(std::string& text, std::uint64_t id);

/// An enumerator without its dots, also T, F and U; letters are put in upper case. False, and nothing
/// appended, when it is no name: letters, digits and "_", a letter or "_" first.
[[nodiscard]] VELKOR_PLATFORM_API bool appendEnumeration(std::string& text, std::string_view enumerator);

/// Bits as Primitive::asBinary() gives them: hexadecimal digits in upper case behind the count of unused bits,
/// 0 to 3. False, and nothing appended, for other texts.
[[nodiscard]] VELKOR_PLATFORM_API bool appendBinary(std::string& text, std::string_view digits);

} // namespace velkor::sdai
