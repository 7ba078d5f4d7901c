#include "SetDefinitions.h"

#include "QORIFCDXXMLServices.h"
#include "QORIFCPSetQtoValidationService.h"
#include "ResourceKinds.h"
#include "ResourceNames.h"
#include "velkor/files/Paths.h"
#include "velkor/files/QORSysRTVWalker.h"
#include "velkor/sdai/DXSdaiAppInstance.h"
#include "velkor/sdai/Model.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/QORToken.h"
#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor {

namespace {

constexpr std::string_view typeEnding = "TYPE";
constexpr std::string_view styleEnding = "STYLE";
constexpr std::string_view typeObject = "IFCTYPEOBJECT";

QORUnicodeString unicode(std::string_view text) {
    return QORUnicodeString(text);
}

// Whether the service has read a set. It refuses one that it has read already, so each is asked for once in the
// life of the process, as the service keeps it.
bool isRead(const std::string& setName) {
    static std::unordered_map<std::string, std::optional<bool>> answers;
    std::optional<bool>& answer = answers[setName];
    if (!answer) answer = SUCCEEDED(QORIFCPSetQtoValidationService::getInstance()->Initialize(unicode(setName)));
    return *answer;
}

// What a type object describes: "IFCDOOR" for both "IFCDOORTYPE" and "IFCDOORSTYLE".
std::string_view describedBy(std::string_view typeName) {
    for (const std::string_view ending : {typeEnding, styleEnding}) {
        if (typeName.ends_with(ending)) return typeName.substr(0, typeName.size() - ending.size());
    }
    return typeName;
}

// The texts of a document's elements of one name, as the service reads them.
std::vector<std::string> elementTexts(const QORIDOMDocument_var& document, const char* elementName) {
    std::vector<std::string> texts;
    QORIDOMNodeList_var elements;
    unsigned int length = 0;
    if (FAILED(document->GetElementsByTagName(elementName, elements)) || FAILED(elements->GetLength(length)))
        return texts;
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var element, text;
        QORUnicodeString value;
        elements->Item(i, element);
        if (element && SUCCEEDED(element->GetFirstChild(text)) && text) text->GetNodeValue(value);
        texts.emplace_back(value.utf8());
    }
    return texts;
}

} // namespace

NamedDefinition::NamedDefinition(std::string_view name, std::string path, State state)
    : _name(name), _setName(name), _path(std::move(path)), _state(state) {}

bool NamedDefinition::namesClass(std::string_view className, DXSdaiAppInstance* object) const {
    return QORIFCPSetQtoValidationService::getInstance()->IsClassSupported(_setName, unicode(className), object);
}

bool NamedDefinition::appliesTo(DXSdaiAppInstance* object) const {
    const sdai::EntityDefinition* entity = object->entity();
    if (entity == nullptr) return namesClass({}, object);
    if (namesClass(entity->name(), object)) return true;
    // Definitions name what a type describes, more often than the type.
    if (entity->isKindOf(typeObject)) {
        for (; entity != nullptr; entity = entity->supertype()) {
            if (namesClass(describedBy(entity->name()), object)) return true;
        }
        return false;
    }
    return standsForAType(*entity);
}

// Whether the entity is what objects of a class are that the release knows by its type alone.
bool NamedDefinition::standsForAType(const sdai::EntityDefinition& entity) const {
    const auto isThatOf = [&](const std::string& className) {
        const std::string upper = text::toUpper(className);
        const sdai::SchemaDefinition& schema = entity.schema();
        const auto* type = schema.entity(upper) == nullptr ? schema.entity(upper + std::string(typeEnding)) : nullptr;
        return type != nullptr && type->supertype() != nullptr &&
               describedBy(type->supertype()->name()) == entity.name();
    };
    return std::ranges::any_of(classes(), isThatOf);
}

bool NamedDefinition::hasProperty(std::string_view propertyName) const {
    return QORIFCPSetQtoValidationService::getInstance()->IsPropertySupported(_setName, unicode(propertyName));
}

const NamedDefinition::Contents& NamedDefinition::contents() const {
    if (_contents) return *_contents;
    _contents.emplace();
    QORIDOMDocument_var document;
    if (_path.empty() || FAILED(QORIFCDXXMLServices::GetDOMDocument(unicode(_path), document)) || !document)
        return *_contents;
    for (const std::string& text : elementTexts(document, names::definition::className)) {
        if (!text.empty()) _contents->classes.emplace_back(names::definition::classNamed(text));
    }
    _contents->properties = elementTexts(document, names::definition::name);
    if (!_contents->properties.empty()) _contents->properties.erase(_contents->properties.begin());
    std::erase(_contents->properties, std::string());
    return *_contents;
}

SetDefinitions::SetDefinitions() {
    QORSysRTVWalker walker;
    QORToken steps(propertySetResource.subFolder);
    for (auto step = steps.GetNextToken("/"); !step.IsEmpty(); step = steps.GetNextToken("/"))
        walker.AppendRTVSubDir(step);
    walker.SetPattern(propertySetResource.nameText);
    const std::size_t ending = std::string_view(propertySetResource.nameText).size();
    for (QORUnicodeString path; SUCCEEDED(walker.GetNext(path));) {
        QORUnicodeString folder, file;
        if (FAILED(QORSplitPath(path, folder, file))) continue;
        const std::string_view name = file.utf8();
        _paths.emplace(name.substr(0, name.size() - ending), path.utf8());
    }
}

NamedDefinition& SetDefinitions::find(std::string_view setName) {
    const std::string name(setName);
    if (const auto known = _asked.find(name); known != _asked.end()) return known->second;
    using State = NamedDefinition::State;
    auto* service = QORIFCPSetQtoValidationService::getInstance();
    const auto path = _paths.find(name);
    State state = State::Undefined;
    if (service->IsCustomPsetQto(unicode(name))) {
        state = State::Custom;
    } else if (path != _paths.end()) {
        state = isRead(name) ? State::Defined : State::Unreadable;
    }
    const std::string file = path == _paths.end() ? std::string() : path->second;
    return _asked.try_emplace(name, name, file, state).first->second;
}

std::string SetDefinitions::likelyName(std::string_view setName) const {
    const std::string upper = text::toUpper(setName.substr(0, 100));
    if (!upper.starts_with("PSET_") && !upper.starts_with("QTO_")) return {};
    std::vector<std::string_view> known;
    for (const auto& [name, path] : _paths) known.emplace_back(name);
    // Names of the standard that lie further apart are those of other sets.
    return text::likelyMeant(known, setName, 1);
}

} // namespace velkor
