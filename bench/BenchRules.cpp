// What judging all rules costs beside what structure and dictionary take, how it grows, and what memory it needs beyond
// the open model. The model is made up: a sound building of IFC2X3, elements with swept and faceted shapes, properties,
// and a place in a storey.

#include "CpuTime.h"
#include "velkor/check/ModelCheck.h"

#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <malloc.h>
#include <map>
#include <new>
#include <string>
#include <string_view>

using namespace velkor;
using velkor::sdai::Model;

namespace {

std::atomic<std::size_t> heldBytes = 0, mostHeldBytes = 0;

void* allocated(std::size_t size) {
    void* memory = std::malloc(size);
    if (memory == nullptr) throw std::bad_alloc();
    const std::size_t held = heldBytes += malloc_usable_size(memory);
    for (std::size_t most = mostHeldBytes; held > most && !mostHeldBytes.compare_exchange_weak(most, held);) continue;
    return memory;
}

void released(void* memory) noexcept {
    heldBytes -= malloc_usable_size(memory);
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size) {
    return allocated(size);
}
void* operator new[](std::size_t size) {
    return allocated(size);
}
void operator delete(void* memory) noexcept {
    released(memory);
}
void operator delete[](void* memory) noexcept {
    released(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    released(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    released(memory);
}

namespace {

// Strings that are added to each other raise false warnings of g++ 12.
std::string together(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) text += part;
    return text;
}

std::string guid(std::int64_t number) {
    std::string text = std::to_string(number);
    return std::string(22 - text.size(), '0').append(text);
}

class Building {
public:
    explicit Building(std::size_t bytes) {
        _text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
                "FILE_SCHEMA(('IFC2X3'));\nENDSEC;\nDATA;\n";
        const std::string person = add("IFCPERSON", "$,'Doe',$,$,$,$,$,$");
        const std::string organization = add("IFCORGANIZATION", "$,'Office',$,$,$");
        const std::string both = add("IFCPERSONANDORGANIZATION", together({person, ",", organization, ",$"}));
        const std::string application = add("IFCAPPLICATION", together({organization, ",'1','Program','P'"}));
        _history = add("IFCOWNERHISTORY", together({both, ",", application, ",$,.ADDED.,$,$,$,0"}));
        const std::string origin = add("IFCCARTESIANPOINT", "(0.,0.,0.)");
        _axes = add("IFCAXIS2PLACEMENT3D", together({origin, ",$,$"}));
        _up = add("IFCDIRECTION", "(0.,0.,1.)");
        _context = add("IFCGEOMETRICREPRESENTATIONCONTEXT", together({"$,'Model',3,1.E-05,", _axes, ",$"}));
        const std::string metre = add("IFCSIUNIT", "*,.LENGTHUNIT.,$,.METRE.");
        const std::string units = add("IFCUNITASSIGNMENT", together({"(", metre, ")"}));
        const std::string project = addRoot("IFCPROJECT", together({"'P',$,$,$,$,(", _context, "),", units}));
        const std::string site = addRoot("IFCBUILDINGSTOREY", "'S',$,$,$,$,$,.ELEMENT.,0.");
        _storey = site;
        addRoot("IFCRELAGGREGATES", together({"$,$,", project, ",(", site, ")"}));
        while (_text.size() < bytes) addElement();
        _text += "ENDSEC;\nEND-ISO-10303-21;\n";
    }

    const std::string& text() const { return _text; }

private:
    std::string add(const char* keyword, const std::string& parameters) {
        std::string name = together({"#", std::to_string(++_id)});
        _text.append(name).append("=").append(keyword).append("(").append(parameters).append(");\n");
        return name;
    }
    // The GlobalId is the instance's own.
    std::string addRoot(const char* keyword, const std::string& parameters) {
        return add(keyword, together({"'", guid(_id + 1), "',", _history, ",", parameters}));
    }

    std::string point(double x, double y) {
        return add("IFCCARTESIANPOINT", together({"(", std::to_string(x), ",", std::to_string(y), ")"}));
    }
    std::string point(double x, double y, double z) {
        const std::string numbers = together({std::to_string(x), ",", std::to_string(y), ",", std::to_string(z)});
        return add("IFCCARTESIANPOINT", together({"(", numbers, ")"}));
    }

    std::string sweptShape(double x) {
        const std::string first = point(x, 0.0);
        const std::string others = point(x + 4, 0.0) + ',' + point(x + 4, 0.3) + ',' + point(x, 0.3);
        const std::string curve = add("IFCPOLYLINE", together({"(", first, ",", others, ",", first, ")"}));
        const std::string profile = add("IFCARBITRARYCLOSEDPROFILEDEF", together({".AREA.,$,", curve}));
        const std::string solid = add("IFCEXTRUDEDAREASOLID", together({profile, ",", _axes, ",", _up, ",2.5"}));
        return add("IFCSHAPEREPRESENTATION", together({_context, ",'Body','SweptSolid',(", solid, ")"}));
    }
    std::string facetedShape(double x) {
        std::string corners[8];
        for (unsigned i = 0; i < 8; ++i) {
            corners[i] = point(x + (i & 1U ? 1.0 : 0.0), i & 2U ? 1.0 : 0.0, i & 4U ? 1.0 : 0.0);
        }
        constexpr unsigned sides[6][4]{{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4},
                                       {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}};
        std::string faces;
        for (const auto& side : sides) {
            std::string loop;
            for (const unsigned corner : side) loop.append(loop.empty() ? "" : ",").append(corners[corner]);
            loop = add("IFCPOLYLOOP", together({"(", loop, ")"}));
            const std::string bound = add("IFCFACEOUTERBOUND", together({loop, ",.T."}));
            faces.append(faces.empty() ? "" : ",").append(add("IFCFACE", together({"(", bound, ")"})));
        }
        const std::string shell = add("IFCCLOSEDSHELL", together({"(", faces, ")"}));
        const std::string brep = add("IFCFACETEDBREP", shell);
        return add("IFCSHAPEREPRESENTATION", together({_context, ",'Body','Brep',(", brep, ")"}));
    }
    void addElement() {
        const double x = static_cast<double>(_id % 1000);
        const std::string placement = add("IFCLOCALPLACEMENT", together({"$,", _axes}));
        const std::string shapes = sweptShape(x) + ',' + facetedShape(x);
        const std::string shape = add("IFCPRODUCTDEFINITIONSHAPE", together({"$,$,(", shapes, ")"}));
        const std::string element =
            addRoot("IFCBUILDINGELEMENTPROXY", together({"'Element',$,$,", placement, ",", shape, ",$,$"}));
        std::string members;
        for (const char* name : {"Reference", "FireRating", "IsExternal", "Status"}) {
            members.append(members.empty() ? "" : ",")
                .append(add("IFCPROPERTYSINGLEVALUE", together({"'", name, "',$,IFCLABEL('a value'),$"})));
        }
        const std::string set = addRoot("IFCPROPERTYSET", together({"'Pset_Element',$,(", members, ")"}));
        addRoot("IFCRELDEFINESBYPROPERTIES", together({"$,$,(", element, "),", set}));
        addRoot("IFCRELCONTAINEDINSPATIALSTRUCTURE", together({"$,$,(", element, "),", _storey}));
    }

    std::string _text;
    std::int64_t _id = 0;
    std::string _history, _axes, _up, _context, _storey;
};

const std::string& building(std::int64_t megabytes) {
    static std::map<std::int64_t, Building> buildings;
    return buildings.try_emplace(megabytes, static_cast<std::size_t>(megabytes) * 1'000'000).first->second.text();
}

/// The processor time of a check of the model of state.range(0) MB, without that of opening it, and the most memory
/// that it held beyond the open model, to the size of the file.
template <class Check>
void checkBuilding(benchmark::State& state, Check check) {
    const std::string& text = building(state.range(0));
    for (auto _ : state) {
        const auto model = Model::fromText(text, "bench");
        if (!model) return state.SkipWithError(model.error().message.c_str());
        const std::size_t before = heldBytes;
        mostHeldBytes = before;
        const bench::CpuTimer timer;
        if (!check(**model)) return state.SkipWithError("the model was not found sound");
        state.SetIterationTime(timer.seconds());
        state.counters["memoryPerByte"] =
            static_cast<double>(mostHeldBytes - before) / static_cast<double>(text.size());
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
