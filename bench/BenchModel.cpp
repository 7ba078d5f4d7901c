// What the questions of an importer cost on a large open model: its units, what an instance is, the value
// of an attribute.

#include "CpuTime.h"
#include "LargeStructure.h"
#include "QORIFCUnitServices.h"
#include "velkor/sdai/Model.h"

#include <benchmark/benchmark.h>

using namespace velkor::sdai;
using velkor::bench::CpuTimer;
using velkor::bench::LargeStructure;

namespace {

std::unique_ptr<Model> openModel(benchmark::State& state) {
    const LargeStructure& structure = LargeStructure::theOne();
    auto model = Model::open(structure.path());
    if (model) return std::move(*model);
    state.SkipWithError(structure.error().empty() ? model.error().message.c_str() : structure.error().c_str());
    return nullptr;
}

/// From the open model to its global unit factors. Each round has a model of its own, whose units have not
/// been touched; `instanceBytes` is what the answer left in memory.
void unitsOfAModel(benchmark::State& state) {
    for (auto _ : state) {
        const auto model = openModel(state);
        if (!model) return;
        // What the first instance brings with it, whichever it is, is not the units'.
        model->instanceAt(model->file().instanceCount() - 1);
        const std::size_t before = model->memoryUse();
        const CpuTimer timer;
        const auto assignments = model->numbersOf("IFCUNITASSIGNMENT");
        QORIFCUnitServices::SetSchema(velkor::fileschemaOf(model->schema().name()));
        double millimetres = 0.0, radians = 0.0;
        const bool isDone = !assignments.empty() &&
                            QORIFCUnitServices::StoreGlobalUnits(model->instanceAt(assignments.front())) >= 0 &&
                            QORIFCUnitServices::GetSIConversionFactorforGeometry(millimetres, radians) >= 0;
        state.SetIterationTime(timer.seconds());
        if (!isDone) return state.SkipWithError("the model has no units");
        const auto size = static_cast<double>(model->file().text().size());
        state.counters["memoryPerByte"] = static_cast<double>(model->memoryUse()) / size;
        state.counters["instanceBytes"] = static_cast<double>(model->memoryUse() - before);
    }
}

/// The first instances of a model, their parameters found.
struct Instances {
    explicit Instances(benchmark::State& state) : model(openModel(state)) {
        for (std::uint32_t i = 0; model && i < model->file().instanceCount() && all.size() < 4096; ++i) {
            DXSdaiAppInstance* instance = model->instanceAt(i);
            if (instance->entity() == nullptr || instance->entity()->attributes().empty()) continue;
            instance->attribute(0);
            all.push_back(instance);
        }
    }
    std::unique_ptr<Model> model;
    std::vector<DXSdaiAppInstance*> all;
};

template <class Use>
void eachInstance(benchmark::State& state, Use use) {
    const Instances instances(state);
    if (!instances.model) return;
    std::int64_t count = 0;
    for (auto _ : state) {
        for (const DXSdaiAppInstance* instance : instances.all) {
            auto answer = use(*instance);
            benchmark::DoNotOptimize(answer);
            ++count;
        }
    }
    state.SetItemsProcessed(count);
}

void isKindOfByName(benchmark::State& state) {
    eachInstance(state, [](const DXSdaiAppInstance& instance) { return instance.IsKindOf("IFCPRODUCT"); });
}

void attributeByName(benchmark::State& state) {
    eachInstance(state, [](const DXSdaiAppInstance& instance) {
        const auto attributes = instance.entity()->attributes();
        return instance.GetAttr(attributes.back().attribute->name());
    });
}

void attributeByIndex(benchmark::State& state) {
    eachInstance(state, [](const DXSdaiAppInstance& instance) {
        return instance.attribute(instance.entity()->attributes().size() - 1);
    });
}

/// A new instance's first attribute, for which all its parameters are found.
void firstAttributeOfAnInstance(benchmark::State& state) {
    std::int64_t count = 0;
    for (auto _ : state) {
        const auto model = openModel(state);
        if (!model) return;
        const std::uint32_t last = std::min<std::uint32_t>(model->file().instanceCount(), 100'000);
        const CpuTimer timer;
        for (std::uint32_t i = 0; i < last; ++i) benchmark::DoNotOptimize(model->instanceAt(i)->attribute(0));
        state.SetIterationTime(timer.seconds());
        count += last;
    }
    state.SetItemsProcessed(count);
}

} // namespace

BENCHMARK(unitsOfAModel)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(isKindOfByName);
BENCHMARK(attributeByName);
BENCHMARK(attributeByIndex);
BENCHMARK(firstAttributeOfAnInstance)->UseManualTime()->Unit(benchmark::kMillisecond);
