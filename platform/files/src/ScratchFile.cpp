#include "velkor/files/ScratchFile.h"

#include "UnnamedFile.h"
#include "velkor/files/Paths.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/mman.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace velkor::files {

namespace {

/// For file systems that cannot make a file without a name.
int openNamedAndUnlinked(const std::string& folder) {
    std::string name = folder + "/velkor-XXXXXX";
    const int descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor >= 0) unlink(name.c_str());
    return descriptor;
}

int openIn(const std::string& folder) {
    const int descriptor = openUnnamed(folder, O_RDWR | O_EXCL, 0600);
    return descriptor < 0 && isUnnamedUnknown() ? openNamedAndUnlinked(folder) : descriptor;
}

} // namespace

tl::expected<ScratchFile, OpenError> ScratchFile::createIn(const std::string& folder) {
    const int descriptor = openIn(folder);
    if (descriptor < 0) return tl::unexpected(systemError(errno));
    return ScratchFile(descriptor);
}

tl::expected<ScratchFile, OpenError> ScratchFile::create() {
    std::error_code error;
    const std::string folder = std::filesystem::temp_directory_path(error);
    if (error) return tl::unexpected(systemError(error.value()));
    return createIn(folder);
}

tl::expected<ScratchFile, OpenError> ScratchFile::createBeside(const QORUnicodeString& path) {
    return createIn(folderOf(nativePath(path)));
}

ScratchFile::ScratchFile(ScratchFile&& other) noexcept
    : _descriptor(std::exchange(other._descriptor, -1)), _output(std::move(other._output)),
      _data(std::exchange(other._data, nullptr)), _size(std::exchange(other._size, 0)) {}

ScratchFile::~ScratchFile() {
    if (_data != nullptr) munmap(const_cast<char*>(_data), _size);
    if (_descriptor >= 0) close(_descriptor);
}

tl::expected<std::string_view, OpenError> ScratchFile::text() {
    if (_data != nullptr) return std::string_view(_data, _size);
    struct stat status {};
    if (fstat(_descriptor, &status) != 0) return tl::unexpected(systemError(errno));
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size != _output.size())
        return tl::unexpected(OpenError{OpenError::Code::Failed, "what was written did not all arrive"});
    if (size == 0) return std::string_view();
    const void* data = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, _descriptor, 0);
    if (data == MAP_FAILED) return tl::unexpected(systemError(errno));
    _data = static_cast<const char*>(data);
    _size = size;
    return std::string_view(_data, _size);
}

} // namespace velkor::files
