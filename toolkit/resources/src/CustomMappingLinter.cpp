#include "CustomMappingLinter.h"

#include "ResourceNames.h"
#include "velkor/text/QORToken.h"

namespace velkor::lint {

namespace {

namespace names = velkor::names::custom;

const Format& format() {
    static const std::vector<const char*> required{names::fromEntity, names::toEntity, names::scope};
    static const std::vector<const char*> optional{names::fromProperty, names::toProperty};
    static const Format result{names::root,
                               {{names::root, {""}, {}},
                                {names::standard, {names::root}, required, optional},
                                {names::mapping, {names::root}, required, optional}}};
    return result;
}

std::vector<std::string> typesOf(const XmlElement& mapping) {
    std::vector<std::string> result;
    QORToken types{QORUnicodeString(std::string_view(mapping.attribute(names::scope)))};
    for (auto type = types.GetNextToken(names::typeSeparator); !type.IsEmpty();
         type = types.GetNextToken(names::typeSeparator))
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
    if (root.name != names::root || !root.namespaceUri.empty()) return;
    for (const char* section : {names::standard, names::mapping}) {
        for (const XmlElement& mapping : root.children) {
            if (mapping.name == section && mapping.namespaceUri.empty()) judgeMapping(mapping);
        }
    }
    tellLosses();
}

void CustomMappingLinter::judgeMapping(const XmlElement& mapping) {
    countEntry();
    _mappings.push_back(&mapping);
    judgeName(mapping.line, mapping.attribute(names::fromEntity), mapping.attribute(names::fromProperty));
    judgeName(mapping.line, mapping.attribute(names::toEntity), mapping.attribute(names::toProperty));
    const std::vector<std::string> types = typesOf(mapping);
    if (types.empty() && !mapping.attribute(names::scope).empty())
        error(mapping.line, "missing-value", mapping.name + " has no type in its " + quoted(names::scope));
    for (const std::string& type : types) {
        QORUnicodeString bare{std::string_view(type)};
        bare.Strip();
        if (bare.utf8() != type) {
            error(mapping.line, "bad-scope", "the blanks beside a type are part of its name: " + quoted(type),
                  "write " + quoted(bare.utf8()));
        } else if (type.ends_with(names::importEnding) || type.ends_with(names::exportEnding)) {
            error(mapping.line, "bad-scope", "a direction is no part of a type: " + quoted(type),
                  "write " + quoted(std::string_view(type).substr(0, type.rfind('_'))));
        }
        addKey(names::fromEntity, names::fromProperty, type, names::importEnding);
        if (mapping.name == names::mapping) addKey(names::toEntity, names::toProperty, type, names::exportEnding);
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
        const bool isImport = direction == names::importEnding;
        const std::string& property = loser->attribute(isImport ? names::fromProperty : names::toProperty);
        std::string shown = quoted(loser->attribute(isImport ? names::fromEntity : names::toEntity));
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
