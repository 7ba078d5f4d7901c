#include "QORIFCDXFileServices.h"

#include "files/QORDirectory.h"
#include "objectmodeler/Assertion.h"
#include "settings/QORDXEnvironmentVariable.h"
#include "text/QORToken.h"

#include <unordered_set>
#include <utility>

namespace {

const QORUnicodeString pathListSeparator = ";";
const QORUnicodeString folderSeparator = "\\";

/// Reads the folder's directory. `found` are the names of earlier folders, and of this one afterwards.
void search(QORIFCDXFileServices::SearchedFolder& folder, const QORUnicodeString& nameText,
            std::unordered_set<QORUnicodeString>& found) {
    QORDirectory* directory = nullptr;
    if (FAILED(QOROpenDirectory(folder.path, directory))) return;
    folder.isReadable = true;
    QORUnicodeString name;
    while (QORReadDirectory(directory, name) == S_OK) {
        if (name.SearchSubString(nameText) < 0) continue;
        (found.insert(name).second ? folder.names : folder.hiddenNames).Append(name);
    }
    if (FAILED(QORCloseDirectory(directory))) VELKOR_ASSERTION_FAILED();
}

} // namespace

std::vector<QORIFCDXFileServices::SearchedFolder>
QORIFCDXFileServices::SearchFolders(const QORUnicodeString& subFolder, const QORUnicodeString& nameText) {
    std::vector<SearchedFolder> folders;
    std::unordered_set<QORUnicodeString> found;
    for (const char* variable : CollectionStandardVariables) {
        QORToken list(QORGetEnv(variable));
        for (QORUnicodeString piece = list.GetNextToken(pathListSeparator); !piece.IsEmpty();
             piece = list.GetNextToken(pathListSeparator)) {
            SearchedFolder folder;
            folder.variable = variable;
            folder.path = piece + folderSeparator + subFolder;
            search(folder, nameText, found);
            folders.push_back(std::move(folder));
        }
    }
    return folders;
}

HRESULT QORIFCDXFileServices::FindResourceFiles(const QORUnicodeString& subFolder, const QORUnicodeString& extension,
                                                QORListValQORUnicodeString& files) {
    files.RemoveAll();
    for (const SearchedFolder& folder : SearchFolders(subFolder, extension)) {
        const QORUnicodeString start = folder.path + folderSeparator;
        for (const QORUnicodeString& name : folder.names) files.Append(start + name);
    }
    files.RemoveDuplicates();
    if (files.Size() == 0) {
        VELKOR_ASSERTION_FAILED();
        return E_UNEXPECTED;
    }
    return S_OK;
}
