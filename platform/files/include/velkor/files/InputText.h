/// What a command reads as a whole: a file or standard input.
#pragma once

#include "velkor/files/OpenError.h"
#include "velkor/PlatformExport.h"

#include <cstddef>
#include <iosfwd>
#include <string>
#include <tl/expected.hpp>

namespace velkor::files {

/// The bytes of a regular file or, for "-", of standard input, which may be null for an empty one; the first `most`
/// of more. The message says in a few words why they cannot be read.
VELKOR_PLATFORM_API tl::expected<std::string, OpenError> readInput(const std::string& path, std::istream* standardInput,
                                                                   std::size_t most);

} // namespace velkor::files
