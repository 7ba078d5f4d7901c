#include "velkor/files/QORDirectory.h"

#include "velkor/files/Paths.h"
#include "velkor/objectmodeler/OutOfMemory.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class QORDirectory {
public:
    std::vector<std::string> names;
    std::size_t next = 0;
};

namespace {

struct CloseStream {
    void operator()(DIR* stream) const noexcept { closedir(stream); }
};

} // namespace

HRESULT QOROpenDirectory(const QORUnicodeString& path, QORDirectory*& directory) {
    directory = nullptr;
    const std::unique_ptr<DIR, CloseStream> stream(opendir(velkor::files::nativePath(path).c_str()));
    if (stream == nullptr && errno == ENOMEM) velkor::objectmodeler::outOfMemory();
    if (stream == nullptr) return E_FAIL;
    auto read = std::make_unique<QORDirectory>();
    errno = 0;
    while (const dirent* entry = readdir(stream.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") read->names.emplace_back(name);
        errno = 0;
    }
    if (errno != 0) return E_FAIL;
    std::ranges::sort(read->names);
    directory = read.release();
    return S_OK;
}

HRESULT QORReadDirectory(QORDirectory* directory, QORUnicodeString& name) {
    name = QORUnicodeString();
    if (directory == nullptr) return E_FAIL;
    if (directory->next == directory->names.size()) return S_FALSE;
    name = QORUnicodeString(std::move(directory->names[directory->next++]));
    return S_OK;
}

HRESULT QORCloseDirectory(QORDirectory*& directory) {
    const std::unique_ptr<QORDirectory> closed(std::exchange(directory, nullptr));
    return closed != nullptr ? S_OK : E_FAIL;
}
