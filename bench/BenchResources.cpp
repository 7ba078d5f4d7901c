// Finding resource files in the collection standard: folders of 1,000 files each, with names of their own or
// with the same names, so that the first folder hides all others. The time has to grow with the number of folders.

#include "QORIFCDXFileServices.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

constexpr int folderCount = 50;
constexpr int filesPerFolder = 1000;

/// Folders of empty files that go with the object.
class ResourceFolders {
public:
    explicit ResourceFolders(bool sameNames)
        : _path(std::filesystem::temp_directory_path() /
                ("velkor-bench-" + std::to_string(getpid()) + (sameNames ? "-same" : "-distinct"))) {
        for (int folder = 0; folder < folderCount; ++folder) {
            const auto place = _path / std::to_string(folder) / "sub";
            std::filesystem::create_directories(place);
            for (int file = 0; file < filesPerFolder; ++file) {
                const int number = sameNames ? file : folder * filesPerFolder + file;
                std::ofstream(place / ("resource file " + std::to_string(number) + ".xml"));
            }
        }
    }
    ~ResourceFolders() { std::filesystem::remove_all(_path); }
    ResourceFolders(const ResourceFolders&) = delete;
    ResourceFolders& operator=(const ResourceFolders&) = delete;

    /// The first `count` folders as a list.
    QORUnicodeString list(std::int64_t count) const {
        std::string folders;
        for (std::int64_t folder = 0; folder < count; ++folder)
            folders += (_path / std::to_string(folder)).string() + ';';
        return QORUnicodeString(std::move(folders));
    }

private:
    std::filesystem::path _path;
};

void find(benchmark::State& state, const ResourceFolders& folders, bool sameNames) {
    velkor::settings::setVariable("QORCollectionStandard", folders.list(state.range(0)));
    velkor::settings::removeVariable("QORDefaultCollectionStandard");
    const std::int64_t expected = filesPerFolder * (sameNames ? 1 : state.range(0));
    for (auto _ : state) {
        QORListValQORUnicodeString files;
        QORIFCDXFileServices::FindResourceFiles("sub", "xml", files);
        if (files.Size() != expected) return state.SkipWithError("not every file was found");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0) * filesPerFolder);
    state.SetComplexityN(state.range(0));
}

void findDistinctNames(benchmark::State& state) {
    static const ResourceFolders folders(false);
    find(state, folders, false);
}
void findSameNames(benchmark::State& state) {
    static const ResourceFolders folders(true);
    find(state, folders, true);
}

} // namespace

BENCHMARK(findDistinctNames)->Arg(10)->Arg(20)->Arg(50)->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);
BENCHMARK(findSameNames)->Arg(10)->Arg(20)->Arg(50)->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);
