#include "FileText.h"

#include <algorithm>
#include <cerrno>
#include <sys/mman.h>
#include <utility>

namespace velkor::sdai::part21 {

namespace {

constexpr std::uint64_t window = 4 << 20;

} // namespace

tl::expected<FileText, files::OpenError> FileText::of(files::InputFile file, Part21File::Access access) {
    if (file.size() == 0) return FileText();
    const bool isMapped = access == Part21File::Access::Mapped && file.size() >= Part21File::mappedFrom;
    return isMapped ? map(file) : read(file);
}

// The mapping outlives the open file.
tl::expected<FileText, files::OpenError> FileText::map(const files::InputFile& file) {
    const void* data = mmap(nullptr, file.size(), PROT_READ, MAP_PRIVATE, file.descriptor(), 0);
    if (data == MAP_FAILED) return tl::unexpected(files::systemError(errno));
    FileText text;
    text._data = static_cast<const char*>(data);
    text._size = file.size();
    return text;
}

tl::expected<FileText, files::OpenError> FileText::read(files::InputFile& file) {
    FileText text;
    text._read = std::make_unique_for_overwrite<char[]>(file.size());
    text._data = text._read.get();
    // A file that has become shorter meanwhile ends earlier.
    while (text._size < file.size()) {
        const std::ptrdiff_t count = file.read(text._read.get() + text._size, file.size() - text._size);
        if (count < 0) return tl::unexpected(files::systemError(errno));
        if (count == 0) break;
        text._size += static_cast<std::size_t>(count);
    }
    return text;
}

FileText::FileText(files::UnpackedModel model) noexcept
    : _data(model.text().data()), _size(model.text().size()), _unpacked(std::move(model)) {}

FileText::FileText(FileText&& other) noexcept {
    *this = std::move(other);
}

FileText& FileText::operator=(FileText&& other) noexcept {
    std::swap(_data, other._data);
    std::swap(_size, other._size);
    std::swap(_read, other._read);
    std::swap(_unpacked, other._unpacked);
    std::swap(_prepared, other._prepared);
    return *this;
}

FileText::~FileText() {
    if (isMapped()) munmap(const_cast<char*>(_data), _size);
}

void FileText::expectReading(std::uint64_t position) noexcept {
    if (!isMapped() || position < _prepared) return;
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
