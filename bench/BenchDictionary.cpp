// The largest dictionary: its first use, and the look-ups that decoding a model consists of.

#include "CpuTime.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <benchmark/benchmark.h>
#include <dlfcn.h>

namespace {

using namespace velkor::sdai;

constexpr const char* library = VELKOR_LIB_DIR "/libvelkor.so";
constexpr const char* largest = "IFC4X4";

/// From the request to the restored dictionary: the loader, the builder and the restore. The
/// library is loaded anew each time, so that its texts are read for the first time too.
void firstUse(benchmark::State& state) {
    for (auto _ : state) {
        void* handle = dlopen(library, RTLD_NOW | RTLD_LOCAL);
        const velkor::bench::CpuTimer timer;
        auto schema = DXSdaiDictionaryRepo::TheOne().schema(largest);
        const double elapsed = timer.seconds();
        if (!schema) return state.SkipWithError(schema.error().message.c_str());
        state.SetIterationTime(elapsed);
        state.counters["bytes"] = static_cast<double>((*schema)->memoryUse());
        schema->reset();
        dlclose(handle);
    }
}

/// The schema for the look-ups, with the library kept loaded.
const SchemaDefinition* schema(benchmark::State& state) {
    static void* const handle = dlopen(library, RTLD_NOW | RTLD_LOCAL);
    auto restored = DXSdaiDictionaryRepo::TheOne().schema(largest);
    if (handle != nullptr && restored) return restored->get();
    state.SkipWithError(handle ? restored.error().message.c_str() : dlerror());
    return nullptr;
}

void entityByName(benchmark::State& state) {
    const SchemaDefinition* definition = schema(state);
    if (definition == nullptr) return;
    std::size_t found = 0;
    for (auto _ : state) {
        for (const EntityDefinition* entity : definition->entities()) {
            found += definition->entity(entity->name()) == entity;
        }
    }
    benchmark::DoNotOptimize(found);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(definition->entities().size()));
}

void isKindOf(benchmark::State& state) {
    const SchemaDefinition* definition = schema(state);
    if (definition == nullptr) return;
    const EntityDefinition& ancestor = *definition->entity("IFCPRODUCT");
    std::size_t products = 0;
    for (auto _ : state) {
        for (const EntityDefinition* entity : definition->entities()) products += entity->isKindOf(ancestor);
        benchmark::DoNotOptimize(products);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(definition->entities().size()));
}

/// Every attribute of every entity, inherited ones included.
void attributeIndex(benchmark::State& state) {
    const SchemaDefinition* definition = schema(state);
    if (definition == nullptr) return;
    std::int64_t count = 0, sum = 0;
    for (auto _ : state) {
        for (const EntityDefinition* entity : definition->entities()) {
            for (const AttributeSlot& slot : entity->attributes()) {
                sum += entity->attributeIndex(slot.attribute->name());
                ++count;
            }
        }
    }
    benchmark::DoNotOptimize(sum);
    state.SetItemsProcessed(count);
}

} // namespace

BENCHMARK(firstUse)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(entityByName);
BENCHMARK(isKindOf);
BENCHMARK(attributeIndex);
