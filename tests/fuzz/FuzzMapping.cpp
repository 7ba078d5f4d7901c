// The input as a document of one of the mapping components: the first byte says which, the rest is the document.
// What a document says must be answered, by the rules of its kind.

#include "files/QORISetupDataFinder.h"
#include "knowledge/KnowledgeObjects.h"
#include "knowledge/QORIExchangeAECServices.h"
#include "knowledge/QORIExchangeIFCCustomMappingServices.h"
#include "knowledge/QORIExchangeIFCMappingServices.h"
#include "objectmodeler/ClassDictionary.h"
#include "QORIFCDXXMLServices.h"
#include "text/QORToken.h"
#include "xml/QORIDOMDocument.h"
#include "xml/QORIDOMElement.h"
#include "xml/QORIDOMNodeList.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t longestInput = 1 << 13;
constexpr int release2x3 = 3, release4 = 4;

void require(bool condition, int line = __builtin_LINE()) {
    if (condition) return;
    std::fprintf(stderr, "line %d does not hold\n", line);
    std::abort();
}

/// One file, in memory where the system allows, that all components take for theirs.
class Document {
public:
    Document() {
        std::filesystem::create_directories(_folder);
        QORListValQORUnicodeString paths;
        paths.Append(path());
        const auto data = QORInterface_var<velkor::files::SetupData>::adopt(new velkor::files::SetupData);
        for (const char* key :
             {"IFCDataExchangeResources|IFCDataExchange", "QORAECDataExchangeResources|IFCCustomMapping",
              "QORAECDataExchangeResources|AECDataExchange"})
            data->set(key, paths);
        velkor::files::setSetupDataFinder(data);
    }
    ~Document() { std::filesystem::remove_all(_folder); }
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    QORUnicodeString path() const { return (_folder / "document.xml").c_str(); }
    void write(std::string_view text) const {
        std::ofstream(path().ConvertToChar(), std::ios::binary)
            .write(text.data(), static_cast<std::streamsize>(text.size()));
    }

private:
    static std::filesystem::path place() {
        return std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
    }
    std::filesystem::path _folder = place() / ("velkor-fuzz-mapping-" + std::to_string(getpid()));
};

template <class Interface>
QORInterface_var<Interface> component(const char* name) {
    const QORInterface_var<Interface> made = velkor::objectmodeler::createComponent(name);
    require(!made.IsNull());
    return made;
}

QORUnicodeString attribute(const QORIDOMElement_var& element, const char* name) {
    QORUnicodeString value;
    require(element->GetAttribute(name, value) == S_OK);
    return value;
}

template <class Use>
void forEach(const QORIDOMNodeList_var& nodes, Use use) {
    unsigned int length = 0;
    require(nodes->GetLength(length) == S_OK);
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var node;
        require(nodes->Item(i, node) == S_OK);
        use(QORIDOMElement_var(node));
    }
}
template <class Use>
void forEachElement(const QORIDOMDocument_var& document, const char* tag, Use use) {
    QORIDOMNodeList_var nodes;
    require(document->GetElementsByTagName(tag, nodes) == S_OK);
    forEach(nodes, use);
}

void checkVersions(const QORIDOMDocument_var& document, std::string_view text) {
    static const auto services = component<QORIExchangeIFCMappingServices>("ExchangeIFCMappingServices");
    services->ResetVersionMappingTable();
    require(SUCCEEDED(services->LoadVersionMappingDocument()) == !document.IsNull());
    if (document.IsNull()) return;
    const auto ask = [](const QORUnicodeString& entity, const QORUnicodeString& property) {
        QORUnicodeString toEntity("was"), toProperty("was");
        const HRESULT result =
            services->GetVersionMapping(release2x3, release4, entity, property, toEntity, toProperty);
        require(result == E_FAIL || (result >= IFC_MAPPING_MAPPED && result <= IFC_MAPPING_INTRODUCED_PROPERTY));
        require(result == IFC_MAPPING_MAPPED || (toEntity == "was" && toProperty == "was"));
        return result;
    };
    QORListValQORUnicodeString deprecated, entities, properties, values;
    const HRESULT found = services->GetDeprecatedEntities(release2x3, release4, deprecated);
    const HRESULT same = services->GetIntroducedPropertyValues(release2x3, release4, entities, properties, values);
    require(entities.Size() == properties.Size() && entities.Size() == values.Size());
    // A processing instruction can bear the name of an element and ends a walk early.
    if (text.find("<?") != std::string_view::npos) return;
    require(found == same && (found == S_OK || found == S_FALSE));
    const auto isKnown = [](HRESULT result) { return result != E_FAIL && result != IFC_MAPPING_NONE; };
    for (const QORUnicodeString& entity : deprecated) require(isKnown(ask(entity, "")));
    for (int i = 1; i <= entities.Size(); ++i)
        require(entities[i].IsEmpty() || isKnown(ask(entities[i], properties[i])));
    forEachElement(document, "Mapping", [&](const QORIDOMElement_var& element) {
        QORUnicodeString entity = attribute(element, "fromEntity");
        ask(entity, attribute(element, "fromProperty"));
        require(services->GetMappedEntityName(release2x3, release4, entity) == found);
    });
}

void checkCustom(const QORIDOMDocument_var& document) {
    static const auto services = component<QORIExchangeIFCCustomMappingServices>("ExchangeIFCCustomMappingServices");
    require(SUCCEEDED(services->LoadCustomMapping()) == !document.IsNull());
    if (document.IsNull()) return;
    using Names = std::pair<QORUnicodeString, QORUnicodeString>;
    struct Question {
        Names names;
        QORUnicodeString scope;
    };
    std::map<QORUnicodeString, Names> answers;
    std::vector<Question> questions;
    const auto expect = [&](const Names& from, const Names& to, const QORUnicodeString& scope) {
        QORUnicodeString key = from.first + from.second + scope;
        key.ToUpper();
        answers[key] = to;
        questions.push_back({from, scope});
    };
    for (const char* section : {"IfcMapping/StandardMapping", "IfcMapping/CustomMapping"}) {
        QORIDOMNodeList_var nodes;
        require(QORIFCDXXMLServices::GetNodeList(document, section, nodes) == S_OK);
        forEach(nodes, [&](const QORIDOMElement_var& element) {
            const Names from(attribute(element, "fromEntity"), attribute(element, "fromProperty"));
            const Names to(attribute(element, "toEntity"), attribute(element, "toProperty"));
            QORToken scopes(attribute(element, "scope"));
            for (auto scope = scopes.GetNextToken(";"); !scope.IsEmpty(); scope = scopes.GetNextToken(";")) {
                expect(from, to, scope + "_Import");
                if (std::string_view(section).ends_with("CustomMapping")) expect(to, from, scope + "_Export");
            }
        });
    }
    for (const Question& question : questions) {
        QORUnicodeString key = question.names.first + question.names.second + question.scope, entity, property;
        key.ToUpper();
        require(services->GetCustomMapping(question.names.first, question.names.second, question.scope, entity,
                                           property) == IFC_MAPPING_MAPPED);
        require(answers[key] == Names(entity, property));
    }
    QORUnicodeString entity("was"), property("was");
    if (answers.contains("NO_IMPORT")) return;
    require(services->GetCustomMapping("", "", "no_Import", entity, property) == IFC_MAPPING_NONE && entity == "was");
}

void checkAec(const QORIDOMDocument_var& document) {
    static const auto services = component<QORIExchangeAECServices>("ExchangeAECServices");
    require(SUCCEEDED(services->LoadAECResource()) == !document.IsNull());
    if (document.IsNull()) return;
    forEachElement(document, "NeutralID", [&](const QORIDOMElement_var& element) {
        const QORUnicodeString name = attribute(element, "Name");
        const QORString id(name.ConvertToChar());
        QORUnicodeString first("was"), second("was"), value;
        const HRESULT result = services->GetPLMTypeFromNeutralID(id, first);
        require((result == S_OK || result == E_UNEXPECTED) && (result == S_OK || first == "was"));
        require(services->GetPLMTypeFromNeutralID(id, second) == result && first == second);
        require(services->GetPLMValuationFromNeutralID(id, second, value) == result);
        require(services->GetIFCTypeFromNeutralID(id, first) != S_FALSE);
        services->GetObjectTypeFromNeutralID(id, first);
    });
    forEachElement(document, "IFC", [&](const QORIDOMElement_var& element) {
        const QORUnicodeString name = attribute(element, "Name");
        for (const char* value : {"", "yes"}) {
            QORUnicodeString type, again;
            const HRESULT result = services->GetPLMTypeFromIFCType(name, value, type);
            require(result == S_OK || (FAILED(result) && type == "DEFAULT"));
            require(services->GetPLMTypeFromIFCType(name, value, again) == result && type == again);
            const QORBaseUnknown_var object = velkor::knowledge::makeExchangeObject(
                {"", "", std::string(name.utf8()), "", "", 0}, {{"kind", value}, {"other", "no"}});
            const HRESULT classified = services->GetNeutralIDFromIFCObject(object, type);
            require(classified == S_OK || (classified == E_UNEXPECTED && type == "DEFAULT"));
        }
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0 || size > longestInput) return 0;
    static const Document file;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    file.write(text);
    QORIDOMDocument_var document;
    if (QORIFCDXXMLServices::GetDOMDocument(file.path(), document) != S_OK) document = {};
    switch (data[0] % 3) {
    case 0:
        checkVersions(document, text);
        break;
    case 1:
        checkCustom(document);
        break;
    default:
        checkAec(document);
    }
    return 0;
}
