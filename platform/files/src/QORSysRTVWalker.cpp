#include "velkor/files/QORSysRTVWalker.h"

#include "velkor/files/QORDirectory.h"

#include <unordered_set>

namespace {

// Never destroyed: a library that is unloaded late may still walk.
QORListValQORUnicodeString& folders() {
    static QORListValQORUnicodeString& instance = *new QORListValQORUnicodeString;
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
    if (_next == 0) {
        _paths = velkor::files::entriesOf(folders(), _subPath, _ending);
        _next = 1;
    }
    path = _next <= _paths.Size() ? _paths[_next] : QORUnicodeString();
    if (path.IsEmpty()) return E_FAIL;
    ++_next;
    return S_OK;
}

namespace velkor::files {

void setRuntimeView(const QORListValQORUnicodeString& runtimeViewFolders) {
    folders() = runtimeViewFolders;
}

QORListValQORUnicodeString runtimeView() {
    return folders();
}

QORListValQORUnicodeString entriesOf(const QORListValQORUnicodeString& places, const QORUnicodeString& subPath,
                                     const QORUnicodeString& ending) {
    QORListValQORUnicodeString paths;
    // An entry of an earlier folder hides its namesakes.
    std::unordered_set<QORUnicodeString> seen;
    for (const QORUnicodeString& folder : places) {
        const QORUnicodeString place = folder + subPath;
        QORDirectory* directory = nullptr;
        if (FAILED(QOROpenDirectory(place, directory))) continue;
        QORUnicodeString name;
        while (QORReadDirectory(directory, name) == S_OK) {
            if (name.utf8().ends_with(ending.utf8()) && seen.insert(name).second) paths.Append(place + "/" + name);
        }
        QORCloseDirectory(directory);
    }
    return paths;
}

} // namespace velkor::files
