/// Whether a piece of text is a record or a parameter of the standard, and where it ends.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace velkor::sdai::part21 {

/// Lists are nested less deeply than this, what stands around them counted; schemas stay below ten.
inline constexpr std::size_t deepestNesting = 200;

/// Bytes of the record that a statement begins with, up to its ";". npos when it is no record followed by
/// ";".
std::size_t recordLength(std::string_view statement) noexcept;

/// The same of a simple record, with its keyword and its parameters as they stand.
std::size_t splitRecord(std::string_view statement, std::string_view& keyword,
                        std::vector<std::string_view>& parameters);

/// Whether a text is one record and nothing else.
bool isRecord(std::string_view text) noexcept;

/// Whether a text is one parameter and nothing else.
bool isParameter(std::string_view text) noexcept;

} // namespace velkor::sdai::part21
