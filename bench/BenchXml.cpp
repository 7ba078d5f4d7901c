// The XML services against libxml2 alone, over a mapping document of 10 MB.

#include "QORIFCDXXMLServices.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>
#include <string>
#include <unistd.h>

namespace {

constexpr std::size_t documentSize = 10'000'000;
constexpr const char* mappings = "IfcMapping/CustomMapping";

/// A file that goes with the program.
class MappingFile {
public:
    MappingFile()
        : _path(std::filesystem::temp_directory_path() / ("velkor-bench-" + std::to_string(getpid()) + ".xml")) {
        std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<IfcMapping>\r\n";
        for (int i = 0; text.size() < documentSize; ++i) {
            const std::string number = std::to_string(i);
            text += std::string("  <") + (i % 2 == 0 ? "Standard" : "Custom") + "Mapping fromEntity=\"IfcWall" +
                    number + "\" toEntity=\"IfcBuildingElementProxy\" fromProperty=\"Property" + number +
                    "\" toProperty=\"Reference\" scope=\"Wall;Slab;Door;Window\"/>\r\n";
        }
        std::ofstream(_path, std::ios::binary) << text << "</IfcMapping>\r\n";
    }
    ~MappingFile() { std::remove(_path.c_str()); }
    MappingFile(const MappingFile&) = delete;
    MappingFile& operator=(const MappingFile&) = delete;
    const std::string& path() const { return _path; }

private:
    std::string _path;
};

const std::string& mappingFile() {
    static const MappingFile file;
    return file.path();
}

void setBytes(benchmark::State& state) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(documentSize));
}

// The options that the services read with.
xmlDocPtr readAlone() {
    return xmlReadFile(mappingFile().c_str(), nullptr,
                       XML_PARSE_NOENT | XML_PARSE_DTDATTR | XML_PARSE_NONET | XML_PARSE_BIG_LINES);
}

void parseLibxml2(benchmark::State& state) {
    mappingFile();
    for (auto _ : state) xmlFreeDoc(readAlone());
    setBytes(state);
}
BENCHMARK(parseLibxml2)->Unit(benchmark::kMillisecond);

void parseServices(benchmark::State& state) {
    const QORUnicodeString path(mappingFile().c_str());
    for (auto _ : state) {
        QORIDOMDocument_var document;
        if (QORIFCDXXMLServices::GetDOMDocument(path, document) < 0) return state.SkipWithError("not read");
    }
    setBytes(state);
}
BENCHMARK(parseServices)->Unit(benchmark::kMillisecond);

void selectLibxml2(benchmark::State& state) {
    const xmlDocPtr document = readAlone();
    int found = 0;
    for (auto _ : state) {
        const xmlXPathContextPtr context = xmlXPathNewContext(document);
        xmlXPathRegisterNs(context, BAD_CAST "gml", BAD_CAST "http://www.opengis.net/gml/3.2");
        context->node = reinterpret_cast<xmlNodePtr>(document);
        const xmlXPathObjectPtr result = xmlXPathEval(BAD_CAST mappings, context);
        found = result->nodesetval->nodeNr;
        xmlXPathFreeObject(result);
        xmlXPathFreeContext(context);
    }
    state.counters["nodes"] = found;
    xmlFreeDoc(document);
}
BENCHMARK(selectLibxml2)->Unit(benchmark::kMillisecond);

void selectServices(benchmark::State& state) {
    QORIDOMDocument_var document;
    QORIFCDXXMLServices::GetDOMDocument(QORUnicodeString(mappingFile().c_str()), document);
    unsigned int found = 0;
    for (auto _ : state) {
        QORIDOMNodeList_var nodes;
        if (QORIFCDXXMLServices::GetNodeList(document, mappings, nodes) < 0) return state.SkipWithError("not read");
        nodes->GetLength(found);
    }
    state.counters["nodes"] = found;
}
BENCHMARK(selectServices)->Unit(benchmark::kMillisecond);

// What a mapping component does with each of them.
void readAttributes(benchmark::State& state) {
    QORIDOMDocument_var document;
    QORIDOMNodeList_var nodes;
    QORIFCDXXMLServices::GetDOMDocument(QORUnicodeString(mappingFile().c_str()), document);
    QORIFCDXXMLServices::GetNodeList(document, mappings, nodes);
    unsigned int length = 0;
    nodes->GetLength(length);
    for (auto _ : state) {
        for (unsigned int i = 0; i < length; ++i) {
            QORIDOMNode_var node;
            nodes->Item(i, node);
            for (const char* name : {"fromEntity", "toEntity", "fromProperty", "toProperty", "scope"}) {
                QORUnicodeString value;
                QORIFCDXXMLServices::GetAttributeValue(node, name, value);
                benchmark::DoNotOptimize(value);
            }
        }
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * length * 5);
}
BENCHMARK(readAttributes)->Unit(benchmark::kMillisecond);

} // namespace
