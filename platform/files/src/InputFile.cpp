#include "velkor/files/InputFile.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velkor::files {

namespace {

constexpr std::size_t blockSize = 256 << 10;

/// A call of the system, again as long as a signal interrupts it.
template <class Call>
ssize_t repeated(Call call) noexcept {
    ssize_t count = 0;
    do {
        count = call();
    } while (count < 0 && errno == EINTR);
    return count;
}

OpenError folderInPlace() {
    return {OpenError::Code::Folder, "is a folder, expected a file"};
}

} // namespace

tl::expected<InputFile, OpenError> InputFile::open(const std::string& path) {
    // Without waiting for somebody who writes to a pipe.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) return tl::unexpected(systemError(errno));
    InputFile file(descriptor);
    struct stat status {};
    if (fstat(descriptor, &status) != 0) return tl::unexpected(systemError(errno));
    if (S_ISDIR(status.st_mode)) return tl::unexpected(folderInPlace());
    if (!S_ISREG(status.st_mode)) return tl::unexpected(OpenError{OpenError::Code::NotRegular, "is no regular file"});
    file._size = static_cast<std::size_t>(status.st_size);
    return file;
}

tl::expected<InputFile, OpenError> InputFile::over(int descriptor) {
    struct stat status {};
    if (fstat(descriptor, &status) != 0) return tl::unexpected(systemError(errno));
    if (S_ISDIR(status.st_mode)) return tl::unexpected(folderInPlace());
    if (!S_ISREG(status.st_mode)) return streamed(descriptor);
    const int own = fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    if (own < 0) return tl::unexpected(systemError(errno));
    InputFile file(own);
    file._size = static_cast<std::size_t>(status.st_size);
    return file;
}

// Into a file that lies in memory, which is then read as any other.
tl::expected<InputFile, OpenError> InputFile::streamed(int descriptor) {
    InputFile file(memfd_create("velkor", MFD_CLOEXEC));
    if (file._descriptor < 0) return tl::unexpected(systemError(errno));
    const auto block = std::make_unique_for_overwrite<char[]>(blockSize);
    while (true) {
        const ssize_t count = repeated([&] { return ::read(descriptor, block.get(), blockSize); });
        if (count < 0) return tl::unexpected(systemError(errno));
        if (count == 0) return file;
        for (ssize_t done = 0; done < count;) {
            const ssize_t written = repeated(
                [&] { return ::write(file._descriptor, block.get() + done, static_cast<std::size_t>(count - done)); });
            if (written < 0) return tl::unexpected(systemError(errno));
            done += written;
        }
        file._size += static_cast<std::size_t>(count);
        if (file._size > mostStreamed)
            return tl::unexpected(OpenError{OpenError::Code::TooLarge, "is larger than " +
                                                                           std::to_string(mostStreamed >> 30) +
                                                                           " GiB, which is the most that is read "
                                                                           "from what is no regular file"});
    }
}

InputFile::InputFile(InputFile&& other) noexcept
    : _descriptor(std::exchange(other._descriptor, -1)), _size(other._size), _position(other._position) {}

InputFile::~InputFile() {
    if (_descriptor >= 0) close(_descriptor);
}

std::ptrdiff_t InputFile::read(char* buffer, std::size_t size) noexcept {
    // At a place of its own: processes and callers that share the descriptor do not move it.
    const ssize_t count = repeated([&] { return ::pread(_descriptor, buffer, size, static_cast<off_t>(_position)); });
    if (count > 0) _position += static_cast<std::size_t>(count);
    return count;
}

} // namespace velkor::files
