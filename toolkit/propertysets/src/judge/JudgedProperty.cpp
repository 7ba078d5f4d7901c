#include "judge/JudgedProperty.h"

#include "records/SharedText.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor {

namespace {

// Of an enumerated property, where its definition names no other.
constexpr std::string_view enumeratorType = "IfcLabel";
// Names that hints have been looked for: a file may have more that are wrong than anybody wants hints for.
constexpr std::size_t mostHints = 1000;

std::string_view valueTypeOf(const PropertyDefinition& wanted) {
    return wanted.kind == PropertyKind::Enumerated && wanted.valueType.empty() ? enumeratorType
                                                                               : std::string_view(wanted.valueType);
}

std::vector<std::string_view> views(const std::vector<std::string>& texts) {
    return {texts.begin(), texts.end()};
}

// In a short name, two letters make another word.
std::string likelyMeant(const std::vector<std::string_view>& known, std::string_view name) {
    return name.size() > longestName ? std::string() : text::likelyMeant(known, name, name.size() < 8 ? 1 : 2);
}

} // namespace

WantedType::WantedType(std::string_view name, const sdai::SchemaDefinition& schema)
    : _name(name), _schema(schema), _type(name.empty() ? nullptr : schema.named(name)) {}

bool WantedType::fits(std::string_view keyword) {
    if (_type == nullptr || keyword == _fitting || _type->asEntity() != nullptr) return true;
    const sdai::DefinedType* type = _schema.definedType(keyword);
    if (type != nullptr && !fits(*type)) return false;
    _fitting = keyword;
    return true;
}

bool WantedType::fits(const sdai::DefinedType& type) const {
    if (const sdai::SelectType* select = _type->resolved().asSelect()) return select->accepts(type);
    for (const sdai::DefinedType* each = &type; each != nullptr; each = each->underlying().asDefined()) {
        if (each == _type) return true;
    }
    return false;
}

bool WantedType::fits(const sdai::EntityDefinition& entity) const {
    if (_type == nullptr) return true;
    if (const sdai::SelectType* select = _type->resolved().asSelect()) return select->accepts(entity);
    const sdai::EntityDefinition* wanted = _type->asEntity();
    return wanted == nullptr || entity.isKindOf(*wanted);
}

Enumerators::Enumerators(const std::vector<std::string>& members)
    : _members(members), _texts(members.begin(), members.end()) {
    for (const std::string& member : members) _written.push_back('\'' + member + '\'');
    _tokens.insert(_written.begin(), _written.end());
}

bool Enumerators::contain(std::string_view token) const {
    if (_texts.empty() || _tokens.contains(token)) return true;
    return token.size() <= longestName && _texts.contains(sdai::decodeString(token));
}

const std::string& Enumerators::meant(std::string_view token, std::string_view text) {
    static const std::string none;
    if (const auto known = _meant.find(token); known != _meant.end()) return known->second;
    if (_meant.size() >= mostHints) return none;
    return _meant.try_emplace(token, likelyMeant(views(_members), text)).first->second;
}

PropertyNames::PropertyNames(const std::vector<PropertyDefinition>* definitions, const sdai::SchemaDefinition& schema)
    : _definitions(definitions), _schema(schema) {}

PropertyNames::~PropertyNames() = default;

PropertyNames::Entry* PropertyNames::find(std::string_view name) {
    if (isTooLong(name)) return nullptr;
    if (const auto known = _written.find(name); known != _written.end()) return known->second;
    if (!isText(name)) return nullptr;
    const std::string text = nameText(name);
    const auto [place, isNew] = _entries.try_emplace(text);
    Entry& entry = place->second;
    _written.emplace(name, &entry);
    if (_definitions == nullptr || !isNew) return &entry;
    const auto isNamed = [&](const PropertyDefinition& each) { return text::equalIgnoringCase(each.name, text); };
    const auto definition = std::ranges::find_if(*_definitions, isNamed);
    if (definition == _definitions->end()) return &entry;
    std::unique_ptr<JudgedProperty>& property = _properties[&*definition];
    if (property == nullptr) property = std::make_unique<JudgedProperty>(*definition, _schema);
    entry.property = property.get();
    return &entry;
}

const std::string& PropertyNames::meant(Entry& entry, std::string_view name) const {
    if (!entry.meant) {
        std::vector<std::string_view> known;
        if (_definitions != nullptr && _entries.size() < mostHints) {
            for (const PropertyDefinition& each : *_definitions) known.emplace_back(each.name);
        }
        entry.meant = likelyMeant(known, name);
    }
    return *entry.meant;
}

JudgedProperty::JudgedProperty(const PropertyDefinition& wanted, const sdai::SchemaDefinition& schema)
    : definition(wanted), value(valueTypeOf(wanted), schema), defining(wanted.definingType, schema),
      enumerators(wanted.enumerators), members(&wanted.members, schema) {}

} // namespace velkor
