#include "velkor/files/FileContents.h"

#include "velkor/files/InputFile.h"
#include "velkor/files/OutputFile.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace velkor::files {

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
    auto file = OutputFile::create(path);
    if (!file) return tl::unexpected(std::move(file.error()));
    file->write(bytes);
    return file->commit();
}

} // namespace velkor::files
