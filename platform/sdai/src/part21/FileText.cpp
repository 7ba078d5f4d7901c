#include "part21/FileText.h"

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

/// Open until it goes; a mapping outlives it.
struct Descriptor {
    explicit Descriptor(int opened) noexcept : number(opened) {}
    ~Descriptor() {
        if (number >= 0) close(number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    const int number;
};

} // namespace

tl::expected<FileText, std::string> FileText::open(const std::string& path, Part21File::Access access) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (file.number < 0 || fstat(file.number, &status) != 0) return tl::unexpected(systemError());
    if (S_ISDIR(status.st_mode)) return tl::unexpected(std::string("is a folder, expected a file"));
    if (!S_ISREG(status.st_mode)) return tl::unexpected(std::string("is no regular file"));
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size == 0) return FileText();
    const bool isMapped = access == Part21File::Access::Mapped && size >= Part21File::mappedFrom;
    return isMapped ? map(file.number, size) : read(file.number, size);
}

tl::expected<FileText, std::string> FileText::map(int descriptor, std::size_t size) {
    const void* data = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
    if (data == MAP_FAILED) return tl::unexpected(systemError());
    FileText text;
    text._data = static_cast<const char*>(data);
    text._size = size;
    return text;
}

tl::expected<FileText, std::string> FileText::read(int descriptor, std::size_t size) {
    FileText text;
    text._read = std::make_unique_for_overwrite<char[]>(size);
    text._data = text._read.get();
    // A file that has become shorter meanwhile ends earlier.
    while (text._size < size) {
        const ssize_t count = ::read(descriptor, text._read.get() + text._size, size - text._size);
        if (count == 0) break;
        if (count > 0)
            text._size += static_cast<std::size_t>(count);
        else if (errno != EINTR)
            return tl::unexpected(systemError());
    }
    return text;
}

FileText::FileText(FileText&& other) noexcept {
    *this = std::move(other);
}

FileText& FileText::operator=(FileText&& other) noexcept {
    std::swap(_data, other._data);
    std::swap(_size, other._size);
    std::swap(_read, other._read);
    std::swap(_prepared, other._prepared);
    return *this;
}

FileText::~FileText() {
    if (_data != nullptr && !_read) munmap(const_cast<char*>(_data), _size);
}

void FileText::expectReading(std::uint64_t position) noexcept {
    if (_read || position < _prepared) return;
    const std::uint64_t from = position / window * window;
    _prepared = from + window;
#ifdef MADV_POPULATE_READ
    // One call in place of a page fault each 64 KB; kernels that do not know it refuse.
    advise(from, window, MADV_POPULATE_READ);
#endif
    advise(from + window, window, MADV_WILLNEED);
}

void FileText::advise(std::uint64_t from, std::uint64_t length, int advice) const noexcept {
    if (_data == nullptr || from >= _size) return;
    const int before = errno;
    madvise(const_cast<char*>(_data) + from, std::min<std::uint64_t>(length, _size - from), advice);
    errno = before;
}

} // namespace velkor::sdai::part21
