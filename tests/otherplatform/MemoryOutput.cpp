#include "Memory.h"
#include "velkor/files/FileContents.h"
#include "velkor/files/OutputFile.h"
#include "velkor/files/Paths.h"
#include "velkor/files/ScratchFile.h"

#include <cerrno>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace velkor::files {

// What is written is gathered; nothing is seen of it before commit().
tl::expected<OutputFile, OpenError> OutputFile::create(const QORUnicodeString& path) {
    OutputFile output(-1);
    output._replaces = true;
    output._target = nativePath(path);
    return output;
}

OutputFile OutputFile::onto(int descriptor) {
    return OutputFile(descriptor);
}

OutputFile::OutputFile(OutputFile&& other) noexcept = default;
OutputFile::~OutputFile() = default;

void OutputFile::write(std::string_view bytes) {
    _size += bytes.size();
    _gathered += bytes;
}

tl::expected<void, OpenError> OutputFile::flush() {
    for (std::string_view rest = _gathered; !_replaces && !rest.empty();) {
        const ssize_t count = ::write(_descriptor, rest.data(), rest.size());
        if (count < 0) return tl::unexpected(systemError(errno));
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
    if (!_replaces) _gathered.clear();
    return {};
}

tl::expected<void, OpenError> OutputFile::commit() {
    if (_replaces) otherplatform::putFile(_target, _gathered);
    return flush();
}

tl::expected<void, OpenError> replaceFile(const QORUnicodeString& path, std::string_view bytes) {
    otherplatform::putFile(path.utf8(), bytes);
    return {};
}

tl::expected<ScratchFile, OpenError> ScratchFile::create() {
    const int descriptor = otherplatform::descriptorOf({});
    if (descriptor < 0) return tl::unexpected(systemError(errno));
    return ScratchFile(descriptor);
}

tl::expected<ScratchFile, OpenError> ScratchFile::createBeside(const QORUnicodeString&) {
    return create();
}

ScratchFile::ScratchFile(ScratchFile&& other) noexcept
    : _descriptor(std::exchange(other._descriptor, -1)), _output(std::move(other._output)),
      _data(std::exchange(other._data, nullptr)), _size(std::exchange(other._size, 0)) {}

ScratchFile::~ScratchFile() {
    if (_data != nullptr) munmap(const_cast<char*>(_data), _size);
    if (_descriptor >= 0) close(_descriptor);
}

tl::expected<std::string_view, OpenError> ScratchFile::text() {
    if (_data == nullptr && _output.size() > 0) {
        const void* data = mmap(nullptr, _output.size(), PROT_READ, MAP_SHARED, _descriptor, 0);
        if (data == MAP_FAILED) return tl::unexpected(systemError(errno));
        _data = static_cast<const char*>(data);
        _size = _output.size();
    }
    return std::string_view(_data, _size);
}

} // namespace velkor::files
