#include "Memory.h"
#include "velkor/files/QORDirectory.h"
#include "velkor/files/QORSysRTVWalker.h"

#include <cstddef>
#include <memory>
#include <set>
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

namespace {

QORListValQORUnicodeString& view() {
    static auto& instance = *new QORListValQORUnicodeString;
    return instance;
}

} // namespace

void QORSysRTVWalker::AppendRTVSubDir(const QORUnicodeString& name) {
    _subPath += "/" + name;
}

void QORSysRTVWalker::SetPattern(const QORUnicodeString& ending) {
    _ending = ending;
}

HRESULT QORSysRTVWalker::GetNext(QORUnicodeString& path) {
    if (_next == 0) _paths = velkor::files::entriesOf(view(), _subPath, _ending);
    if (_next == _paths.Size()) {
        path = QORUnicodeString();
        return E_FAIL;
    }
    path = _paths[++_next];
    return S_OK;
}

namespace velkor::files {

void setRuntimeView(const QORListValQORUnicodeString& folders) {
    view() = folders;
}

QORListValQORUnicodeString runtimeView() {
    return view();
}

QORListValQORUnicodeString entriesOf(const QORListValQORUnicodeString& folders, const QORUnicodeString& subPath,
                                     const QORUnicodeString& ending) {
    QORListValQORUnicodeString paths;
    std::set<std::string> seen;
    for (const QORUnicodeString& folder : folders) {
        const std::string place((folder + subPath).utf8());
        for (const std::string& name : otherplatform::namesIn(place)) {
            if (!name.ends_with(ending.utf8()) || !seen.insert(name).second) continue;
            std::string path = place;
            path.append("/").append(name);
            paths.Append(QORUnicodeString(path));
        }
    }
    return paths;
}

} // namespace velkor::files
