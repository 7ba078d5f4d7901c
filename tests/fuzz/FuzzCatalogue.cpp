// The input as a definition of a property set and as a catalogue of attributes. What the services answer must be
// what a plain pass over the document finds.

#include "files/QORSysRTVWalker.h"
#include "IFCAttributeList.h"
#include "PrivateOperation.h"
#include "QORIFCPSetQtoValidationService.h"
#include "sdai/Model.h"
#include "settings/QORDXEnvironmentVariable.h"
#include "xml/QORIDOMDocument.h"
#include "xml/QORIDOMElement.h"
#include "xml/QORIDOMNodeList.h"
#include "xml/QORIXMLDOMDocumentBuilder.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <unistd.h>

namespace {

constexpr const char* set = "Pset_Fuzz";
// Nested levels make the entries of a file count as often as there are levels around them.
constexpr std::size_t longestInput = 1 << 14;

void require(bool condition, int line = __builtin_LINE()) {
    if (condition) return;
    std::fprintf(stderr, "line %d does not hold\n", line);
    std::abort();
}

/// One file that both services find, and an instance to ask about.
class Place {
public:
    Place() {
        const auto definitions = _path / "resources" / "standard" / "IFCPsetQset";
        std::filesystem::create_directories(definitions);
        std::filesystem::create_directory_symlink(definitions, _path / "IFCAttributes");
        _file = definitions / (std::string(set) + ".xml");
        QORListValQORUnicodeString folders;
        folders.Append(_path.c_str());
        velkor::files::setRuntimeView(folders);
        velkor::settings::setVariable("QORCollectionStandard", _path.c_str());
        velkor::settings::removeVariable("QORDefaultCollectionStandard");
        auto opened = velkor::sdai::Model::fromText(
            "ISO-10303-21;HEADER;FILE_DESCRIPTION((''),'2;1');FILE_NAME('','',(''),(''),'','','');FILE_SCHEMA(('IFC4'))"
            ";ENDSEC;DATA;#1=IFCWALLSTANDARDCASE('0',$,$,$,$,$,$,$,$);ENDSEC;END-ISO-10303-21;",
            "wall.ifc");
        require(opened.has_value());
        _model = std::move(*opened);
    }
    ~Place() { std::filesystem::remove_all(_path); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    void write(std::string_view text) const {
        std::ofstream(_file, std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
    }
    DXSdaiAppInstance* wall() const { return _model->instance(1); }

private:
    std::filesystem::path _path = std::filesystem::temp_directory_path() / ("velkor-fuzz-" + std::to_string(getpid()));
    std::filesystem::path _file;
    std::unique_ptr<velkor::sdai::Model> _model;
};

/// Has the services read anew, by what the library does when it is unloaded.
void forget() {
    for (const char* callback : {"_ZN16IFCAttributeList10DeleteInstEi", "_ZN30QORIFCPSetQtoValidationService6OnExitEi"})
        velkor::test::privateOperation<int(int)>(callback)(1);
}

QORIDOMDocument_var parsed(std::string_view text) {
    QORIXMLSAX2Factory_var factory;
    QORIXMLInputSource_var source;
    QORIXMLDOMDocumentBuilder_var builder;
    QORIDOMDocument_var document;
    require(CreateQORIXMLSAX2Factory(CLSID_XML4C5_SAX, factory) == S_OK);
    require(factory->CreateInputSourceFromText(text, "fuzz", source) == S_OK);
    require(CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, builder) == S_OK);
    builder->Parse(source, document, {}, {}, {}, {});
    return document;
}

template <typename Parent, typename Use>
void forEach(const Parent& parent, const char* name, Use use) {
    QORIDOMNodeList_var elements;
    unsigned int length = 0;
    require(parent->GetElementsByTagName(name, elements) == S_OK && elements->GetLength(length) == S_OK);
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var node;
        require(elements->Item(i, node) == S_OK);
        use(QORIDOMElement_var(node), i);
    }
}

QORUnicodeString textOf(const QORIDOMElement_var& element) {
    QORIDOMNode_var child;
    QORUnicodeString text;
    require(element->GetFirstChild(child) == S_OK);
    if (!child.IsNull()) child->GetNodeValue(text);
    return text;
}

void checkSet(const QORIDOMDocument_var& document, DXSdaiAppInstance* wall) {
    QORIFCPSetQtoValidationService& service = *QORIFCPSetQtoValidationService::getInstance();
    DXSdaiAppInstance* none = nullptr;
    bool appliesToWall = service.IsClassSupported(set, "IFCWALLSTANDARDCASE", none);
    forEach(document, "ClassName", [&](const QORIDOMElement_var& element, unsigned int) {
        QORUnicodeString name = textOf(element);
        if (const int end = name.SearchSubString("/"); end > 0) name = name.SubString(0, end);
        require(name.IsEmpty() || service.IsClassSupported(set, name, none));
        name.ToUpper();
        appliesToWall = appliesToWall || wall->IsKindOf(name.utf8());
    });
    require(service.IsClassSupported(set, "IFCWALLSTANDARDCASE", wall) == appliesToWall);
    forEach(document, "Name", [&](const QORIDOMElement_var& element, unsigned int index) {
        const QORUnicodeString name = textOf(element);
        require(index == 0 || name.IsEmpty() || service.IsPropertySupported(set, name));
    });
    require(!service.IsPropertySupported(set, "") && !service.IsClassSupported(set, "", none));
}

void checkAttributes(const QORIDOMDocument_var& document) {
    constexpr const char* names[] = {"Name", "Entity", "PropertySet", "Value"};
    using Key = std::array<QORUnicodeString, 3>;
    std::array<std::map<Key, QORUnicodeString>, 3> levels;
    forEach(document, "Level", [&](const QORIDOMElement_var& level, unsigned int) {
        QORUnicodeString id;
        level->GetAttribute("ID", id);
        auto& entries = levels[id.Compare("2X3") != 0 ? 1U : id.Compare("4ANDABOVE") != 0 ? 2U : 0U];
        forEach(level, "AttributeID", [&](const QORIDOMElement_var& entry, unsigned int) {
            std::array<QORUnicodeString, 4> values;
            for (std::size_t i = 0; i < values.size(); ++i) entry->GetAttribute(names[i], values[i]);
            entries.try_emplace({values[0], values[1], values[2]}, values[3]);
        });
    });
    for (const auto& entries : levels) {
        for (const auto& [key, unused] : entries) {
            for (std::size_t level = 0; level < levels.size(); ++level) {
                QORUnicodeString text;
                for (const std::size_t tried : {std::size_t{0}, level}) {
                    if (const auto found = levels[tried].find(key); found != levels[tried].end()) text = found->second;
                }
                QORUnicodeString value("what it held");
                const HRESULT result = IFCAttributeList::GetInstance()->GetAttributeValue(
                    key[0], key[1], key[2], static_cast<IfcLevel>(level), value);
                require(value == text && result == (text.IsEmpty() ? E_FAIL : S_OK));
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > longestInput) return 0;
    static const Place place;
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    place.write(input);
    forget();
    QORIFCPSetQtoValidationService& service = *QORIFCPSetQtoValidationService::getInstance();
    const QORIDOMDocument_var document = parsed(input);
    require(SUCCEEDED(service.Initialize(set)) == !document.IsNull());
    require(FAILED(service.Initialize(QORUnicodeString(input.substr(0, 20)))));
    if (document.IsNull()) return 0;
    checkSet(document, place.wall());
    checkAttributes(document);
    return 0;
}
