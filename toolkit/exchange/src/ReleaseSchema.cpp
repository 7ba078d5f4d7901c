#include "ReleaseSchema.h"

#include "velkor/rules/DerivedSlots.h"

namespace velkor::exchange {

ReleaseSchema::ReleaseSchema(const sdai::SchemaDefinition& definition) : _definition(&definition) {
    const auto take = [this](const auto& self, const sdai::EntityDefinition& entity,
                             std::string_view attribute) -> void {
        const int index = entity.attributeIndex(attribute);
        if (index < 0) return;
        const sdai::AttributeSlot& slot = entity.attributes()[static_cast<std::size_t>(index)];
        if (!slot.isDerived) _derivedElsewhere.insert(&slot);
        for (const sdai::EntityDefinition* subtype : entity.subtypes()) self(self, *subtype, attribute);
    };
    for (const sdai::DerivedSlot& derived : derivedSlots(definition))
        if (const sdai::EntityDefinition* entity = definition.entity(derived.entity))
            take(take, *entity, derived.attribute);
}

bool ReleaseSchema::isDerived(const sdai::EntityDefinition& entity, std::size_t slot) const {
    const sdai::AttributeSlot& place = entity.attributes()[slot];
    return place.isDerived || _derivedElsewhere.contains(&place);
}

} // namespace velkor::exchange
