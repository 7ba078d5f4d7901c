// What the checks of identifiers and property sets cost on a large model, beside opening it: a million properties in
// 100,000 sets of 100,000 walls.

#include "CpuTime.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/identifiers/GuidCheck.h"
#include "velkor/propertysets/DefinitionSearch.h"
#include "velkor/propertysets/PropertySetCheck.h"
#include "velkor/sdai/Model.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <iostream>
#include <string>

using namespace velkor;
using velkor::sdai::Model;

namespace {

constexpr int wallCount = 100'000;
/// A property of Pset_WallCommon, behind its keyword and name.
struct Property {
    const char* keyword;
    const char* name;
    const char* rest;
};
constexpr Property properties[] = {
    {"IFCPROPERTYSINGLEVALUE", "Reference", "IFCIDENTIFIER('W 24'),$"},
    {"IFCPROPERTYENUMERATEDVALUE", "Status", "(IFCLABEL('EXISTING')),$"},
    {"IFCPROPERTYSINGLEVALUE", "AcousticRating", "IFCLABEL('R 53'),$"},
    {"IFCPROPERTYSINGLEVALUE", "FireRating", "IFCLABEL('F 90'),$"},
    {"IFCPROPERTYSINGLEVALUE", "Combustible", "IFCBOOLEAN(.F.),$"},
    {"IFCPROPERTYSINGLEVALUE", "IsExternal", "IFCBOOLEAN(.T.),$"},
    {"IFCPROPERTYSINGLEVALUE", "ThermalTransmittance", "IFCTHERMALTRANSMITTANCEMEASURE(0.24),#1"},
    {"IFCPROPERTYSINGLEVALUE", "SurfaceSpreadOfFlame", "IFCLABEL('none'),$"},
    {"IFCPROPERTYSINGLEVALUE", "LoadBearing", "IFCBOOLEAN(.T.),$"},
    {"IFCPROPERTYSINGLEVALUE", "Compartmentation", "IFCBOOLEAN(.F.),$"}};
// What a wrong set has in place of the value of Status.
constexpr const char* wrongStatus = "(IFCLABEL('OLD')),$";

// 22 characters of their own for each number.
std::string guid(std::uint64_t number) {
    std::string text = std::to_string(number);
    return std::string(22 - text.size(), '0') + text;
}

// With `isWrong`, every set belongs to no wall, has a property that its definition lacks and a value that is none of
// the enumerators.
std::string structure(bool isWrong) {
    std::string text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
                       "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n";
    std::uint64_t id = 1;
    text += "#1=IFCDERIVEDUNIT((),.THERMALTRANSMITTANCEUNIT.,$);\n";
    const auto begin = [&](const char* keyword) {
        text += '#' + std::to_string(++id) + '=' + keyword + '(';
        return id;
    };
    for (int wall = 0; wall < wallCount; ++wall) {
        const std::uint64_t object = begin(isWrong ? "IFCSITE" : "IFCWALL");
        text += '\'' + guid(id) + (isWrong ? "',$,$,$,$,$,$,$,$,$,$,$,$,$);\n" : "',$,$,$,$,$,$,$,$);\n");
        std::string members;
        for (const auto& [keyword, name, rest] : properties) {
            const bool isEnumerated = std::string_view(name) == "Status";
            begin(keyword);
            text.append(1, '\'').append(name).append(isWrong && members.empty() ? "s',$," : "',$,");
            text.append(isWrong && isEnumerated ? wrongStatus : rest).append(");\n");
            members += (members.empty() ? "#" : ",#") + std::to_string(id);
        }
        const std::uint64_t set = begin("IFCPROPERTYSET");
        text += '\'' + guid(id) + "',$,'Pset_WallCommon',$,(" + members + "));\n";
        begin("IFCRELDEFINESBYPROPERTIES");
        text += '\'' + guid(id) + "',$,$,$,(#" + std::to_string(object) + "),#" + std::to_string(set) + ");\n";
    }
    return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

const std::string& structureText(bool isWrong) {
    static const std::string right = structure(false), wrong = structure(true);
    return isWrong ? wrong : right;
}

void open(benchmark::State& state) {
    const std::string& text = structureText(false);
    for ([[maybe_unused]] auto round : state) {
        const bench::CpuTimer timer;
        const auto model = Model::fromText(text, "bench");
        state.SetIterationTime(timer.seconds());
        if (!model) return state.SkipWithError(model.error().message.c_str());
    }
}

// Each round has a model of its own, none of whose instances has been touched; opening it is not counted.
template <class Check>
void eachModel(benchmark::State& state, bool isWrong, Check check) {
    Configuration configuration;
    configuration.shippedResources = VELKOR_RESOURCE_DIR;
    const PlatformSetup setup(configuration, [](const std::string& line) { std::cerr << line << '\n'; });
    const SetLibrary library(definitionViews(setup));
    for ([[maybe_unused]] auto round : state) {
        auto model = Model::fromText(structureText(isWrong), "bench");
        if (!model) return state.SkipWithError(model.error().message.c_str());
        const bench::CpuTimer timer;
        const bool isRight = check(**model, library);
        state.SetIterationTime(timer.seconds());
        if (!isRight) return state.SkipWithError("the model was not checked as expected");
    }
    state.SetItemsProcessed(state.iterations() * wallCount * std::ssize(properties));
}

void rightSets(benchmark::State& state) {
    eachModel(state, false, [](const Model& model, const SetLibrary& library) {
        const PropertySetCheck check = checkPropertySets(model, library, {});
        return check.total == 0 && check.checkedProperties == wallCount * std::size(properties);
    });
}

void wrongSets(benchmark::State& state) {
    eachModel(state, true, [](const Model& model, const SetLibrary& library) {
        return checkPropertySets(model, library, {}).total == 3 * wallCount;
    });
}

void identifiers(benchmark::State& state) {
    eachModel(state, false, [](const Model& model, const SetLibrary&) {
        const guid::GuidCheck check = guid::checkGuids(model, {});
        return check.result.total == 0 && check.count == 3 * wallCount;
    });
}

} // namespace

BENCHMARK(open)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(rightSets)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(wrongSets)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(identifiers)->UseManualTime()->Unit(benchmark::kMillisecond);
