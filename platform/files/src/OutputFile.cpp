#include "velkor/files/OutputFile.h"

#include "velkor/files/Paths.h"

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

constexpr std::size_t gatheredMost = 64 << 10;

/// What a link in the end leads to: the link itself stays.
std::string linkTarget(const std::string& path) {
    char resolved[PATH_MAX];
    return realpath(path.c_str(), resolved) != nullptr ? std::string(resolved) : path;
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

} // namespace

tl::expected<OutputFile, OpenError> OutputFile::create(const QORUnicodeString& path) {
    std::string target = linkTarget(nativePath(path));
    struct stat status {};
    const bool exists = stat(target.c_str(), &status) == 0;
    if (exists && S_ISDIR(status.st_mode)) return tl::unexpected(systemError(EISDIR));
    // A device or a pipe is written to; replacing it would do no good.
    const bool isDirect = exists && !S_ISREG(status.st_mode);
    std::string temporary;
    const int descriptor = isDirect ? open(target.c_str(), O_WRONLY | O_CLOEXEC) : openBeside(target, temporary);
    if (descriptor < 0) return tl::unexpected(systemError(errno));
    OutputFile file(descriptor);
    file._isOwn = true;
    file._keepsMode = exists && !isDirect;
    file._mode = status.st_mode & 07777;
    file._target = std::move(target);
    file._temporary = std::move(temporary);
    return file;
}

OutputFile OutputFile::onto(int descriptor) {
    return OutputFile(descriptor);
}

OutputFile::OutputFile(OutputFile&& other) noexcept
    : _descriptor(std::exchange(other._descriptor, -1)), _isOwn(std::exchange(other._isOwn, false)),
      _keepsMode(other._keepsMode), _mode(other._mode), _error(other._error), _size(other._size),
      _target(std::move(other._target)), _temporary(std::exchange(other._temporary, {})),
      _gathered(std::move(other._gathered)) {}

OutputFile::~OutputFile() {
    close();
    if (!_temporary.empty()) unlink(_temporary.c_str());
}

void OutputFile::write(std::string_view bytes) {
    _size += bytes.size();
    if (_gathered.size() + bytes.size() > gatheredMost) {
        send(_gathered);
        _gathered.clear();
    }
    if (bytes.size() > gatheredMost) {
        send(bytes);
    } else if (_error == 0) {
        _gathered += bytes;
    }
}

tl::expected<void, OpenError> OutputFile::commit() {
    send(std::exchange(_gathered, {}));
    if (!_temporary.empty()) finish();
    close();
    if (_error == 0 && !_temporary.empty() && rename(_temporary.c_str(), _target.c_str()) != 0) _error = errno;
    if (_error != 0) return tl::unexpected(systemError(_error));
    _temporary.clear();
    return {};
}

void OutputFile::send(std::string_view bytes) {
    while (_error == 0 && !bytes.empty()) {
        const ssize_t written = ::write(_descriptor, bytes.data(), bytes.size());
        if (written >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            _error = errno;
        }
    }
}

void OutputFile::finish() {
    if (_error != 0) return;
    if ((_keepsMode && fchmod(_descriptor, static_cast<mode_t>(_mode)) != 0) || fsync(_descriptor) != 0) _error = errno;
}

void OutputFile::close() {
    if (!_isOwn) return;
    _isOwn = false;
    if (::close(_descriptor) != 0 && _error == 0) _error = errno;
}

} // namespace velkor::files
