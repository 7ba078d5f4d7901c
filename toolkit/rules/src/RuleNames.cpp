#include "RuleNames.h"

#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::rules {

namespace {

// What stands for the name of the schema in the texts of the store.
constexpr char schemaPlace = '\x01';

std::string joined(std::string_view owner, std::string_view label) {
    std::string name(owner);
    if (!label.empty()) name.append(".").append(label);
    return name;
}

std::string_view optionalText(const RuleStore& store, TextId id, TextId otherwise) {
    return store.text(id == noText ? otherwise : id);
}

// The part of a name that may stand for the whole: the label, or of a global rule its own name.
bool isShortName(const RuleStore& store, const RuleTables& tables, RulePlace place, std::string_view name) {
    const auto is = [&](TextId id) { return text::equalIgnoringCase(store.text(id), name); };
    switch (place.kind) {
    case RuleKind::Where:
        return is(tables.entityRules[place.index].label);
    case RuleKind::Type:
        return is(tables.typeRules[place.index].label);
    case RuleKind::Global:
        return is(tables.globalRules[place.index].label) || is(tables.globalRules[place.index].ownerName);
    case RuleKind::Unique:
        return is(tables.uniqueRules[place.index].label);
    case RuleKind::Inverse:
        return is(tables.inverseAttributes[place.index].name);
    }
    return false;
}

} // namespace

std::string nameOf(const RuleStore& store, const WhereRule& rule) {
    return joined(store.text(rule.ownerName), store.text(rule.label));
}

std::string nameOf(const RuleStore& store, const UniqueRule& rule) {
    return joined(store.text(rule.entityName), store.text(rule.label));
}

std::string nameOf(const RuleStore& store, const InverseAttribute& attribute) {
    return joined(optionalText(store, attribute.entityName, attribute.entity),
                  optionalText(store, attribute.spelledName, attribute.name));
}

std::string expressionOf(const RuleStore& store, const RuleTables& tables, TextId expression) {
    std::string result;
    if (expression == noText) return result;
    for (const char c : store.text(expression)) {
        if (c == schemaPlace)
            result += tables.schema;
        else
            result += c;
    }
    return result;
}

bool hasBounds(const InverseAttribute& attribute) {
    return !attribute.isAggregate || attribute.lower > 0 || attribute.upper >= 0;
}

std::string boundsText(const InverseAttribute& attribute) {
    const std::string lower = std::to_string(attribute.lower), upper = std::to_string(attribute.upper);
    if (!attribute.isAggregate) return "1";
    if (attribute.upper < 0) return "at least " + lower;
    if (attribute.lower == attribute.upper) return lower;
    return attribute.lower <= 0 ? "at most " + upper : lower + " to " + upper;
}

std::string wordingOf(const RuleStore& store, const InverseAttribute& attribute) {
    if (!hasBounds(attribute)) return {};
    return boundsText(attribute) + ' ' + std::string(store.text(attribute.user)) + " by " +
           std::string(store.text(attribute.attribute));
}

std::vector<RulePlace> allPlaces(const RuleTables& tables) {
    std::vector<RulePlace> places;
    const auto add = [&](RuleKind kind, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) places.push_back({kind, static_cast<std::uint16_t>(i)});
    };
    add(RuleKind::Where, tables.entityRules.size());
    add(RuleKind::Type, tables.typeRules.size());
    add(RuleKind::Global, tables.globalRules.size());
    add(RuleKind::Unique, tables.uniqueRules.size());
    add(RuleKind::Inverse, tables.inverseAttributes.size());
    return places;
}

std::string nameOf(const RuleStore& store, const RuleTables& tables, RulePlace place) {
    switch (place.kind) {
    case RuleKind::Where:
        return nameOf(store, tables.entityRules[place.index]);
    case RuleKind::Type:
        return nameOf(store, tables.typeRules[place.index]);
    case RuleKind::Global:
        return nameOf(store, tables.globalRules[place.index]);
    case RuleKind::Unique:
        return nameOf(store, tables.uniqueRules[place.index]);
    case RuleKind::Inverse:
        return nameOf(store, tables.inverseAttributes[place.index]);
    }
    return {};
}

std::vector<RulePlace> placesNamed(const RuleStore& store, const RuleTables& tables, std::string_view name) {
    std::vector<RulePlace> whole, part;
    if (name.empty()) return whole;
    for (const RulePlace place : allPlaces(tables)) {
        if (text::equalIgnoringCase(nameOf(store, tables, place), name))
            whole.push_back(place);
        else if (isShortName(store, tables, place, name))
            part.push_back(place);
    }
    if (whole.empty() && part.size() == 1) return part;
    return whole;
}

} // namespace velkor::rules
