/// What a command reads as a whole: a file or standard input.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <tl/expected.hpp>

namespace velkor::files {

/// The bytes of a regular file or, for "-", of standard input, which may be null for an empty one; the first `most`
/// of more. The error says in a few words why they cannot be read.
tl::expected<std::string, std::string> readInput(const std::string& path, std::istream* standardInput,
                                                 std::size_t most);

} // namespace velkor::files
