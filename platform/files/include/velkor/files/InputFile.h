/// A regular file opened for reading.
#pragma once

#include <cstddef>
#include <string>
#include <tl/expected.hpp>

namespace velkor::files {

class InputFile {
public:
    /// Opens a file by a path as the system takes it. What is no regular file is refused without being read: a
    /// pipe may never end. The error says why in a few words, for example "is no regular file".
    static tl::expected<InputFile, std::string> open(const std::string& path);
    InputFile(InputFile&& other) noexcept;
    InputFile& operator=(InputFile&&) = delete;
    ~InputFile();

    /// Number of bytes put into the buffer, 0 behind the last one; -1 when reading fails, and `errno` says why.
    std::ptrdiff_t read(char* buffer, std::size_t size) noexcept;

private:
    explicit InputFile(int descriptor) noexcept : _descriptor(descriptor) {}
    int _descriptor;
};

} // namespace velkor::files
