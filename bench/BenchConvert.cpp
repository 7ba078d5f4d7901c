// What conversions take beside opening the model, how that grows, and what memory they need beyond the open model. The
// result goes to a file in memory that is there already, so that the disk does not count.

#include "Building.h"
#include "CpuTime.h"
#include "HeldMemory.h"
#include "velkor/exchange/Conversion.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

using namespace velkor;
using velkor::sdai::Model;

namespace {

/// The made-up building on disk; gone with the process.
class BuildingFile {
public:
    explicit BuildingFile(std::int64_t megabytes)
        : _path(std::filesystem::temp_directory_path() /
                ("velkor_building." + std::to_string(getpid()) + '.' + std::to_string(megabytes) + ".ifc")) {
        std::ofstream(_path, std::ios::binary) << bench::building(megabytes);
    }
    ~BuildingFile() { std::filesystem::remove(_path); }
    BuildingFile(const BuildingFile&) = delete;
    BuildingFile& operator=(const BuildingFile&) = delete;

    static std::string path(std::int64_t megabytes) {
        static std::map<std::int64_t, BuildingFile> files;
        return files.try_emplace(megabytes, megabytes).first->second._path.string();
    }

private:
    std::filesystem::path _path;
};

int resultFile() {
    static const int descriptor = memfd_create("result", 0);
    lseek(descriptor, 0, SEEK_SET);
    return descriptor;
}

void open(benchmark::State& state) {
    const std::string path = BuildingFile::path(state.range(0));
    for ([[maybe_unused]] auto round : state) {
        const bench::CpuTimer timer;
        const auto model = Model::open(path);
        state.SetIterationTime(timer.seconds());
        if (!model) return state.SkipWithError(model.error().message.c_str());
    }
}

template <class Convert>
void measure(benchmark::State& state, Convert convert) {
    const std::string path = BuildingFile::path(state.range(0));
    const auto size = std::filesystem::file_size(path);
    for ([[maybe_unused]] auto round : state) {
        const auto model = Model::open(path);
        if (!model) return state.SkipWithError(model.error().message.c_str());
        auto output = files::OutputFile::onto(resultFile());
        const bench::HeldMemory memory;
        const bench::CpuTimer timer;
        const auto report = convert(**model, output);
        const bool isWritten = output.commit().has_value();
        state.SetIterationTime(timer.seconds());
        if (!report || !isWritten || !report->isLossless()) return state.SkipWithError("the model was not converted");
        state.counters["memoryPerByte"] = memory.bytes() / static_cast<double>(size);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}

void toIfc4(benchmark::State& state) {
    measure(state, [](const Model& model, files::OutputFile& output) {
        ReleaseOptions options;
        options.release = "IFC4";
        return convertRelease(model, options, output);
    });
}

void toMillimetre(benchmark::State& state) {
    measure(state, [](const Model& model, files::OutputFile& output) {
        UnitOptions options;
        options.units = {{"LENGTHUNIT", "MILLIMETRE"}};
        return convertUnits(model, options, output);
    });
}

/// Two steps, with a file between them.
void toIfc4InMillimetre(benchmark::State& state) {
    measure(state, [](const Model& model, files::OutputFile& output) {
        ConversionOptions options;
        options.release.emplace().release = "IFC4";
        options.units.emplace().units = {{"LENGTHUNIT", "MILLIMETRE"}};
        return convertModel(model, options, output);
    });
}

} // namespace

BENCHMARK(open)->Arg(110)->Arg(11)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(toIfc4)->Arg(110)->Arg(11)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(toMillimetre)->Arg(110)->Arg(11)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(toIfc4InMillimetre)->Arg(110)->UseManualTime()->Unit(benchmark::kMillisecond);
