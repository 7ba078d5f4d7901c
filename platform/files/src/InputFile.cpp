#include "velkor/files/InputFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velkor::files {

tl::expected<InputFile, OpenError> InputFile::open(const std::string& path) {
    // Without waiting for somebody who writes to a pipe.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) return tl::unexpected(systemError(errno));
    InputFile file(descriptor);
    struct stat status {};
    if (fstat(descriptor, &status) != 0) return tl::unexpected(systemError(errno));
    if (S_ISDIR(status.st_mode))
        return tl::unexpected(OpenError{OpenError::Code::Folder, "is a folder, expected a file"});
    if (!S_ISREG(status.st_mode)) return tl::unexpected(OpenError{OpenError::Code::NotRegular, "is no regular file"});
    file._size = static_cast<std::size_t>(status.st_size);
    return file;
}

InputFile::InputFile(InputFile&& other) noexcept
    : _descriptor(std::exchange(other._descriptor, -1)), _size(other._size) {}

InputFile::~InputFile() {
    if (_descriptor >= 0) close(_descriptor);
}

std::ptrdiff_t InputFile::read(char* buffer, std::size_t size) noexcept {
    ssize_t count = 0;
    do {
        count = ::read(_descriptor, buffer, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

} // namespace velkor::files
