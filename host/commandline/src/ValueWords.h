/// How the values of an option are found again.
#pragma once

namespace velkor::host {

/// Name of the validator whose description is the words, separated by commas.
inline constexpr const char* valueWords = "words";

} // namespace velkor::host
