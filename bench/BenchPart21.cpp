// How fast an exchange structure is opened, for each set of instructions, beside a plain scan of
// the same text that only counts statements: what an index costs over reading alone.

#include "BlockClassifier.h"
#include "CpuTime.h"
#include "LargeStructure.h"
#include "velkor/files/Packing.h"
#include "velkor/sdai/Part21File.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <bit>
#include <filesystem>

using namespace velkor::sdai;
using velkor::bench::CpuTimer;
using velkor::bench::LargeStructure;

namespace {

constexpr const char* pathNames[] = {"Automatic", "Portable", "Sse2", "Avx2", "Avx512"};

/// Counts the ";" and "=" of a text with the classifier alone.
std::uint64_t countMarks(std::string_view text, part21::BlockClassifier classifier) {
    std::array<part21::BlockMasks, 256> masks;
    std::uint64_t count = 0;
    const std::size_t blocks = text.size() / part21::blockSize;
    for (std::size_t block = 0; block < blocks; block += masks.size()) {
        const std::size_t now = std::min(masks.size(), blocks - block);
        classifier(text.data() + block * part21::blockSize, now, masks.data());
        for (std::size_t i = 0; i < now; ++i) count += static_cast<unsigned>(std::popcount(masks[i].statement));
    }
    return count;
}

void plainScan(benchmark::State& state) {
    const auto path = static_cast<ScanPath>(state.range(0));
    state.SetLabel(pathNames[state.range(0)]);
    const auto classifier = part21::blockClassifier(path);
    const auto file = Part21File::open(LargeStructure::theOne().path());
    if (classifier == nullptr || !file) {
        state.SkipWithError(file ? "not on this processor" : file.error().message.c_str());
        return;
    }
    for (auto _ : state) benchmark::DoNotOptimize(countMarks((*file)->text(), classifier));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>((*file)->text().size()));
}

void open(benchmark::State& state) {
    const auto path = static_cast<ScanPath>(state.range(0));
    state.SetLabel(pathNames[state.range(0)]);
    const LargeStructure& structure = LargeStructure::theOne();
    if (!structure.error().empty()) {
        state.SkipWithError(structure.error().c_str());
        return;
    }
    const auto warm = Part21File::open(structure.path(), path);
    if (!warm) {
        state.SkipWithError(warm.error().message.c_str());
        return;
    }
    const std::string_view text = (*warm)->text();
    // Taken in turns, so that both meet the machine in the same mood.
    double scan = 1e9, opening = 1e9;
    for (auto _ : state) {
        const CpuTimer scanTimer;
        benchmark::DoNotOptimize(countMarks(text, part21::blockClassifier(path)));
        scan = std::min(scan, scanTimer.seconds());
        const CpuTimer timer;
        const auto file = Part21File::open(structure.path(), path);
        const double seconds = timer.seconds();
        if ((*file)->instanceCount() != (*warm)->instanceCount() || (*file)->problemCount() != 0) {
            state.SkipWithError("the structure was not read as written");
            return;
        }
        state.SetIterationTime(seconds);
        opening = std::min(opening, seconds);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
    state.counters["instances"] = (*warm)->instanceCount();
    state.counters["bestGBps"] = static_cast<double>(text.size()) / opening / 1e9;
    state.counters["timesPlainScan"] = opening / scan;
    state.counters["memoryPerByte"] = static_cast<double>((*warm)->memoryUse()) / static_cast<double>(text.size());
}

/// The same model from an archive, whose bytes come out of the page cache as those of the plain file do.
void openPacked(benchmark::State& state, const char* ending) {
    const LargeStructure& structure = LargeStructure::theOne();
    const auto plain = Part21File::open(structure.path());
    if (!plain) {
        state.SkipWithError(plain.error().message.c_str());
        return;
    }
    const std::string path = structure.path() + ending;
    auto output = velkor::files::ModelOutput::create(QORUnicodeString(std::string_view(path)));
    if (!output) {
        state.SkipWithError(output.error().message.c_str());
        return;
    }
    output->text().write((*plain)->text());
    const bool isWritten = output->flush().and_then([&output] { return output->commit(); }).has_value();
    for (auto _ : state) {
        const CpuTimer timer;
        const auto file = Part21File::open(path);
        state.SetIterationTime(timer.seconds());
        if (!isWritten || !file || (*file)->instanceCount() != (*plain)->instanceCount()) {
            state.SkipWithError("the archive was not read as written");
            break;
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>((*plain)->text().size()));
    state.counters["timesSmaller"] =
        static_cast<double>((*plain)->text().size()) / static_cast<double>(std::filesystem::file_size(path));
    std::filesystem::remove(path);
}

} // namespace

BENCHMARK_CAPTURE(openPacked, zip, ".ifczip")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openPacked, gzip, ".gz")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(plainScan)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);
BENCHMARK(open)->DenseRange(0, 4)->UseManualTime()->Unit(benchmark::kMillisecond);
