/// A regular file opened for reading.
#pragma once

#include "velkor/files/OpenError.h"
#include "velkor/PlatformExport.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <tl/expected.hpp>

namespace velkor::files {

class VELKOR_PLATFORM_API InputFile {
public:
    static constexpr std::uint64_t mostStreamed = 32ULL << 30;

    /// Opens a file by a path as the system takes it. What is no regular file is refused without being read: a
    /// pipe may never end. The message says why in a few words, for example "is no regular file".
    static tl::expected<InputFile, OpenError> open(const std::string& path);
    /// What is open already and stays the caller's. A regular file counts from its beginning and keeps its place;
    /// all else, such as a pipe, is read to its end into memory, at most `mostStreamed` bytes.
    static tl::expected<InputFile, OpenError> over(int descriptor);
    InputFile(InputFile&& other) noexcept;
    InputFile& operator=(InputFile&&) = delete;
    ~InputFile();

    /// Number of bytes put into the buffer, 0 behind the last one; -1 when reading fails, and `errno` says why.
    std::ptrdiff_t read(char* buffer, std::size_t size) noexcept;
    /// Bytes in the file when it was opened; 0 for one that the system makes up while it is read.
    std::size_t size() const noexcept { return _size; }
    /// For mapping. The file stays this object's.
    int descriptor() const noexcept { return _descriptor; }

private:
    explicit InputFile(int descriptor) noexcept : _descriptor(descriptor) {}
    VELKOR_PLATFORM_LOCAL static tl::expected<InputFile, OpenError> streamed(int descriptor);

    int _descriptor;
    std::size_t _size = 0;
    std::size_t _position = 0;
};

} // namespace velkor::files
