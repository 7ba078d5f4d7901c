/// Files read and written as a whole.
#pragma once

#include "velkor/files/OpenError.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::files {

/// The bytes of a regular file, the first `most` of a longer one; the path is as the system takes it. The message
/// says in a few words why it cannot be read.
VELKOR_PLATFORM_API tl::expected<std::string, OpenError> readFile(const std::string& path, std::size_t most);

/// Puts bytes in place of what a file holds, or makes the file, with the permissions it had. Whoever
/// reads it meanwhile sees the old file or the new one; when something fails, the old one stays. The message
/// says in a few words why.
[[nodiscard]] VELKOR_PLATFORM_API tl::expected<void, OpenError> replaceFile(const QORUnicodeString& path,
                                                                            std::string_view bytes);

} // namespace velkor::files
