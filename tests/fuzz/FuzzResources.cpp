// The input as a resource file: the first byte says of which service, the rest is the file. What a file says must
// be answered, and what is not answered must leave the caller's texts alone.

#include "FuzzSupport.h"
#include "IFCAttributeList.h"
#include "PrivateOperation.h"
#include "QORIFCDXXMLServices.h"
#include "QORIFCPSetQtoValidationService.h"
#include "velkor/exchangeservices/QORIExchangeAECServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCCustomMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/files/QORISetupDataFinder.h"
#include "velkor/files/QORSysRTVWalker.h"
#include "velkor/knowledge/KnowledgeObjects.h"
#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"
#include "velkor/text/QORToken.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

using namespace velkor::test;

constexpr const char* set = "Pset_Fuzz";
// Nested levels make the entries of a file count as often as there are levels around them.
constexpr std::size_t longestInput = 1 << 13;
constexpr int release2x3 = 3, release4 = 4;

/// One file, in memory where the system allows, that all services take for theirs.
class File {
public:
    File() {
        const auto definitions = _folder / "resources" / "standard" / "IFCPsetQset";
        std::filesystem::create_directories(definitions);
        std::filesystem::create_directory_symlink(definitions, _folder / "IFCAttributes");
        _path = definitions / (std::string(set) + ".xml");
        QORListValQORUnicodeString paths, folders;
        paths.Append(_path.c_str());
        folders.Append(_folder.c_str());
        const auto data = QORInterface_var<velkor::files::SetupData>::adopt(new velkor::files::SetupData);
        for (const char* key :
             {"IFCDataExchangeResources|IFCDataExchange", "QORAECDataExchangeResources|IFCCustomMapping",
              "QORAECDataExchangeResources|AECDataExchange"})
            data->set(key, paths);
        velkor::files::setSetupDataFinder(data);
        velkor::files::setRuntimeView(folders);
        velkor::settings::setVariable("QORCollectionStandard", _folder.c_str());
        velkor::settings::removeVariable("QORDefaultCollectionStandard");
    }
    ~File() { std::filesystem::remove_all(_folder); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    void write(std::string_view text) const {
        std::ofstream(_path, std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
    }

private:
    static std::filesystem::path place() {
        return std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
    }
    std::filesystem::path _folder = place() / ("velkor-fuzz-" + std::to_string(getpid()));
    std::filesystem::path _path;
};

template <class Interface>
QORInterface_var<Interface> component(const char* name) {
    const QORInterface_var<Interface> made = velkor::objectmodeler::createComponent(name);
    require(!made.IsNull());
    return made;
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
        return result != E_FAIL && result != IFC_MAPPING_NONE;
    };
    QORListValQORUnicodeString deprecated, entities, properties, values;
    const HRESULT found = services->GetDeprecatedEntities(release2x3, release4, deprecated);
    const HRESULT same = services->GetIntroducedPropertyValues(release2x3, release4, entities, properties, values);
    require(entities.Size() == properties.Size() && entities.Size() == values.Size());
    // A processing instruction can bear the name of an element and ends a walk early.
    if (text.find("<?") != std::string_view::npos) return;
    require(found == same && (found == S_OK || found == S_FALSE));
    for (const QORUnicodeString& entity : deprecated) require(ask(entity, ""));
    for (int i = 1; i <= entities.Size(); ++i) require(entities[i].IsEmpty() || ask(entities[i], properties[i]));
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
    const auto isMapped = [](const QORUnicodeString& entity, const QORUnicodeString& property,
                             const QORUnicodeString& scope) {
        QORUnicodeString toEntity("was"), toProperty("was");
        const HRESULT result = services->GetCustomMapping(entity, property, scope, toEntity, toProperty);
        require(result == IFC_MAPPING_MAPPED || (result == IFC_MAPPING_NONE && toEntity == "was"));
        return result == IFC_MAPPING_MAPPED;
    };
    for (const std::string_view section : {"IfcMapping/StandardMapping", "IfcMapping/CustomMapping"}) {
        QORIDOMNodeList_var nodes;
        require(QORIFCDXXMLServices::GetNodeList(document, section.data(), nodes) == S_OK);
        forEach(nodes, [&](const QORIDOMElement_var& element) {
            const auto is = [&](const char* side, const QORUnicodeString& scope) {
                const std::string entity = side + std::string("Entity"), property = side + std::string("Property");
                return isMapped(attribute(element, entity.c_str()), attribute(element, property.c_str()), scope);
            };
            QORToken scopes(attribute(element, "scope"));
            for (auto scope = scopes.GetNextToken(";"); !scope.IsEmpty(); scope = scopes.GetNextToken(";")) {
                require(is("from", scope + "_Import") && !is("from", scope));
                require(is("to", scope + "_Export") || section.ends_with("StandardMapping"));
            }
        });
    }
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
            QORUnicodeString type;
            const HRESULT result = services->GetPLMTypeFromIFCType(name, value, type);
            require(result == S_OK || (FAILED(result) && type == "DEFAULT"));
            const QORBaseUnknown_var object = velkor::knowledge::makeExchangeObject(
                {"", "", std::string(name.utf8()), "", "", 0}, {{"kind", value}, {"other", "no"}});
            const HRESULT classified = services->GetNeutralIDFromIFCObject(object, type);
            require(classified == S_OK || (classified == E_UNEXPECTED && type == "DEFAULT"));
        }
    });
}

QORUnicodeString textOf(const QORIDOMElement_var& element) {
    QORIDOMNode_var child;
    QORUnicodeString text;
    require(element->GetFirstChild(child) == S_OK);
    if (!child.IsNull()) child->GetNodeValue(text);
    return text;
}

void checkCatalogues(const QORIDOMDocument_var& document, std::string_view text) {
    // Both services read anew, by what the library does when it is unloaded.
    for (const char* callback : {"_ZN16IFCAttributeList10DeleteInstEi", "_ZN30QORIFCPSetQtoValidationService6OnExitEi"})
        privateOperation<int(int)>(callback)(1);
    QORIFCPSetQtoValidationService& service = *QORIFCPSetQtoValidationService::getInstance();
    require(SUCCEEDED(service.Initialize(set)) == !document.IsNull());
    require(FAILED(service.Initialize(QORUnicodeString(text.substr(0, 20)))));
    if (document.IsNull()) return;
    DXSdaiAppInstance* none = nullptr;
    forEachElement(document, "ClassName", [&](const QORIDOMElement_var& element) {
        QORUnicodeString name = textOf(element);
        if (const int end = name.SearchSubString("/"); end > 0) name = name.SubString(0, end);
        require(name.IsEmpty() || service.IsClassSupported(set, name, none));
    });
    bool isFirst = true;
    forEachElement(document, "Name", [&](const QORIDOMElement_var& element) {
        const QORUnicodeString name = textOf(element);
        require(std::exchange(isFirst, false) || name.IsEmpty() || service.IsPropertySupported(set, name));
    });
    require(!service.IsPropertySupported(set, "") && !service.IsClassSupported(set, "", none));
    forEachElement(document, "AttributeID", [&](const QORIDOMElement_var& entry) {
        for (const IfcLevel level : {IfcLevelGeneral, IfcLevel2X3, IfcLevel4AndAbove}) {
            QORUnicodeString value("what it held");
            const HRESULT result = IFCAttributeList::GetInstance()->GetAttributeValue(
                attribute(entry, "Name"), attribute(entry, "Entity"), attribute(entry, "PropertySet"), level, value);
            require(result == (value.IsEmpty() ? E_FAIL : S_OK));
        }
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0 || size > longestInput) return 0;
    static const File file;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    file.write(text);
    const QORIDOMDocument_var document = parsed(text);
    const int service = data[0] % 4;
    if (service == 0) checkVersions(document, text);
    if (service == 1) checkCustom(document);
    if (service == 2) checkAec(document);
    if (service == 3) checkCatalogues(document, text);
    return 0;
}
