#include "velkor/files/OutputFile.h"

#include "UnnamedFile.h"
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

/// Makes a file of a name beside another one by `make`, which gives less than 0 and sets errno when it cannot.
template <class Make>
int makeBeside(const std::string& path, std::string& name, Make make) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        name = path + '.' + std::to_string(getpid()) + '-' + std::to_string(attempt) + ".new";
        const int made = make(name.c_str());
        if (made >= 0 || errno != EEXIST) return made;
    }
    return -1;
}

/// Where the system shows what is open, so that it can be given a name.
std::string placeOf(int descriptor) {
    return "/proc/self/fd/" + std::to_string(descriptor);
}

/// Opens a new file on the disk of another, without a name if that can be given later. The system's mask decides about
/// its permissions.
int openNew(const std::string& path, std::string& name) {
    const int unnamed = openUnnamed(folderOf(path), O_WRONLY, 0666);
    if (unnamed >= 0) {
        if (access(placeOf(unnamed).c_str(), F_OK) == 0) return unnamed;
        ::close(unnamed);
    } else if (!isUnnamedUnknown()) {
        return unnamed;
    }
    return makeBeside(path, name, [](const char* candidate) {
        return open(candidate, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    });
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
    const int descriptor = isDirect ? open(target.c_str(), O_WRONLY | O_CLOEXEC) : openNew(target, temporary);
    if (descriptor < 0) return tl::unexpected(systemError(errno));
    OutputFile file(descriptor);
    file._isOwn = true;
    file._replaces = !isDirect;
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
      _replaces(other._replaces), _isFlushed(other._isFlushed), _keepsMode(other._keepsMode), _mode(other._mode),
      _error(other._error), _size(other._size), _target(std::move(other._target)),
      _temporary(std::exchange(other._temporary, {})), _gathered(std::move(other._gathered)) {}

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

tl::expected<void, OpenError> OutputFile::flush() {
    send(std::exchange(_gathered, {}));
    if (_replaces && _error == 0 && !std::exchange(_isFlushed, true)) {
        const bool isSet = !_keepsMode || fchmod(_descriptor, static_cast<mode_t>(_mode)) == 0;
        if (!isSet || fsync(_descriptor) != 0) _error = errno;
    }
    if (_error != 0) return tl::unexpected(systemError(_error));
    return {};
}

tl::expected<void, OpenError> OutputFile::commit() {
    const auto flushed = flush();
    if (flushed && _replaces && _temporary.empty()) nameBesideTarget();
    close();
    if (_error == 0 && _replaces && rename(_temporary.c_str(), _target.c_str()) != 0) _error = errno;
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

void OutputFile::nameBesideTarget() {
    // A name of its own first: the system gives none that another file has.
    const std::string place = placeOf(_descriptor);
    std::string name;
    const int named = makeBeside(_target, name, [&place](const char* candidate) {
        return linkat(AT_FDCWD, place.c_str(), AT_FDCWD, candidate, AT_SYMLINK_FOLLOW);
    });
    if (named == 0)
        _temporary = std::move(name);
    else
        _error = errno;
}

void OutputFile::close() {
    if (!_isOwn) return;
    _isOwn = false;
    if (::close(_descriptor) != 0 && _error == 0) _error = errno;
}

} // namespace velkor::files
