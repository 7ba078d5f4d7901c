/// Options that take a count.
#pragma once

#include <cstddef>
#include <limits>
#include <string>

namespace CLI {
class App;
class Validator;
} // namespace CLI

namespace velkor::host {

/// Of --limit, unless told.
inline constexpr std::size_t defaultLimit = 100'000;

/// Adds `--limit N`: that at most N of `what` are listed.
void addLimitOption(CLI::App& command, std::size_t& limit, const std::string& what);

/// Refuses what is no whole number within a range. Without an upper bound a number that no count can hold is taken as
/// the largest one.
CLI::Validator wholeNumber(std::size_t least, std::size_t most = std::numeric_limits<std::size_t>::max());

} // namespace velkor::host
