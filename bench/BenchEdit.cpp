// What a copy of the large structure with one changed attribute costs beside copying its bytes through the same
// output, and what many edits take in time and memory.

#include "CpuTime.h"
#include "LargeStructure.h"
#include "velkor/files/OutputFile.h"
#include "velkor/sdai/Part21Edit.h"

#include <benchmark/benchmark.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace velkor;
using velkor::bench::CpuTimer;
using velkor::bench::LargeStructure;

namespace {

/// Each round writes over what the one before it wrote, in memory: pages of a file that is made anew cost sometimes
/// half, sometimes twice as much as the copying.
template <class Write>
void measure(benchmark::State& state, Write&& write) {
    const auto file = sdai::Part21File::open(LargeStructure::theOne().path());
    if (!file) return state.SkipWithError("the structure cannot be read");
    const int memory = memfd_create("edited", MFD_CLOEXEC);
    if (memory < 0) return state.SkipWithError("there is no memory to write to");
    bool isFirst = true;
    for ([[maybe_unused]] auto round : state) {
        // The first makes the pages.
        for (int pass = isFirst ? 0 : 1; pass < 2; ++pass) {
            lseek(memory, 0, SEEK_SET);
            const CpuTimer timer;
            auto output = files::OutputFile::onto(memory);
            if (!write(**file, output) || !output.commit()) return state.SkipWithError("the output cannot be written");
            state.SetIterationTime(timer.seconds());
        }
        isFirst = false;
    }
    close(memory);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>((*file)->text().size()));
}

void copyBytes(benchmark::State& state) {
    measure(state, [](const sdai::Part21File& file, files::OutputFile& output) {
        output.write(file.text());
        return true;
    });
}

void copyWithOneEdit(benchmark::State& state) {
    measure(state, [](const sdai::Part21File& file, files::OutputFile& output) {
        sdai::Part21Edit edit(file);
        if (!edit.setParameter(file.id(file.instanceCount() / 2), 0, "$")) return false;
        edit.write(output);
        return true;
    });
}

/// Every tenth instance is changed and as many are added.
void copyWithManyEdits(benchmark::State& state) {
    std::size_t edits = 0;
    std::size_t memory = 0;
    measure(state, [&](const sdai::Part21File& file, files::OutputFile& output) {
        sdai::Part21Edit edit(file);
        edits = 0;
        for (std::uint32_t i = 0; i < file.instanceCount(); i += 10) {
            edits += edit.setParameter(file.id(i), 0, "$").has_value() ? 1U : 0U;
            edits += edit.add("IFCDIRECTION((1.,0.,0.))").has_value() ? 1U : 0U;
        }
        memory = edit.memoryUse();
        edit.write(output);
        return edits > 0;
    });
    state.counters["edits"] = static_cast<double>(edits);
    state.counters["bytes/edit"] = edits > 0 ? static_cast<double>(memory) / static_cast<double>(edits) : 0;
}

} // namespace

BENCHMARK(copyBytes)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(copyWithOneEdit)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(copyWithManyEdits)->UseManualTime()->Unit(benchmark::kMillisecond);
