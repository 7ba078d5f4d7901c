#include "Memory.h"
#include "velkor/files/QORDirectory.h"

#include <cstddef>
#include <memory>
#include <utility>

class QORDirectory {
public:
    std::vector<std::string> names;
    std::size_t next = 0;
};

HRESULT QOROpenDirectory(const QORUnicodeString& path, QORDirectory*& directory) {
    directory = nullptr;
    std::vector<std::string> names = velkor::otherplatform::namesIn(path.utf8());
    if (names.empty()) return E_FAIL;
    directory = new QORDirectory{std::move(names)};
    return S_OK;
}

HRESULT QORReadDirectory(QORDirectory* directory, QORUnicodeString& name) {
    name = QORUnicodeString();
    if (directory == nullptr) return E_FAIL;
    if (directory->next == directory->names.size()) return S_FALSE;
    name = QORUnicodeString(directory->names[directory->next++]);
    return S_OK;
}

HRESULT QORCloseDirectory(QORDirectory*& directory) {
    const std::unique_ptr<QORDirectory> closed(std::exchange(directory, nullptr));
    return closed != nullptr ? S_OK : E_FAIL;
}
