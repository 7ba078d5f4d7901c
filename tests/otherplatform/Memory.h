/// A file system in memory, and a count of what the exchange log was asked for.
#pragma once

#include "velkor/PlatformExport.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::otherplatform {

/// Makes a file or replaces it. Its folders are there as long as a file lies in them.
VELKOR_PLATFORM_API void putFile(std::string_view path, std::string_view bytes);
/// Null when there is no file of the name; valid until the file is replaced.
VELKOR_PLATFORM_API const std::string* fileAt(std::string_view path);
VELKOR_PLATFORM_API void removeAllFiles();

/// Names in a folder, sorted by their bytes; none when there is no such folder.
std::vector<std::string> namesIn(std::string_view folder);
/// An anonymous file of the system that holds these bytes, read from its start; less than 0 with errno set without one.
int descriptorOf(std::string_view bytes);

struct LogCounts {
    /// Calls of GetExchangeErr.
    int lookups = 0;
    /// Messages of any MessageLog, by level.
    std::map<int, int> messages;
};
VELKOR_PLATFORM_API LogCounts& logCounts();

} // namespace velkor::otherplatform
