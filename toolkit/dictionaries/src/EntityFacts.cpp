#include "velkor/dictionaries/EntityFacts.h"

#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/text/NearestNames.h"

namespace velkor {

namespace {

EntityFacts::Attribute factsOf(const sdai::Attribute& attribute, bool isDerived, std::size_t position) {
    return {
        attribute.name(), attribute.owner().name(), attribute.type().expressText(), attribute.isOptional(), isDerived,
        position};
}

void addRules(const sdai::EntityDefinition& entity, std::vector<RuleFacts>& rules) {
    if (entity.supertype() != nullptr) addRules(*entity.supertype(), rules);
    for (RuleFacts& rule : rulesOf(entity.schema().name(), entity.name())) rules.push_back(std::move(rule));
}

} // namespace

EntityFacts entityFacts(const sdai::EntityDefinition& entity) {
    EntityFacts facts{entity.schema().name(), entity.name(), entity.isAbstract(), {}, {}, {}, {}, {}};
    for (const auto* up = entity.supertype(); up != nullptr; up = up->supertype())
        facts.supertypes.push_back(up->name());
    for (const sdai::EntityDefinition* subtype : entity.subtypes()) facts.subtypes.push_back(subtype->name());
    for (const auto& slot : entity.attributes())
        facts.attributes.push_back(factsOf(*slot.attribute, slot.isDerived, facts.attributes.size() + 1));
    for (const sdai::Attribute* attribute : entity.derivedAttributes())
        facts.attributes.push_back(factsOf(*attribute, true, 0));
    for (const auto& rule : entity.uniquenessRules()) {
        EntityFacts::UniquenessRule& told = facts.uniquenessRules.emplace_back();
        told.label = rule.label;
        for (const sdai::Attribute* attribute : rule.attributes) told.attributes.push_back(attribute->name());
    }
    addRules(entity, facts.rules);
    return facts;
}

std::vector<std::string> nearestEntities(const sdai::SchemaDefinition& schema, std::string_view name,
                                         std::size_t most) {
    std::vector<std::string_view> known;
    for (const sdai::EntityDefinition* entity : schema.entities()) known.push_back(entity->name());
    return text::nearestNames(known, name, most, "IFC");
}

std::string releaseMeant(std::string_view text) {
    const auto& repository = DXSdaiDictionaryRepo::TheOne();
    std::string name = repository.match(text);
    return name.empty() ? repository.match("IFC" + std::string(text)) : name;
}

} // namespace velkor
