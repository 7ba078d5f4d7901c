// Identifiers for IFC: derived from PLM identifiers of several lengths, and generated.

#include "QORIFCExportServices.h"

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

namespace {

/// PLM identifiers of a length that differ at their ends.
std::vector<QORUnicodeString> plmIds(std::size_t length) {
    std::vector<QORUnicodeString> ids;
    for (int i = 0; i < 1024; ++i) {
        const std::string number = std::to_string(i);
        ids.emplace_back(std::string(length - number.size(), 'p') + number);
    }
    return ids;
}

void convertPlmId(benchmark::State& state) {
    const auto ids = plmIds(static_cast<std::size_t>(state.range(0)));
    QORUnicodeString guid;
    std::size_t next = 0;
    for (auto _ : state) {
        QORIFCExportServices::ConvertPLMIDToGUID(ids[next++ % ids.size()], guid);
        benchmark::DoNotOptimize(guid);
    }
    state.SetItemsProcessed(state.iterations());
}

void generate(benchmark::State& state) {
    QORUnicodeString guid;
    for (auto _ : state) {
        QORIFCExportServices::GenerateIFCGUID(guid);
        benchmark::DoNotOptimize(guid);
    }
    state.SetItemsProcessed(state.iterations());
}

} // namespace

BENCHMARK(convertPlmId)->Arg(12)->Arg(36)->Arg(120);
BENCHMARK(generate);
