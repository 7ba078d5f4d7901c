// Definitions of property sets, as many and as large as those of the standard: reading all of them, and asking
// whether a class or a property belongs to a set, with few and with all of them read.

#include "QORIFCPSetQtoValidationService.h"
#include "velkor/files/QORSysRTVWalker.h"
#include "velkor/sdai/Model.h"

#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

constexpr int setCount = 612;
constexpr int propertyCount = 25;

std::string setName(std::int64_t set) {
    return "Pset_Bench" + std::to_string(set) + "Common";
}

/// A definition of about 10 KB: three classes, then properties with their types and texts in two languages.
std::string definition(int set) {
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<PropertySetDef>\n  <IfcVersion version=\"IFC4\"/>\n"
        "  <Name>" +
        setName(set) + "</Name>\n  <ApplicableClasses>\n";
    for (const char* name : {"IfcBeam", "IfcColumn", "IfcBuildingElement"})
        text += std::string("    <ClassName>") + name + "/KIND" + std::to_string(set) + "</ClassName>\n";
    text += "  </ApplicableClasses>\n  <PropertyDefs>\n";
    for (int property = 0; property < propertyCount; ++property) {
        const std::string number = std::to_string(property);
        text += "    <PropertyDef>\n      <Name>Property" + number +
                "</Name>\n      <PropertyType><TypePropertySingleValue><DataType type=\"IfcLabel\"/>"
                "</TypePropertySingleValue></PropertyType>\n      <NameAliases><NameAlias lang=\"en\">Property " +
                number + "</NameAlias><NameAlias lang=\"de\">Merkmal " + number +
                "</NameAlias></NameAliases>\n      <Definition>" + std::string(60, 'd') +
                "</Definition>\n    </PropertyDef>\n";
    }
    return text + "  </PropertyDefs>\n</PropertySetDef>\n";
}

/// A runtime view that holds the definitions and goes with the object.
class Definitions {
public:
    Definitions() {
        const auto place = _path / "resources" / "standard" / "IFCPsetQset";
        std::filesystem::create_directories(place);
        for (int set = 0; set < setCount; ++set) {
            const std::string text = definition(set);
            _bytes += static_cast<std::int64_t>(text.size());
            std::ofstream(place / (setName(set) + ".xml")) << text;
        }
        QORListValQORUnicodeString folders;
        folders.Append(_path.c_str());
        velkor::files::setRuntimeView(folders);
    }
    ~Definitions() { std::filesystem::remove_all(_path); }
    Definitions(const Definitions&) = delete;
    Definitions& operator=(const Definitions&) = delete;

    std::int64_t bytes() const { return _bytes; }

    /// A service that has read the first `count` sets; null when a set could not be read.
    static QORIFCPSetQtoValidationService* service(std::int64_t count) {
        // What the library does when it is unloaded.
        reinterpret_cast<int (*)(int)>(dlsym(RTLD_DEFAULT, "_ZN30QORIFCPSetQtoValidationService6OnExitEi"))(3);
        QORIFCPSetQtoValidationService* made = QORIFCPSetQtoValidationService::getInstance();
        for (std::int64_t set = 0; set < count; ++set) {
            if (made->Initialize(setName(set).c_str()) < 0) return nullptr;
        }
        return made;
    }

private:
    std::filesystem::path _path =
        std::filesystem::temp_directory_path() / ("velkor-bench-sets-" + std::to_string(getpid()));
    std::int64_t _bytes = 0;
};

const Definitions& definitions() {
    static const Definitions instance;
    return instance;
}

void readSets(benchmark::State& state) {
    const std::int64_t bytes = definitions().bytes();
    for (auto _ : state) {
        if (Definitions::service(setCount) == nullptr) return state.SkipWithError("a set was not read");
    }
    state.SetItemsProcessed(state.iterations() * setCount);
    state.SetBytesProcessed(state.iterations() * bytes);
}

/// A question about one set after the other, of the first range(1) of the range(0) read. The answer is yes.
template <typename Ask>
void ask(benchmark::State& state, Ask question) {
    definitions();
    QORIFCPSetQtoValidationService* service = Definitions::service(state.range(0));
    if (service == nullptr) return state.SkipWithError("a set was not read");
    std::vector<QORUnicodeString> sets;
    for (std::int64_t set = 0; set < state.range(1); ++set) sets.emplace_back(setName(set).c_str());
    std::size_t next = 0;
    for (auto _ : state) {
        if (!question(*service, sets[next++ % sets.size()])) return state.SkipWithError("a wrong answer");
    }
    state.SetItemsProcessed(state.iterations());
}

void isClassSupported(benchmark::State& state) {
    const QORUnicodeString name("IfcColumn");
    ask(state, [&](QORIFCPSetQtoValidationService& service, const QORUnicodeString& set) {
        DXSdaiAppInstance* instance = nullptr;
        return service.IsClassSupported(set, name, instance);
    });
}

/// The class is not named: the instance has to be asked for each one that is.
void isSubtypeSupported(benchmark::State& state) {
    const auto model = velkor::sdai::Model::fromText(
        "ISO-10303-21;HEADER;FILE_DESCRIPTION((''),'2;1');FILE_NAME('','',(''),(''),'','','');FILE_SCHEMA(('IFC4'));"
        "ENDSEC;DATA;#1=IFCWALLSTANDARDCASE('0',$,$,$,$,$,$,$,$);ENDSEC;END-ISO-10303-21;",
        "wall.ifc");
    if (!model) return state.SkipWithError(model.error().message.c_str());
    DXSdaiAppInstance* wall = (*model)->instance(1);
    const QORUnicodeString name("IfcWallStandardCase");
    ask(state, [&](QORIFCPSetQtoValidationService& service, const QORUnicodeString& set) {
        return service.IsClassSupported(set, name, wall);
    });
}

void isPropertySupported(benchmark::State& state) {
    const QORUnicodeString name("Property17");
    ask(state, [&](QORIFCPSetQtoValidationService& service, const QORUnicodeString& set) {
        return service.IsPropertySupported(set, name);
    });
}

} // namespace

BENCHMARK(readSets)->Unit(benchmark::kMillisecond);
// Sets read, and sets asked about: the first must not matter, the second does as soon as they outgrow a cache.
#define VELKOR_QUESTION(name) BENCHMARK(name)->Args({10, 10})->Args({setCount, 10})->Args({setCount, setCount})
VELKOR_QUESTION(isClassSupported);
VELKOR_QUESTION(isSubtypeSupported);
VELKOR_QUESTION(isPropertySupported);
