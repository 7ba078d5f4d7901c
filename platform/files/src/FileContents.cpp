#include "velkor/files/FileContents.h"

#include "velkor/files/InputFile.h"
#include "velkor/files/Paths.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velkor::files {

namespace {

/// 0, or the error of the system.
int writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return errno;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

/// What a link in the end leads to: the link itself stays.
std::string linkTarget(const std::string& path) {
    char resolved[PATH_MAX];
    return realpath(path.c_str(), resolved) != nullptr ? std::string(resolved) : path;
}

int writeInto(const std::string& path, std::string_view bytes) {
    const int file = open(path.c_str(), O_WRONLY | O_CLOEXEC);
    if (file < 0) return errno;
    const int error = writeAll(file, bytes);
    return close(file) != 0 && error == 0 ? errno : error;
}

/// Opens a new file beside another. The system's mask decides about its permissions.
int openBeside(const std::string& path, std::string& name) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        name = path + '.' + std::to_string(getpid()) + '-' + std::to_string(attempt) + ".new";
        const int file = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file >= 0 || errno != EEXIST) return file;
    }
    return -1;
}

/// `mode` is that of the file to be replaced; null when there is none.
int writeBeside(const std::string& path, std::string_view bytes, const mode_t* mode) {
    std::string temporary;
    const int file = openBeside(path, temporary);
    if (file < 0) return errno;
    int error = writeAll(file, bytes);
    if (error == 0 && ((mode != nullptr && fchmod(file, *mode & 07777) != 0) || fsync(file) != 0)) error = errno;
    if (close(file) != 0 && error == 0) error = errno;
    if (error == 0 && rename(temporary.c_str(), path.c_str()) != 0) error = errno;
    if (error != 0) unlink(temporary.c_str());
    return error;
}

} // namespace

tl::expected<std::string, OpenError> readFile(const std::string& path, std::size_t most) {
    auto file = InputFile::open(path);
    if (!file) return tl::unexpected(std::move(file.error()));
    std::string bytes;
    std::size_t size = 0;
    while (size < most) {
        constexpr std::size_t block = 64 << 10;
        // Doubled, so that the time stays linear.
        if (size == bytes.size()) bytes.resize(std::min(most, std::max(block, 2 * size)));
        const std::ptrdiff_t count = file->read(bytes.data() + size, bytes.size() - size);
        if (count < 0) return tl::unexpected(systemError(errno));
        if (count == 0) break;
        size += static_cast<std::size_t>(count);
    }
    bytes.resize(size);
    return bytes;
}

tl::expected<void, OpenError> replaceFile(const QORUnicodeString& path, std::string_view bytes) {
    const std::string target = linkTarget(nativePath(path));
    struct stat status {};
    const bool exists = stat(target.c_str(), &status) == 0;
    // A device or a pipe is written to; replacing it would do no good.
    const int error = exists && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)
                          ? writeInto(target, bytes)
                          : writeBeside(target, bytes, exists ? &status.st_mode : nullptr);
    if (error != 0) return tl::unexpected(systemError(error));
    return {};
}

} // namespace velkor::files
