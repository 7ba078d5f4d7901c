// What loading libvelkor.so into a process costs that has the platform already, beside an empty
// library of the same dependencies: the difference is relocation and registration.

#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <string>

namespace {

void loadAndUnload(benchmark::State& state, const std::string& library) {
    for (auto _ : state) {
        void* handle = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (handle == nullptr) {
            state.SkipWithError(dlerror());
            return;
        }
        dlclose(handle);
        if (dlopen(library.c_str(), RTLD_NOW | RTLD_NOLOAD) != nullptr) {
            state.SkipWithError("the library stayed loaded, so nothing was measured");
            return;
        }
    }
}

void loadVelkor(benchmark::State& state) {
    loadAndUnload(state, VELKOR_LIB_DIR "/libvelkor.so");
}
void loadEmptyLibrary(benchmark::State& state) {
    loadAndUnload(state, VELKOR_LIB_DIR "/libbench_empty.so");
}

} // namespace

BENCHMARK(loadEmptyLibrary)->Unit(benchmark::kMicrosecond);
BENCHMARK(loadVelkor)->Unit(benchmark::kMicrosecond);
