#include "velkor/resources/ResourceSearch.h"

#include "QORIFCDXDataSetupServices.h"
#include "velkor/configuration/ConfigurationTable.h"
#include "velkor/files/Paths.h"
#include "velkor/files/QORDirectory.h"
#include "velkor/files/QORISetupDataFinder.h"
#include "velkor/files/QORSysRTVWalker.h"
#include "velkor/text/QORToken.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <filesystem>
#include <unistd.h>
#include <unordered_map>
#include <unordered_set>

namespace velkor {

namespace {

using Entry = ResourceSearch::Entry;
using File = ResourceSearch::File;
using Folder = ResourceSearch::Folder;

bool isReadable(const std::string& path) {
    return access(path.c_str(), R_OK) == 0;
}

PathState fileState(const std::string& path) {
    std::error_code none;
    const auto status = std::filesystem::status(path, none);
    if (status.type() == std::filesystem::file_type::not_found) return PathState::Missing;
    if (std::filesystem::is_directory(status)) return PathState::IsFolder;
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) return PathState::IsNoRegularFile;
    return isReadable(path) ? PathState::Readable : PathState::Forbidden;
}

// Of a folder that could not be opened.
PathState unopenedState(const std::string& path) {
    std::error_code none;
    const auto status = std::filesystem::status(path, none);
    if (status.type() == std::filesystem::file_type::not_found) return PathState::Missing;
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status) ? PathState::IsNoFolder
                                                                                     : PathState::Forbidden;
}

File file(const QORUnicodeString& path) {
    std::string native = files::nativePath(path);
    const PathState state = fileState(native);
    return {std::move(native), state};
}

std::string inside(const std::string& folder, const std::string& name) {
    return folder + '/' + name;
}

void askSetupData(ResourceSearch& search) {
    const auto finder = QORSetupDataGlobalFunctions::GetSetupDataFinder();
    if (*search.kind.resourceSet == '\0' || !finder) return;
    search.setupKey = std::string(search.kind.resourceSet) + '|' + search.kind.category;
    QORListValQORIKweAppResourceSubItem_var items;
    finder->GetResourceSubItems(QORUnicodeString(std::string_view(search.setupKey)), items, -1);
    for (const auto& item : items) {
        QORUnicodeString path;
        if (item && SUCCEEDED(item->GetPath(path))) search.setupPaths.push_back(file(path));
    }
}

// Folders found so far, and which of them has a name first.
class Folders {
public:
    explicit Folders(std::vector<Folder>& folders) : _folders(folders) {}

    void begin(Folder folder) { _folders.push_back(std::move(folder)); }
    void add(const QORUnicodeString& name) {
        Entry entry{std::string(name.utf8()), Entry::Use::NotUsed, {}};
        const std::size_t current = _folders.size() - 1;
        const std::size_t first = _first.try_emplace(entry.name, current).first->second;
        if (first != current) {
            entry.use = Entry::Use::Hidden;
            entry.hiddenBy = _folders[first].path;
        }
        _folders.back().entries.push_back(std::move(entry));
    }

private:
    std::vector<Folder>& _folders;
    std::unordered_map<std::string, std::size_t> _first;
};

void searchCollectionStandard(ResourceSearch& search, const std::string& shipped) {
    Folders folders(search.folders);
    for (const auto& searched : QORIFCDXFileServices::SearchFolders(search.kind.subFolder, search.kind.nameText)) {
        Folder folder{searched.variable, files::nativePath(searched.path), PathState::Readable, {}};
        if (!shipped.empty() && folder.path == inside(shipped, search.kind.subFolder)) folder.source = shippedSource;
        if (!searched.isReadable) folder.state = unopenedState(folder.path);
        folders.begin(std::move(folder));
        for (const QORUnicodeString& name : searched.names) folders.add(name);
        for (const QORUnicodeString& name : searched.hiddenNames) folders.add(name);
    }
}

/// Calls `add` for each name of a folder that is one of the kind's files, in their order. Tells the folder's state.
template <class Add>
PathState listFolder(const std::string& path, const ResourceKind& kind, Add add) {
    QORDirectory* directory = nullptr;
    if (FAILED(QOROpenDirectory(QORUnicodeString(std::string_view(path)), directory))) return unopenedState(path);
    for (QORUnicodeString name; QORReadDirectory(directory, name) == S_OK;) {
        if (name.utf8().ends_with(kind.nameText)) add(name);
    }
    QORCloseDirectory(directory);
    return PathState::Readable;
}

// The walker says what is used; the folders are listed to say what it passes over.
void searchRuntimeView(ResourceSearch& search, const std::string& shipped) {
    Folders folders(search.folders);
    for (const QORUnicodeString& root : files::runtimeView()) {
        const std::string path = files::nativePath(root);
        Folder folder{path == shipped ? shippedSource : keys::runtimeView,
                      inside(path, search.kind.subFolder),
                      PathState::Readable,
                      {}};
        const std::string place = folder.path;
        folders.begin(std::move(folder));
        search.folders.back().state =
            listFolder(place, search.kind, [&](const QORUnicodeString& name) { folders.add(name); });
    }
    QORSysRTVWalker walker;
    QORToken steps(search.kind.subFolder);
    for (auto step = steps.GetNextToken("/"); !step.IsEmpty(); step = steps.GetNextToken("/"))
        walker.AppendRTVSubDir(step);
    walker.SetPattern(search.kind.nameText);
    for (QORUnicodeString path; SUCCEEDED(walker.GetNext(path));) search.used.push_back(file(path));
}

void searchReleaseViews(ResourceSearch& search, const PlatformSetup& setup) {
    if (setup.runtimeViewsByRelease().empty()) return;
    const std::string root = files::nativePath(QORUnicodeString(std::string_view(setup.runtimeViewsByRelease())));
    for (const std::string_view release : definitionReleases) {
        ResourceSearch::ReleaseView view{std::string(release), {}, PathState::Readable, {}};
        view.path = inside(inside(root, view.release), search.kind.subFolder);
        view.isForServices = release == setup.definitionsRelease();
        view.state = listFolder(view.path, search.kind, [&](const QORUnicodeString& name) {
            view.files.push_back(inside(view.path, std::string(name.utf8())));
        });
        search.releaseViews.push_back(std::move(view));
    }
}

// The services that read the kinds of these rules look for themselves, by these very steps.
void useFirstFile(ResourceSearch& search) {
    if (search.setupPaths.size() == 1) {
        search.used = search.setupPaths;
        return;
    }
    for (const Folder& folder : search.folders) {
        const auto first = std::ranges::find(folder.entries, Entry::Use::NotUsed, &Entry::use);
        if (first == folder.entries.end()) continue;
        search.used = {file(QORUnicodeString(inside(folder.path, first->name)))};
        return;
    }
}

void chooseFiles(ResourceSearch& search) {
    const ResourceKind& kind = search.kind;
    switch (kind.rule) {
    case ResourceRule::TheOnlyFile: {
        QORUnicodeString path;
        search.result =
            QORIFCDXDataSetupServices::GetResourcePath(kind.resourceSet, kind.category, kind.subFolder, path);
        if (SUCCEEDED(*search.result) && !path.IsEmpty()) search.used = {file(path)};
        break;
    }
    case ResourceRule::AllFiles: {
        // Of a failure the paths are kept, and the services use them.
        QORListValQORUnicodeString paths;
        search.result =
            QORIFCDXDataSetupServices::GetResourcePaths(kind.resourceSet, kind.category, kind.subFolder, paths);
        for (const QORUnicodeString& path : paths) search.used.push_back(file(path));
        break;
    }
    case ResourceRule::FirstFile:
    case ResourceRule::FirstFileWithFinder:
    case ResourceRule::FirstFileWithoutSetupData:
        useFirstFile(search);
        break;
    case ResourceRule::RuntimeView:
        break;
    }
    std::unordered_set<std::string_view> used;
    for (const File& file : search.used) used.insert(file.path);
    for (Folder& folder : search.folders) {
        for (Entry& entry : folder.entries) {
            if (used.contains(inside(folder.path, entry.name))) entry.use = Entry::Use::Used;
        }
    }
}

// Why none of the folders has a file.
std::string emptyReason(const ResourceSearch& search) {
    const bool isRuntimeView = search.kind.rule == ResourceRule::RuntimeView;
    const std::string place = isRuntimeView ? "the runtime view" : "the collection standard";
    const std::string help = isRuntimeView
                                 ? std::string("; set ") + keys::runtimeView + " in the configuration"
                                 : std::string("; set ") + keys::collectionStandard + " in the configuration or " +
                                       QORIFCDXFileServices::CollectionStandardVariables[0];
    const std::string subFolder = text::quoted(search.kind.subFolder);
    if (search.folders.empty()) return place + " has no folders" + help;
    const auto hasState = [&](PathState state) {
        return std::ranges::find(search.folders, state, &Folder::state) != search.folders.end();
    };
    if (hasState(PathState::Readable)) {
        return "no sub-folder " + subFolder + " of " + place + " has a file whose name " +
               (isRuntimeView ? "ends with " : "contains ") + text::quoted(search.kind.nameText) + "; put one there";
    }
    const bool areMissing = !hasState(PathState::Forbidden) && !hasState(PathState::IsNoFolder);
    return "no folder of " + place + " has a sub-folder " + subFolder + (areMissing ? "" : " that can be read") + help;
}

std::string reason(const ResourceSearch& search) {
    if (std::ranges::find(search.used, PathState::Readable, &File::state) != search.used.end()) return {};
    std::size_t visible = 0;
    for (const Folder& folder : search.folders)
        visible += static_cast<std::size_t>(std::ranges::count(folder.entries, Entry::Use::NotUsed, &Entry::use));
    if (!search.used.empty()) {
        const File& first = search.used.front();
        const bool isNamed = std::ranges::find(search.setupPaths, first.path, &File::path) != search.setupPaths.end();
        return text::quoted(first.path) + (isNamed ? ", which the setup data name, " : " is to be used but ") +
               inWords(first.state) +
               (isNamed ? std::string("; correct it in ") + keys::setupData + " in the configuration"
                        : std::string("; put a readable file in its place"));
    }
    if (search.kind.rule == ResourceRule::TheOnlyFile && visible > 1) {
        return "the sub-folders " + text::quoted(search.kind.subFolder) + " of the collection standard have " +
               std::to_string(visible) + " files where one is expected; keep one of them or name it in " +
               keys::setupData + " as " + text::quoted(search.setupKey);
    }
    return emptyReason(search);
}

// The validation service takes all files for those of one folder. What judges models does not.
void remarkOtherFolders(ResourceSearch& search) {
    const auto folderOf = [](const File& file) {
        return std::string_view(file.path).substr(0, file.path.find_last_of('/'));
    };
    const std::string_view last = folderOf(search.used.back());
    const auto elsewhere = std::ranges::count_if(search.used, [&](const File& file) { return folderOf(file) != last; });
    if (elsewhere == 0) return;
    search.remarks.push_back("the validation service reads every file from " + text::quoted(last) +
                             ", the folder of the last one; " + text::grouped(static_cast<std::uint64_t>(elsewhere)) +
                             " of another folder " + (elsewhere == 1 ? "counts" : "count") +
                             " for the judgement of models alone");
}

void remark(ResourceSearch& search) {
    const std::size_t count = search.setupPaths.size();
    if (count > 1 && search.kind.rule != ResourceRule::AllFiles) {
        search.remarks.push_back("the setup data name " + std::to_string(count) +
                                 " paths where one is expected; none of them is used");
    }
    if (search.kind.rule == ResourceRule::AllFiles && search.result && FAILED(*search.result) && search.isUsable())
        search.remarks.emplace_back("the collection standard has no such file, which the services report as a failure");
    if (search.kind.rule == ResourceRule::RuntimeView && search.isUsable()) remarkOtherFolders(search);
    // Of what makes the search useless the reason tells.
    for (std::size_t i = search.isUsable() ? 0 : 1; i < search.used.size(); ++i) {
        const File& used = search.used[i];
        if (used.state != PathState::Readable)
            search.remarks.push_back(text::quoted(used.path) + ' ' + inWords(used.state));
    }
}

} // namespace

const char* inWords(PathState state) {
    constexpr const char* words[] = {"is readable",  "does not exist",     "is a folder",
                                     "is no folder", "is no regular file", "may not be read"};
    return words[static_cast<std::size_t>(state)];
}

const char* name(PathState state) {
    constexpr const char* names[] = {"readable",           "missing",  "is_folder", "is_no_folder",
                                     "is_no_regular_file", "forbidden"};
    return names[static_cast<std::size_t>(state)];
}

ResourceSearch searchResource(const ResourceKind& kind, const PlatformSetup& setup) {
    ResourceSearch search{kind, {}, {}, {}, {}, {}, {}, {}, {}};
    askSetupData(search);
    if (kind.rule == ResourceRule::RuntimeView) {
        searchRuntimeView(search, setup.shippedRuntimeView());
        searchReleaseViews(search, setup);
    } else {
        searchCollectionStandard(search, setup.shippedStandard());
    }
    chooseFiles(search);
    search.reason = reason(search);
    remark(search);
    return search;
}

} // namespace velkor
