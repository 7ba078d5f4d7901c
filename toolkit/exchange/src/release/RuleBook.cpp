#include "release/RuleBook.h"

#include <unordered_set>

namespace velkor::exchange {

namespace rules {

using enum Effect;

const ConversionRule entityMapped{
    "entity-mapped", Converted, "An entity is called what the version mapping document calls it in the target release",
    "The document of the set-up answers before the dictionaries do"};
const ConversionRule entityRenamed{"entity-renamed", Converted,
                                   "An entity takes the name that it has in the target release",
                                   "The change logs of the releases name the one as successor of the other"};
const ConversionRule supertype{
    "supertype", Converted,
    "An entity that the target lacks becomes the nearest supertype that can be instantiated; its name is kept in "
    "ObjectType or ElementType where that is free",
    "The supertype says less, and nothing that is wrong"};
const ConversionRule plainElement{
    "plain-element", Converted,
    "An element whose entity the target lacks, or for which it requires what is not there, becomes its nearest "
    "supertype "
    "or a building element proxy; its name is kept in ObjectType or ElementType where that is free",
    "What it is made of, where it stands and what belongs to it stay"};
const ConversionRule attributeMapped{"attribute-mapped", Converted,
                                     "An attribute is called what the version mapping document calls it",
                                     "The document of the set-up answers before the dictionaries do"};
const ConversionRule attributeRenamed{"attribute-renamed", Converted,
                                      "An attribute takes the name that it has in the target",
                                      "The change logs of the releases name the one as successor of the other"};
const ConversionRule valueIntroduced{
    "value-introduced", Converted,
    "An attribute that the target introduces has the value of the version mapping document",
    "The document of the set-up says with which value the attribute begins"};
const ConversionRule enumeratorAsText{
    "enumerator-as-text", Converted,
    "A predefined type that the target lacks becomes USERDEFINED, with the old one in ObjectType or ElementType",
    "So ISO 16739 has it for types that its list does not name"};
const ConversionRule selectType{"select-type", Converted,
                                "A value of a type that the target's select lacks takes one that it has",
                                "The value and the simple type below stay the same"};
const ConversionRule numberForm{"number-form", Converted, "An integer becomes a real, or a whole real an integer",
                                "The attribute has the other type in the target"};
const ConversionRule notDefined{"not-defined", Converted, "A required enumeration without a value is NOTDEFINED",
                                "The attribute is optional in the source, or not there at all"};
const ConversionRule emptyText{"empty-text", Converted, "A required text without a value is empty",
                               "The attribute is optional in the source, or not there at all"};
const ConversionRule userDefinedText{"user-defined-text", Converted,
                                     "The text of a user-defined type stands in ObjectType or ElementType",
                                     "The target has one place for such texts, whatever the attribute"};
const ConversionRule oneOfSeveral{"one-of-several", Converted,
                                  "A single value stands as the only member of an aggregate, or the other way round",
                                  "The attribute takes one value in one release and several in the other"};
const ConversionRule equalMember{"equal-member", Converted, "Of equal members of an aggregate one stays",
                                 "The target has a set, or a list of unique members, where the source has a list"};
const ConversionRule relatedType{"related-objects-type", Converted,
                                 "What kind of objects an assignment relates is not repeated",
                                 "The attribute was given up; the objects themselves say it"};
const ConversionRule noEntity{"no-entity", Lost, "An instance is dropped whose entity the target lacks",
                              "No entity of the target says the same, nor a part of it that would be right"};
const ConversionRule noUse{"left-over", Lost, "What only dropped instances used goes with them",
                           "It says nothing on its own"};
const ConversionRule noAttribute{"no-attribute", Lost,
                                 "The value of an attribute is dropped that the target's entity lacks",
                                 "There is no place for it"};
const ConversionRule noEnumerator{"no-enumerator", Lost,
                                  "An enumerator that the target lacks becomes NOTDEFINED, or unset",
                                  "The target has no name for it, and no text that could keep the old one"};
const ConversionRule noValue{"no-value", Lost, "A value is dropped that the target's type cannot say",
                             "No type that may stand there has such values"};
const ConversionRule textShortened{"text-shortened", Lost, "A text is cut to the length that the target allows",
                                   "Longer ones are not valid there"};
const ConversionRule referenceLost{"reference-lost", Lost,
                                   "A reference to what is dropped, or cannot stand there, is unset",
                                   "The attribute is optional"};
const ConversionRule memberLost{"member-lost", Lost, "What is dropped, or cannot stand there, leaves an aggregate",
                                "The others stay"};
const ConversionRule requiredLost{
    "required-lost", Lost, "An instance is dropped with something that it cannot live without",
    "A required attribute would refer to what is dropped, or an aggregate have too few members"};
const ConversionRule requiredMissing{"required-missing", Lost,
                                     "An instance is dropped that has no value for a required attribute",
                                     "The target wants it, and no rule knows one"};
const ConversionRule shapeLost{"shape-lost", Lost, "A product has no shape any more",
                               "The target cannot say its geometry in any form, or not exactly"};

constexpr const ConversionRule* general[] = {
    &entityMapped,    &entityRenamed,    &supertype,      &plainElement, &attributeMapped, &attributeRenamed,
    &valueIntroduced, &enumeratorAsText, &selectType,     &numberForm,   &notDefined,      &emptyText,
    &userDefinedText, &oneOfSeveral,     &equalMember,    &relatedType,  &shapeLost,       &noEntity,
    &noUse,           &noAttribute,      &noEnumerator,   &noValue,      &textShortened,   &referenceLost,
    &memberLost,      &requiredLost,     &requiredMissing};

} // namespace rules

RuleBook::Tables RuleBook::tables() {
    return {geometryRules(), forwardRules(), backwardRules(), requiredValueRules(),
            elementRules(),  styleRules(),   timeRules(),     materialRules()};
}

RuleBook::RuleBook() {
    for (const RuleTable& table : _tables)
        for (const RebuildRule& rule : table.rebuild) _byEntity[rule.entity].push_back(&rule);
}

const std::vector<const RebuildRule*>& RuleBook::rebuilds(const sdai::EntityDefinition& entity) {
    const auto [found, isNew] = _rebuilds.try_emplace(&entity);
    if (isNew) {
        for (const sdai::EntityDefinition* at = &entity; at != nullptr; at = at->supertype()) {
            const auto own = _byEntity.find(at->name());
            if (own != _byEntity.end())
                found->second.insert(found->second.end(), own->second.begin(), own->second.end());
        }
    }
    return found->second;
}

std::vector<const DefaultRule*> RuleBook::defaults(const sdai::EntityDefinition& entity,
                                                   std::string_view attribute) const {
    std::vector<const DefaultRule*> result;
    for (const sdai::EntityDefinition* at = &entity; at != nullptr; at = at->supertype())
        for (const RuleTable& table : _tables)
            for (const DefaultRule& rule : table.defaults)
                if (rule.entity == at->name() && rule.attribute == attribute) result.push_back(&rule);
    return result;
}

const EnumeratorRule* RuleBook::enumerator(const sdai::EnumerationType& to, std::string_view before) const {
    for (const RuleTable& table : _tables)
        for (const EnumeratorRule& rule : table.enumerators)
            if (rule.type == to.definedType().name() && rule.before == before && to.position(rule.after) >= 0)
                return &rule;
    return nullptr;
}

bool RuleBook::isWhole(const sdai::EntityDefinition& entity, std::string_view attribute) const {
    for (const RuleTable& table : _tables)
        for (const WholeAggregate& whole : table.wholes)
            if (whole.attribute == attribute && entity.isKindOf(whole.entity)) return true;
    return false;
}

std::vector<const ConversionRule*> RuleBook::all() {
    std::vector<const ConversionRule*> result(std::begin(rules::general), std::end(rules::general));
    std::unordered_set<std::string_view> names;
    const auto take = [&](const auto& rows) {
        for (const auto& row : rows)
            if (names.insert(row.rule.name).second) result.push_back(&row.rule);
    };
    for (const RuleTable& table : tables()) {
        take(table.rebuild);
        take(table.values);
        take(table.defaults);
        take(table.enumerators);
    }
    return result;
}

} // namespace velkor::exchange
