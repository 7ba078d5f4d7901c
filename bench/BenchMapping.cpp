// The mapping components: an answer once they have read their documents, the first answer with documents of
// 10 MB beside parsing these alone, and the classification of a large model.

#include "QORIFCDXXMLServices.h"
#include "velkor/exchangeservices/QORIExchangeAECServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCCustomMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCPLMAttributesMappingServices.h"
#include "velkor/files/QORISetupDataFinder.h"
#include "velkor/knowledge/KnowledgeObjects.h"
#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/xml/QORIDOMDocument.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t documentSize = 10'000'000;
constexpr int smallCount = 500;
constexpr int release2x3 = 3, release4 = 4;

std::string numbered(const char* text, int number) {
    return std::string(text) += std::to_string(number);
}

/// Entry number `number` of a document.
using Entry = std::string (*)(int number);

std::string versionEntry(int number) {
    return "<Mapping fromEntity=\"" + numbered("IfcFrom", number) + "\" fromProperty=\"Name\" toEntity=\"" +
           numbered("IfcTo", number) + "\" toProperty=\"Title\"/>\n";
}
std::string customEntry(int number) {
    return "<CustomMapping fromEntity=\"" + numbered("IfcFrom", number) + "\" fromProperty=\"Name\" toEntity=\"" +
           numbered("IfcTo", number) + "\" toProperty=\"Title\" scope=\"Wall;Slab\"/>\n";
}
// Four entries of a type, of which the conditions of the first three do not hold.
std::string aecEntry(int number) {
    const std::string condition =
        number % 4 == 3 ? "" : "<Condition Attribute=\"Kind\" Value=\"" + numbered("Kind", number) + "\"/>";
    return "<NeutralID Name=\"" + numbered("Neutral", number) + "\">\n<IFC Name=\"" + numbered("IfcType", number / 4) +
           "\" Priority=\"" + std::to_string(10 - number % 4) + "\">" + condition + "</IFC>\n<NORVEL Name=\"" +
           numbered("PLMType", number) + "\"/>\n</NeutralID>\n";
}
std::string plmEntry(int number) {
    return "<fromAttributes plmProp=\"" + numbered("Attribute", number) +
           "\" propSetName=\"Pset_Bench\" ifcProp=\"Title\" propExpose=\"Both\"/>\n";
}

struct Kind {
    const char* name;
    const char* key;
    const char* start;
    Entry entry;
    const char* end;
};
constexpr Kind version{"version", "IFCDataExchangeResources|IFCDataExchange", "<V><Version from=\"2x3\" to=\"4\">\n",
                       versionEntry, "</Version></V>"};
constexpr Kind custom{"custom", "QORAECDataExchangeResources|IFCCustomMapping", "<IfcMapping>\n", customEntry,
                      "</IfcMapping>"};
constexpr Kind aec{"aec", "QORAECDataExchangeResources|AECDataExchange", "<AEC>\n", aecEntry, "</AEC>"};
constexpr Kind plm{"plm", "QORAECDataExchangeResources|IFCPLMAttributesMapping",
                   "<IfcPLMMappingAttr><IfcPLMMapping Name=\"Wall\">\n", plmEntry,
                   "</IfcPLMMapping></IfcPLMMappingAttr>"};

/// The documents, in a folder that goes with the program.
class Documents {
public:
    Documents() { std::filesystem::create_directories(_folder); }
    ~Documents() { std::filesystem::remove_all(_folder); }
    Documents(const Documents&) = delete;
    Documents& operator=(const Documents&) = delete;

    /// Makes a document of at least `bytes` bytes, or of the small number of entries for 0, the one of its kind.
    QORUnicodeString use(const Kind& kind, std::size_t bytes) const {
        const std::string path = _folder / (kind.name + std::to_string(bytes) + ".xml");
        if (!std::filesystem::exists(path)) {
            std::string text = kind.start;
            for (int number = 0; bytes == 0 ? number < smallCount : text.size() < bytes; ++number)
                text += kind.entry(number);
            std::ofstream(path) << text << kind.end;
        }
        QORListValQORUnicodeString paths;
        paths.Append(path.c_str());
        _setupData->set(kind.key, paths);
        velkor::files::setSetupDataFinder(_setupData);
        return path.c_str();
    }

private:
    std::filesystem::path _folder =
        std::filesystem::temp_directory_path() / ("velkor-bench-mapping-" + std::to_string(getpid()));
    QORInterface_var<velkor::files::SetupData> _setupData =
        QORInterface_var<velkor::files::SetupData>::adopt(new velkor::files::SetupData);
};

const Documents& documents() {
    static const Documents instance;
    return instance;
}

template <class Interface>
QORInterface_var<Interface> component(const char* name) {
    return velkor::objectmodeler::createComponent(name);
}
auto versionServices() {
    return component<QORIExchangeIFCMappingServices>("ExchangeIFCMappingServices");
}
auto customServices() {
    return component<QORIExchangeIFCCustomMappingServices>("ExchangeIFCCustomMappingServices");
}
auto aecServices() {
    return component<QORIExchangeAECServices>("ExchangeAECServices");
}

/// Parsing the large document and no more: what the first use of it is measured against.
void parse(benchmark::State& state, const Kind& kind) {
    const QORUnicodeString path = documents().use(kind, documentSize);
    for (auto _ : state) {
        QORIDOMDocument_var document;
        if (QORIFCDXXMLServices::GetDOMDocument(path, document) != S_OK) return state.SkipWithError("not parsed");
        state.PauseTiming();
        document = {};
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(documentSize));
}

/// Reading the large document in place of a small one, until the first answer.
template <class Load, class Ask>
void firstUse(benchmark::State& state, const Kind& kind, Load load, Ask ask) {
    for (auto _ : state) {
        state.PauseTiming();
        documents().use(kind, 0);
        if (!load()) return state.SkipWithError("not read");
        documents().use(kind, documentSize);
        state.ResumeTiming();
        if (!load() || !ask()) return state.SkipWithError("a wrong answer");
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(documentSize));
}
void firstVersion(benchmark::State& state) {
    const auto services = versionServices();
    QORUnicodeString entity, property;
    const auto load = [&] {
        services->ResetVersionMappingTable();
        return services->LoadVersionMappingDocument() == S_OK;
    };
    firstUse(state, version, load, [&] {
        return services->GetVersionMapping(release2x3, release4, "IfcFrom1", "Name", entity, property) ==
               IFC_MAPPING_MAPPED;
    });
}
void firstCustom(benchmark::State& state) {
    const auto services = customServices();
    QORUnicodeString entity, property;
    const auto load = [&] { return services->LoadCustomMapping() == S_OK; };
    firstUse(state, custom, load, [&] {
        return services->GetCustomMapping("IfcFrom1", "Name", "Slab_Import", entity, property) == IFC_MAPPING_MAPPED;
    });
}
void firstAec(benchmark::State& state) {
    const auto services = aecServices();
    QORUnicodeString type;
    const auto load = [&] { return services->LoadAECResource() == S_OK; };
    firstUse(state, aec, load, [&] { return services->GetPLMTypeFromIFCType("IfcType1", "", type) == S_OK; });
}

/// Asks about one entry of the small document after the other.
template <class Ask>
void ask(benchmark::State& state, const char* prefix, int count, Ask question) {
    std::vector<QORUnicodeString> names;
    for (int number = 0; number < count; ++number) names.emplace_back(numbered(prefix, number));
    std::size_t next = 0;
    for (auto _ : state) {
        if (!question(names[next++ % names.size()])) return state.SkipWithError("a wrong answer");
    }
    state.SetItemsProcessed(state.iterations());
}
void askVersion(benchmark::State& state) {
    documents().use(version, 0);
    const auto services = versionServices();
    services->LoadVersionMappingDocument();
    services->ResetVersionMappingTable();
    const QORUnicodeString name("Name");
    QORUnicodeString entity, property;
    ask(state, "IfcFrom", smallCount, [&](const QORUnicodeString& from) {
        return services->GetVersionMapping(release2x3, release4, from, name, entity, property) == IFC_MAPPING_MAPPED;
    });
}
void askCustom(benchmark::State& state) {
    documents().use(custom, 0);
    const auto services = customServices();
    services->LoadCustomMapping();
    const QORUnicodeString name("Name"), scope("Wall_Import");
    QORUnicodeString entity, property;
    ask(state, "IfcFrom", smallCount, [&](const QORUnicodeString& from) {
        return services->GetCustomMapping(from, name, scope, entity, property) == IFC_MAPPING_MAPPED;
    });
}
void askPlmAttributes(benchmark::State& state) {
    documents().use(plm, 0);
    const auto services =
        component<QORIExchangeIFCPLMAttributesMappingServices>("ExchangeIFCPLMAttributesMappingServices");
    const QORUnicodeString type("Wall");
    QORUnicodeString set, property;
    ask(state, "Attribute", smallCount, [&](const QORUnicodeString& attribute) {
        return services->GetIFCPropertyFromPLMAttribute(type, attribute, set, property) == S_OK;
    });
}
void askAecType(benchmark::State& state) {
    documents().use(aec, 0);
    const auto services = aecServices();
    services->LoadAECResource();
    const QORUnicodeString value("other");
    QORUnicodeString type;
    ask(state, "IfcType", smallCount / 4,
        [&](const QORUnicodeString& ifcType) { return services->GetPLMTypeFromIFCType(ifcType, value, type) == S_OK; });
}
void askAecNeutral(benchmark::State& state) {
    documents().use(aec, 0);
    const auto services = aecServices();
    services->LoadAECResource();
    std::vector<QORString> ids;
    for (int number = 0; number < smallCount; ++number) ids.emplace_back(numbered("Neutral", number).c_str());
    std::size_t next = 0;
    QORUnicodeString type;
    for (auto _ : state) {
        if (services->GetPLMTypeFromNeutralID(ids[next++ % ids.size()], type) != S_OK)
            return state.SkipWithError("a wrong answer");
    }
    state.SetItemsProcessed(state.iterations());
}

/// 100,000 objects with ten properties each.
void classify(benchmark::State& state) {
    constexpr int objectCount = 100'000;
    documents().use(aec, 0);
    const auto services = aecServices();
    services->LoadAECResource();
    std::vector<QORBaseUnknown_var> objects;
    for (int number = 0; number < objectCount; ++number) {
        velkor::knowledge::Attributes properties;
        for (int property = 0; property < 9; ++property) properties.emplace_back(numbered("P", property), "value");
        properties.emplace_back("Kind", numbered("Kind", number % smallCount));
        objects.push_back(velkor::knowledge::makeExchangeObject(
            {"id", "name", numbered("IfcType", number % smallCount / 4), "", "model.ifc", number},
            std::move(properties)));
    }
    QORUnicodeString neutral;
    for (auto _ : state) {
        for (int number = 0; number < objectCount; ++number) {
            const HRESULT result =
                services->GetNeutralIDFromIFCObject(objects[static_cast<std::size_t>(number)], neutral);
            if (result != S_OK || neutral != numbered("Neutral", number % smallCount).c_str())
                return state.SkipWithError("a wrong answer");
        }
    }
    state.SetItemsProcessed(state.iterations() * objectCount);
}

} // namespace

BENCHMARK_CAPTURE(parse, version, version)->Unit(benchmark::kMillisecond);
BENCHMARK(firstVersion)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(parse, custom, custom)->Unit(benchmark::kMillisecond);
BENCHMARK(firstCustom)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(parse, aec, aec)->Unit(benchmark::kMillisecond);
BENCHMARK(firstAec)->Unit(benchmark::kMillisecond);
BENCHMARK(askVersion);
BENCHMARK(askCustom);
BENCHMARK(askPlmAttributes);
BENCHMARK(askAecType);
BENCHMARK(askAecNeutral);
BENCHMARK(classify)->Unit(benchmark::kMillisecond);
