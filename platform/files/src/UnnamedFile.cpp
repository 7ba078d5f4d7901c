#include "UnnamedFile.h"

#include <cerrno>
#include <fcntl.h>

namespace velkor::files {

std::string folderOf(const std::string& path) {
    const std::size_t separator = path.rfind('/');
    if (separator == std::string::npos) return ".";
    return path.substr(0, separator > 0 ? separator : 1);
}

int openUnnamed(const std::string& folder, int flags, unsigned mode) {
    return open(folder.c_str(), O_TMPFILE | O_CLOEXEC | flags, mode);
}

bool isUnnamedUnknown() {
    return errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL;
}

} // namespace velkor::files
