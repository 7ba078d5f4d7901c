/// The nine alphabets that the \P.\ directive chooses from, ISO 8859-1 to 8859-9.
#pragma once

namespace velkor::sdai::part21 {

/// Character of a code of 128 or more in the alphabet of a page 'A' to 'I'; 0 when the
/// alphabet has none there.
char32_t alphabetCharacter(char page, unsigned char code) noexcept;

} // namespace velkor::sdai::part21
