#include "part21/MappedFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velkor::sdai::part21 {

namespace {

constexpr std::uint64_t window = 4 << 20;

std::string systemError() {
    return std::strerror(errno);
}

} // namespace

tl::expected<MappedFile, std::string> MappedFile::open(const std::string& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) return tl::unexpected(systemError());
    struct stat status {};
    tl::expected<MappedFile, std::string> result;
    if (fstat(descriptor, &status) != 0) {
        result = tl::unexpected(systemError());
    } else if (S_ISDIR(status.st_mode)) {
        result = tl::unexpected(std::string("is a folder, expected a file"));
    } else if (!S_ISREG(status.st_mode)) {
        result = tl::unexpected(std::string("is no regular file"));
    } else if (status.st_size > 0) {
        const auto size = static_cast<std::size_t>(status.st_size);
        void* data = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
        if (data == MAP_FAILED) {
            result = tl::unexpected(systemError());
        } else {
            result->_data = static_cast<char*>(data);
            result->_size = size;
        }
    }
    // The mapping outlives its descriptor.
    close(descriptor);
    return result;
}

MappedFile::MappedFile(MappedFile&& other) noexcept {
    *this = std::move(other);
}

MappedFile& MappedFile::operator=(MappedFile&& other) noexcept {
    std::swap(_data, other._data);
    std::swap(_size, other._size);
    std::swap(_prepared, other._prepared);
    return *this;
}

MappedFile::~MappedFile() {
    if (_data != nullptr) munmap(_data, _size);
}

void MappedFile::expectReading(std::uint64_t position) noexcept {
    if (_data == nullptr || position < _prepared) return;
    const std::uint64_t from = position / window * window;
    _prepared = from + window;
#ifdef MADV_POPULATE_READ
    // One call in place of a page fault each 64 KB; kernels that do not know it refuse.
    advise(from, window, MADV_POPULATE_READ);
#endif
    advise(from + window, window, MADV_WILLNEED);
}

void MappedFile::advise(std::uint64_t from, std::uint64_t length, int advice) const noexcept {
    if (_data == nullptr || from >= _size) return;
    const int before = errno;
    madvise(_data + from, std::min<std::uint64_t>(length, _size - from), advice);
    errno = before;
}

} // namespace velkor::sdai::part21
