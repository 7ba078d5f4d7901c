#include "velkor/files/Paths.h"

#include <algorithm>

HRESULT QORSplitPath(const QORUnicodeString& path, QORUnicodeString& directory, QORUnicodeString& file) {
    const std::string whole(path.utf8());
    const std::size_t separator = whole.find_last_of("/\\");
    const std::size_t name = separator == std::string::npos ? 0 : separator + 1;
    if (name == whole.size()) {
        directory = QORUnicodeString();
        file = QORUnicodeString();
        return E_FAIL;
    }
    directory = QORUnicodeString(whole.substr(0, name > 0 ? separator : 0));
    file = QORUnicodeString(whole.substr(name));
    return S_OK;
}

std::string velkor::files::nativePath(const QORUnicodeString& path) {
    std::string native(path.utf8());
    std::ranges::replace(native, '\\', '/');
    return native;
}
