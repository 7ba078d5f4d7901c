#include "QORIFCDXFileServices.h"

#include "foundation/Results.h"
#include "velkor/files/QORDirectory.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"
#include "velkor/text/QORToken.h"

#include <memory>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace {

const QORUnicodeString pathListSeparator = ";";
const QORUnicodeString folderSeparator = "\\";

struct CloseDirectory {
    void operator()(QORDirectory* directory) const {
        if (FAILED(QORCloseDirectory(directory))) VELKOR_ASSERTION_FAILED();
    }
};

/// Reads the folder's directory. `found` are the names of earlier folders, and of this one afterwards: they are
/// those of the lists, which may be moved but not be copied.
void search(QORIFCDXFileServices::SearchedFolder& folder, const QORUnicodeString& nameText,
            std::unordered_set<std::string_view>& found) {
    QORDirectory* directory = nullptr;
    if (FAILED(QOROpenDirectory(folder.path, directory))) return;
    const std::unique_ptr<QORDirectory, CloseDirectory> open(directory);
    folder.isReadable = true;
    QORUnicodeString name;
    while (QORReadDirectory(directory, name) == S_OK) {
        if (name.SearchSubString(nameText) < 0) continue;
        (found.contains(name.utf8()) ? folder.hiddenNames : folder.names).Append(std::move(name));
    }
    for (const QORUnicodeString& counted : folder.names) found.insert(counted.utf8());
}

} // namespace

std::vector<QORIFCDXFileServices::SearchedFolder>
QORIFCDXFileServices::SearchFolders(const QORUnicodeString& subFolder, const QORUnicodeString& nameText) {
    std::vector<SearchedFolder> folders;
    std::unordered_set<std::string_view> found;
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
    bool hasSeparator = false;
    for (const SearchedFolder& folder : SearchFolders(subFolder, extension)) {
        const QORUnicodeString start = folder.path + folderSeparator;
        for (const QORUnicodeString& name : folder.names) {
            files.Append(start + name);
            hasSeparator |= name.utf8().find(folderSeparator.utf8()) != std::string_view::npos;
        }
    }
    // A name counts once, so that paths can be equal only when a name reads like a folder and a name.
    if (hasSeparator) files.RemoveDuplicates();
    return files.Size() == 0 ? velkor::library::reported(E_UNEXPECTED) : S_OK;
}
