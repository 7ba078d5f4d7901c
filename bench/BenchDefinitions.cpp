// The definitions of property sets and quantity sets of a release: how soon they answer, against what libxml2 alone
// takes to parse the same files, and whether more of them make an answer slower.

#include "CpuTime.h"
#include "HeldMemory.h"
#include "velkor/propertysets/SetCatalogue.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <libxml/parser.h>
#include <string>
#include <vector>

using namespace velkor;

namespace {

constexpr const char* release = "IFC4X3_ADD2";

DefinitionViews views() {
    return {{}, VELKOR_RESOURCE_DIR "/runtime"};
}

std::vector<std::string> definitionFiles() {
    std::vector<std::string> paths;
    const SetCatalogue catalogue(views(), release);
    for (const std::string_view name : catalogue.names()) paths.push_back(catalogue.path(name));
    return paths;
}

void parseAll(benchmark::State& state) {
    const std::vector<std::string> paths = definitionFiles();
    for ([[maybe_unused]] auto round : state) {
        const bench::CpuTimer timer;
        for (const std::string& path : paths) {
            xmlDocPtr document = xmlReadFile(path.c_str(), nullptr, XML_PARSE_NONET);
            if (document == nullptr) return state.SkipWithError("a file was not parsed");
            xmlFreeDoc(document);
        }
        state.SetIterationTime(timer.seconds());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(paths.size()));
}

/// From nothing to the first answer about a set.
void firstUse(benchmark::State& state) {
    for ([[maybe_unused]] auto round : state) {
        const bench::CpuTimer timer;
        const SetLibrary library(views());
        const SetDefinition* set = library.of(release).find("Pset_WallCommon");
        state.SetIterationTime(timer.seconds());
        if (set == nullptr || set->properties.empty()) return state.SkipWithError("the set was not read");
    }
}

/// From nothing to having read every set.
void readAll(benchmark::State& state) {
    const std::size_t count = definitionFiles().size();
    for ([[maybe_unused]] auto round : state) {
        const bench::HeldMemory memory;
        const bench::CpuTimer timer;
        const SetLibrary library(views());
        const bool areAll = library.of(release).all().size() == count;
        state.SetIterationTime(timer.seconds());
        state.counters["memory"] = memory.bytes();
        if (!areAll) return state.SkipWithError("a set was not read");
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count));
}

/// A look-up among the sets of a release, about the first range(0) of them.
void find(benchmark::State& state) {
    const SetCatalogue catalogue(views(), release);
    std::vector<std::string_view> names(catalogue.names().begin(), catalogue.names().end());
    catalogue.all();
    const auto asked = std::min(names.size(), static_cast<std::size_t>(state.range(0)));
    if (asked == 0) return state.SkipWithError("there are no definitions");
    std::size_t next = 0;
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(catalogue.find(names[next]));
        if (++next == asked) next = 0;
    }
}

} // namespace

BENCHMARK(parseAll)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(firstUse)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readAll)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(find)->Arg(10)->Arg(1000);
