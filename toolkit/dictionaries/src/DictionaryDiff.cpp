#include "velkor/dictionaries/DictionaryDiff.h"

#include "RuleDiff.h"

#include <algorithm>
#include <map>

namespace velkor {

namespace {

using sdai::Attribute;
using sdai::DefinedType;
using sdai::EntityDefinition;

/// Two ordered lists of texts, each text once: what only one has, and whether what both have
/// stands in one order.
struct ListDiff {
    std::vector<std::string> added;
    std::vector<std::string> removed;
    bool reordered = false;

    ListDiff(const std::vector<std::string>& before, const std::vector<std::string>& after) {
        std::map<std::string_view, std::size_t> positions;
        for (std::size_t i = 0; i < before.size(); ++i) positions.emplace(before[i], i);
        std::size_t last = 0;
        for (const std::string& text : after) {
            const auto found = positions.find(text);
            if (found == positions.end()) {
                added.push_back(text);
                continue;
            }
            reordered |= found->second < last;
            last = found->second;
            positions.erase(found);
        }
        for (const std::string& text : before) {
            if (positions.contains(text)) removed.push_back(text);
        }
    }

    bool empty() const { return added.empty() && removed.empty() && !reordered; }
};

std::vector<std::string> memberTexts(const sdai::Type& type) {
    std::vector<std::string> result;
    if (const auto* enumeration = type.asEnumeration()) {
        result.assign(enumeration->values().begin(), enumeration->values().end());
    } else if (const auto* select = type.asSelect()) {
        for (const sdai::Type* item : select->items()) result.push_back(item->expressText());
    }
    return result;
}

std::vector<std::string> attributeNames(const EntityDefinition& entity) {
    std::vector<std::string> result;
    for (const Attribute& attribute : entity.ownAttributes()) result.emplace_back(attribute.name());
    return result;
}

const Attribute* ownAttribute(const EntityDefinition& entity, std::string_view name) {
    const auto own = entity.ownAttributes();
    const auto found = std::ranges::find(own, name, &Attribute::name);
    return found == own.end() ? nullptr : &*found;
}

std::string ruleTexts(const EntityDefinition& entity) {
    std::string result;
    for (const sdai::UniquenessRule& rule : entity.uniquenessRules()) {
        if (!result.empty()) result += "; ";
        result += std::string(rule.label) + ':';
        for (const Attribute* attribute : rule.attributes) result += ' ' + std::string(attribute->name());
    }
    return result.empty() ? "none" : result;
}

bool compareEntities(const EntityDefinition& before, const EntityDefinition& after, DictionaryDiff::Entity& change) {
    change.name = after.name();
    const auto property = [&](const char* name, const std::string& a, const std::string& b) {
        if (a != b) change.properties.push_back({name, a, b});
    };
    const auto supertype = [](const EntityDefinition& e) {
        return e.supertype() ? std::string(e.supertype()->name()) : "none";
    };
    property("supertype", supertype(before), supertype(after));
    property("abstract", before.isAbstract() ? "yes" : "no", after.isAbstract() ? "yes" : "no");
    property("uniqueness rules", ruleTexts(before), ruleTexts(after));

    const ListDiff names(attributeNames(before), attributeNames(after));
    for (const std::string& name : names.added) {
        change.addedAttributes.push_back({name, attributeText(*ownAttribute(after, name))});
    }
    for (const std::string& name : names.removed) {
        change.removedAttributes.push_back({name, attributeText(*ownAttribute(before, name))});
    }
    for (const Attribute& attribute : after.ownAttributes()) {
        const Attribute* earlier = ownAttribute(before, attribute.name());
        if (earlier == nullptr || attributeText(*earlier) == attributeText(attribute)) continue;
        change.changedAttributes.push_back(
            {std::string(attribute.name()), attributeText(*earlier), attributeText(attribute)});
    }
    change.reordered = names.reordered;
    return !names.empty() || !change.properties.empty() || !change.changedAttributes.empty();
}

bool compareTypes(const DefinedType& before, const DefinedType& after, DictionaryDiff::Type& change) {
    change.name = after.name();
    const sdai::Type& a = before.underlying();
    const sdai::Type& b = after.underlying();
    if (b.asEnumeration())
        change.kind = "enumeration";
    else if (b.asSelect())
        change.kind = "select";
    const bool comparable = a.kind() == b.kind() && (b.asEnumeration() || b.asSelect());
    if (!comparable) {
        if (a.expressText() != b.expressText()) change.definition.push_back({"is", a.expressText(), b.expressText()});
        return !change.definition.empty();
    }
    const ListDiff members(memberTexts(a), memberTexts(b));
    change.added = members.added;
    change.removed = members.removed;
    change.reordered = members.reordered && b.asEnumeration() != nullptr;
    return !change.added.empty() || !change.removed.empty() || change.reordered;
}

template <class Definition>
auto byName(std::span<const Definition* const> definitions) {
    std::map<std::string_view, const Definition*> result;
    for (const Definition* definition : definitions) result.emplace(definition->name(), definition);
    return result;
}

/// Takes two sets of definitions apart into what was added, removed and changed.
template <class Definition, class Change, class Compare>
void compareSets(std::span<const Definition* const> before, std::span<const Definition* const> after,
                 std::vector<std::string_view>& added, std::vector<std::string_view>& removed,
                 std::vector<Change>& changed, Compare&& compare) {
    auto earlier = byName(before);
    for (const auto& [name, definition] : byName(after)) {
        const auto found = earlier.find(name);
        if (found == earlier.end()) {
            added.push_back(name);
            continue;
        }
        Change change;
        if (compare(*found->second, *definition, change)) changed.push_back(std::move(change));
        earlier.erase(found);
    }
    for (const auto& [name, definition] : earlier) removed.push_back(name);
}

} // namespace

DictionaryDiff compareDictionaries(const sdai::SchemaDefinition& before, const sdai::SchemaDefinition& after) {
    DictionaryDiff diff;
    compareSets(before.entities(), after.entities(), diff.addedEntities, diff.removedEntities, diff.changedEntities,
                compareEntities);
    compareSets(before.definedTypes(), after.definedTypes(), diff.addedTypes, diff.removedTypes, diff.changedTypes,
                compareTypes);
    compareRules(before.name(), after.name(), diff);
    return diff;
}

std::string attributeText(const sdai::Attribute& attribute) {
    const std::string type = attribute.type().expressText();
    return (attribute.isDerived() ? "DERIVED " : attribute.isOptional() ? "OPTIONAL " : "") + type;
}

} // namespace velkor
