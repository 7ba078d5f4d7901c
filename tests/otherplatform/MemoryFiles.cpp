#include "Memory.h"
#include "velkor/files/FileContents.h"
#include "velkor/files/InputFile.h"
#include "velkor/files/InputText.h"
#include "velkor/files/Paths.h"

#include <algorithm>
#include <cerrno>
#include <istream>
#include <iterator>
#include <set>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace velkor::otherplatform {

namespace {

// Never destroyed, as everything that a library may ask for when it is unloaded.
std::map<std::string, std::string>& store() {
    static auto& instance = *new std::map<std::string, std::string>;
    return instance;
}

std::string nameOf(std::string_view path) {
    std::string name(path);
    std::ranges::replace(name, '\\', '/');
    return name;
}

} // namespace

void putFile(std::string_view path, std::string_view bytes) {
    store()[nameOf(path)] = bytes;
}

const std::string* fileAt(std::string_view path) {
    const auto found = store().find(nameOf(path));
    return found != store().end() ? &found->second : nullptr;
}

void removeAllFiles() {
    store().clear();
}

std::vector<std::string> namesIn(std::string_view folder) {
    const std::string start = nameOf(folder) + '/';
    std::set<std::string> names;
    for (auto file = store().lower_bound(start); file != store().end() && file->first.starts_with(start); ++file)
        names.insert(file->first.substr(start.size(), file->first.find('/', start.size()) - start.size()));
    return {names.begin(), names.end()};
}

int descriptorOf(std::string_view bytes) {
    const int descriptor = memfd_create("velkor", MFD_CLOEXEC);
    while (descriptor >= 0 && !bytes.empty()) {
        const ssize_t count = write(descriptor, bytes.data(), bytes.size());
        if (count < 0) {
            const int reason = errno;
            close(descriptor);
            errno = reason;
            return -1;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    if (descriptor >= 0) lseek(descriptor, 0, SEEK_SET);
    return descriptor;
}

} // namespace velkor::otherplatform

namespace velkor::files {

std::string nativePath(const QORUnicodeString& path) {
    return otherplatform::nameOf(path.utf8());
}

// The reader maps large files, so that each has a descriptor.
tl::expected<InputFile, OpenError> InputFile::open(const std::string& path) {
    const std::string* bytes = otherplatform::fileAt(path);
    if (bytes == nullptr && !otherplatform::namesIn(path).empty())
        return tl::unexpected(OpenError{OpenError::Code::Folder, "is a folder, expected a file"});
    if (bytes == nullptr) return tl::unexpected(systemError(ENOENT));
    const int descriptor = otherplatform::descriptorOf(*bytes);
    if (descriptor < 0) return tl::unexpected(systemError(errno));
    InputFile file(descriptor);
    file._size = bytes->size();
    return file;
}

tl::expected<InputFile, OpenError> InputFile::over(int descriptor) {
    std::string bytes(64 << 10, '\0');
    std::size_t size = 0;
    for (ssize_t count = 1; count != 0; size += static_cast<std::size_t>(count)) {
        if (size == bytes.size()) bytes.resize(2 * size);
        count = ::read(descriptor, bytes.data() + size, bytes.size() - size);
        if (count < 0) return tl::unexpected(systemError(errno));
    }
    InputFile file(otherplatform::descriptorOf(std::string_view(bytes).substr(0, size)));
    if (file._descriptor < 0) return tl::unexpected(systemError(errno));
    file._size = size;
    return file;
}

InputFile::InputFile(InputFile&& other) noexcept
    : _descriptor(std::exchange(other._descriptor, -1)), _size(other._size) {}

InputFile::~InputFile() {
    if (_descriptor >= 0) close(_descriptor);
}

std::ptrdiff_t InputFile::read(char* buffer, std::size_t size) noexcept {
    return ::read(_descriptor, buffer, size);
}

tl::expected<std::string, OpenError> readFile(const std::string& path, std::size_t most) {
    const auto file = InputFile::open(path);
    if (!file) return tl::unexpected(file.error());
    return otherplatform::fileAt(path)->substr(0, most);
}

tl::expected<std::string, OpenError> readInput(const std::string& path, std::istream* standardInput, std::size_t most) {
    if (path != "-") return readFile(path, most);
    std::string bytes;
    for (char byte = 0; standardInput != nullptr && bytes.size() < most && standardInput->get(byte);) bytes += byte;
    return bytes;
}

} // namespace velkor::files

HRESULT QORSplitPath(const QORUnicodeString& path, QORUnicodeString& directory, QORUnicodeString& file) {
    const std::string whole(path.utf8());
    const auto behind = std::find_if(whole.rbegin(), whole.rend(), [](char c) { return c == '/' || c == '\\'; }).base();
    directory = QORUnicodeString();
    file = QORUnicodeString(std::string(behind, whole.end()));
    if (file.IsEmpty()) return E_FAIL;
    if (behind != whole.begin()) directory = QORUnicodeString(std::string(whole.begin(), std::prev(behind)));
    return S_OK;
}
