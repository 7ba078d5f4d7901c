// What bench/python.py reads, in C++: a number and a text of each of a million property values.

#include "velkor/sdai/Model.h"

#include <benchmark/benchmark.h>
#include <numeric>
#include <string>
#include <vector>

using namespace velkor::sdai;

namespace {

constexpr std::size_t count = 1'000'000;
constexpr std::size_t nameIndex = 0, valueIndex = 2;

const std::string& modelText() {
    static const std::string text = [] {
        std::string made =
            "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
            "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n";
        for (std::size_t i = 1; i <= count; ++i) {
            const std::string number = std::to_string(i);
            made.append("#").append(number).append("=IFCPROPERTYSINGLEVALUE('Name ").append(std::to_string(i % 100));
            made.append("',$,IFCREAL(").append(number).append(".5),$);\n");
        }
        return made += "ENDSEC;\nEND-ISO-10303-21;\n";
    }();
    return text;
}

const Model* openModel(benchmark::State& state) {
    static const auto model = Model::fromText(modelText(), "values.ifc");
    if (model) return model->get();
    state.SkipWithError(model.error().message.c_str());
    return nullptr;
}

void numberOfEach(benchmark::State& state) {
    const Model* model = openModel(state);
    if (model == nullptr) return;
    for (auto _ : state) {
        std::vector<double> values;
        values.reserve(count);
        for (const std::uint32_t number : model->numbersOf("IFCPROPERTYSINGLEVALUE"))
            values.push_back(model->instanceAt(number)->attribute(valueIndex).asReal().value_or(0.0));
        // So many halves and all numbers from 1.
        if (std::accumulate(values.begin(), values.end(), 0.0) != count / 2.0 * (count + 2.0))
            return state.SkipWithError("the values are others");
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count));
}

void numberAndTextOfEach(benchmark::State& state) {
    const Model* model = openModel(state);
    if (model == nullptr) return;
    for (auto _ : state) {
        std::vector<double> values;
        std::vector<std::string> names;
        for (const std::uint32_t number : model->numbersOf("IFCPROPERTYSINGLEVALUE")) {
            const DXSdaiAppInstance* instance = model->instanceAt(number);
            values.push_back(instance->attribute(valueIndex).asReal().value_or(0.0));
            names.push_back(instance->attribute(nameIndex).asString());
        }
        if (values.size() != count || names.back() != "Name 0") return state.SkipWithError("the values are others");
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(count));
}

} // namespace

BENCHMARK(numberOfEach)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(numberAndTextOfEach)->Unit(benchmark::kMillisecond)->Iterations(3);
