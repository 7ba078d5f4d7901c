#include "CustomMappingLinter.h"

#include "velkor/text/QORToken.h"

namespace velkor::lint {

namespace {

constexpr const char* standard = "StandardMapping";
constexpr const char* custom = "CustomMapping";
constexpr const char* import = "_Import";
constexpr const char* exporting = "_Export";

const Format& format() {
    static const std::vector<const char*> required{"fromEntity", "toEntity", "scope"};
    static const std::vector<const char*> optional{"fromProperty", "toProperty"};
    static const Format result{"IfcMapping",
                               {{"IfcMapping", {""}, {}},
                                {standard, {"IfcMapping"}, required, optional},
                                {custom, {"IfcMapping"}, required, optional}}};
    return result;
}

std::vector<std::string> typesOf(const XmlElement& mapping) {
    std::vector<std::string> result;
    QORToken types{QORUnicodeString(std::string_view(mapping.attribute("scope")))};
    for (auto type = types.GetNextToken(";"); !type.IsEmpty(); type = types.GetNextToken(";"))
        result.emplace_back(type.utf8());
    return result;
}

} // namespace

CustomMappingLinter::CustomMappingLinter(Dictionaries& dictionaries) : Linter(format(), dictionaries) {}

// All standard mappings are read before the custom ones.
void CustomMappingLinter::judgeEntries(const XmlElement& root) {
    _mappings.clear();
    _keys.clear();
    _losses.clear();
    if (root.name != "IfcMapping" || !root.namespaceUri.empty()) return;
    for (const char* section : {standard, custom}) {
        for (const XmlElement& mapping : root.children) {
            if (mapping.name == section && mapping.namespaceUri.empty()) judgeMapping(mapping);
        }
    }
    tellLosses();
}

void CustomMappingLinter::judgeMapping(const XmlElement& mapping) {
    countEntry();
    _mappings.push_back(&mapping);
    judgeName(mapping.line, mapping.attribute("fromEntity"), mapping.attribute("fromProperty"));
    judgeName(mapping.line, mapping.attribute("toEntity"), mapping.attribute("toProperty"));
    const std::vector<std::string> types = typesOf(mapping);
    if (types.empty() && !mapping.attribute("scope").empty())
        error(mapping.line, "missing-value", mapping.name + " has no type in its \"scope\"");
    for (const std::string& type : types) {
        QORUnicodeString bare{std::string_view(type)};
        bare.Strip();
        if (bare.utf8() != type) {
            error(mapping.line, "bad-scope", "the blanks beside a type are part of its name: " + quoted(type),
                  "write " + quoted(bare.utf8()));
        } else if (type.ends_with(import) || type.ends_with(exporting)) {
            error(mapping.line, "bad-scope", "a direction is no part of a type: " + quoted(type),
                  "write " + quoted(std::string_view(type).substr(0, type.rfind('_'))));
        }
        addKey("fromEntity", "fromProperty", type, import);
        if (mapping.name == custom) addKey("toEntity", "toProperty", type, exporting);
    }
}

// Names that are not those of IFC may be of the user's own property sets.
void CustomMappingLinter::judgeName(int line, const std::string& entity, const std::string& property) {
    if (toUpper(entity).starts_with("IFC") && judgeEntity(line, entity, {})) judgeProperty(line, entity, property, {});
}

void CustomMappingLinter::addKey(const char* entity, const char* property, const std::string& type,
                                 const char* direction) {
    const XmlElement& mapping = *_mappings.back();
    const std::string scope = type + direction;
    const std::vector<std::string_view> parts{mapping.attribute(entity), mapping.attribute(property), scope};
    Holder holder{_mappings.size() - 1, keyText(parts)};
    const auto [place, isNew] = _keys.try_emplace(keyHash(parts), holder);
    if (isNew) return;
    if (place->second.mapping != holder.mapping) {
        const Loss loss{place->second.mapping, holder.mapping, direction, place->second.text != holder.text};
        _losses[loss].push_back(type);
    }
    place->second = std::move(holder);
}

void CustomMappingLinter::tellLosses() {
    for (const auto& [loss, types] : _losses) {
        const auto& [loserIndex, winnerIndex, direction, doKeysDiffer] = loss;
        const XmlElement* loser = _mappings[loserIndex];
        const XmlElement* winner = _mappings[winnerIndex];
        const bool isImport = direction == import;
        const std::string& property = loser->attribute(isImport ? "fromProperty" : "toProperty");
        std::string shown = quoted(loser->attribute(isImport ? "fromEntity" : "toEntity"));
        if (!property.empty()) shown += ' ' + quoted(property);
        shown += std::string(isImport ? " on import" : " on export") + " of " + types.front();
        if (types.size() > 1) shown += " and " + std::to_string(types.size() - 1) + " more";
        const std::string other = winner->name + ' ' + inLine(winner->line);
        if (doKeysDiffer)
            error(loser->line, "key-collision",
                  shown + " cannot be told from " + other + ", which counts: their keys have the same hash");
        else
            warn(loser->line, "duplicate-key", shown + ": " + other + " is read later, which counts");
    }
}

} // namespace velkor::lint
