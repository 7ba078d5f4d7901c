// What judging all rules costs beside what structure and dictionary take, how it grows, and what memory it needs beyond
// the open model. The model is made up: a sound building of IFC2X3, elements with swept and faceted shapes, properties,
// and a place in a storey.

#include "Building.h"
#include "CpuTime.h"
#include "HeldMemory.h"
#include "velkor/check/ModelCheck.h"

#include <benchmark/benchmark.h>
#include <string>
#include <string_view>

using namespace velkor;
using velkor::bench::guid, velkor::bench::together;
using velkor::sdai::Model;

namespace {

/// The processor time of a check of the model of state.range(0) MB, without that of opening it, and the most memory
/// that it held beyond the open model, to the size of the file.
template <class Check>
void checkBuilding(benchmark::State& state, Check check) {
    const std::string& text = bench::building(state.range(0));
    for (auto _ : state) {
        const auto model = Model::fromText(text, "bench");
        if (!model) return state.SkipWithError(model.error().message.c_str());
        const bench::HeldMemory memory;
        const bench::CpuTimer timer;
        if (!check(**model)) return state.SkipWithError("the model was not found sound");
        state.SetIterationTime(timer.seconds());
        state.counters["memoryPerByte"] = memory.bytes() / static_cast<double>(text.size());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

bool holdsAllRules(const Model& model, unsigned jobs) {
    RuleCheckOptions options;
    options.jobs = jobs;
    const RuleCheckResult result = checkRules(model, options);
    return result.total == 0 && result.coverage.undecided == 0 && result.coverage.judgedRules == result.coverage.rules;
}

void structureAndDictionary(benchmark::State& state) {
    checkBuilding(state, [](const Model& model) {
        ModelCheckOptions options;
        options.scope = CheckScope::Dictionary;
        return checkModel(model, options).total == 0;
    });
}
void rules(benchmark::State& state) {
    checkBuilding(state, [](const Model& model) { return holdsAllRules(model, 1); });
}
// The memory of several threads; their time is not that of this one.
void rulesOnTwoCores(benchmark::State& state) {
    checkBuilding(state, [](const Model& model) { return holdsAllRules(model, 2); });
}

BENCHMARK(structureAndDictionary)->Arg(110)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(rules)->Arg(110)->Arg(11)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(rulesOnTwoCores)->Arg(110)->UseManualTime()->Unit(benchmark::kMillisecond);

// Each of the kinds that look at whole populations, where linear growth is 10 times: as many identifiers, users of one
// instance, members of one set.
std::string population(std::int64_t count) {
    std::string text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
                       "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n#1=IFCGROUP('0000000000000000000001',$,$,$,$);\n";
    std::string members;
    for (std::int64_t i = 2; i < count + 2; ++i) {
        const std::string number = std::to_string(i);
        text += together({"#", number, "=IFCRELASSIGNSTOGROUP('", guid(i), "',$,$,$,(#1),$,#1);\n"});
        members += (members.empty() ? "#" : ",#") + number;
    }
    text += "#1000000000=IFCRELDECLARES('0000000000000000000002',$,$,$,#1,(" + members + "));\n";
    return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

void wholePopulations(benchmark::State& state) {
    const std::string text = population(state.range(0));
    const auto model = Model::fromText(text, "bench");
    if (!model) return state.SkipWithError(model.error().message.c_str());
    for (auto _ : state) {
        RuleCheckOptions options;
        options.jobs = 1;
        options.limit = 10;
        const bench::CpuTimer timer;
        benchmark::DoNotOptimize(checkRules(**model, options));
        state.SetIterationTime(timer.seconds());
    }
}
BENCHMARK(wholePopulations)->Arg(1'000'000)->Arg(100'000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
