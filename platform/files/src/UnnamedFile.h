/// Files that have no name, so that nothing is left of them however the process ends.
#pragma once

#include <string>

namespace velkor::files {

/// Of a path, "." for a mere name.
std::string folderOf(const std::string& path);

/// Begins one on the disk of a folder, with flags and mode of open(2). Below 0 with errno set; `isUnnamedUnknown()`
/// tells then whether the file system has no such files.
int openUnnamed(const std::string& folder, int flags, unsigned mode);

/// Whether errno of an openUnnamed() says that it cannot be done there at all.
bool isUnnamedUnknown();

} // namespace velkor::files
