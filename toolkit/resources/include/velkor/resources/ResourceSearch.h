/// Where the services look for a kind of resource file, what is there, and which files they use.
///
///     const PlatformSetup setup(configuration);
///     for (const ResourceKind& kind : resourceKinds) show(searchResource(kind, setup));
#pragma once

#include "ResourceKinds.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/ToolkitExport.h"

#include <optional>
#include <string>
#include <vector>

namespace velkor {

/// What stands at a path.
enum class PathState { Readable, Missing, IsFolder, IsNoFolder, IsNoRegularFile, Forbidden };

/// As it goes on behind a path: "does not exist".
VELKOR_TOOLKIT_API const char* inWords(PathState state);

/// "readable", "missing", "is_folder", "is_no_folder", "is_no_regular_file", "forbidden".
VELKOR_TOOLKIT_API const char* name(PathState state);

/// Paths have the system's separator.
struct ResourceSearch {
    /// A file, and what stands at its path.
    struct File {
        std::string path;
        PathState state;
    };
    /// A file of a folder, and what becomes of it.
    struct Entry {
        /// What becomes of a file.
        enum class Use { Used, NotUsed, Hidden };
        std::string name;
        Use use = Use::NotUsed;
        /// The folder whose file of the same name hides this one.
        std::string hiddenBy;
    };
    /// A folder that was searched.
    struct Folder {
        /// The variable or the configuration key that it comes from, or "shipped with the program".
        std::string source;
        std::string path;
        PathState state;
        /// Names that are those of resource files.
        std::vector<Entry> entries;
    };

    /// The runtime view of a release, of a folder that has one for each.
    struct ReleaseView {
        std::string release;
        /// The folder in it where the files of the kind are.
        std::string path;
        PathState state;
        /// Paths, in the order of their names.
        std::vector<std::string> files;
        /// True for that which the services are given. Models are judged by that of their own release.
        bool isForServices = false;
    };

    ResourceKind kind;
    /// What the setup data are asked for and name; empty where they are not asked.
    std::string setupKey;
    std::vector<File> setupPaths;
    /// In the order of the search.
    std::vector<Folder> folders;
    /// Oldest release first; none when no folder of the runtime view has a view for each release.
    std::vector<ReleaseView> releaseViews;
    /// What the services answer, for the kinds that have a service to ask.
    std::optional<HRESULT> result;
    std::vector<File> used;
    /// Why nothing can be used, and what helps; empty when something can.
    std::string reason;
    /// What is not as it seems though it does no harm here.
    std::vector<std::string> remarks;

    bool isUsable() const { return reason.empty(); } ///< True when a file can be used.
};

/// What the setup has put in force is searched, the names of each folder once; folders of shipped resources are named
/// as such.
VELKOR_TOOLKIT_API ResourceSearch searchResource(const ResourceKind& kind, const PlatformSetup& setup);

} // namespace velkor
