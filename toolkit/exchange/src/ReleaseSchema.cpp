#include "ReleaseSchema.h"

#include "velkor/rules/DerivedSlots.h"

namespace velkor::exchange {

ReleaseSchema::ReleaseSchema(const sdai::SchemaDefinition& definition) : _definition(&definition) {
    for (const sdai::DerivedSlot& derived : derivedSlots(definition)) {
        const sdai::EntityDefinition* owner = definition.entity(derived.entity);
        const int index = owner == nullptr ? -1 : owner->attributeIndex(derived.attribute);
        if (index < 0) continue;
        // Inherited attributes come first, so that subtypes have it at the same place.
        for (const sdai::EntityDefinition* entity : definition.entities())
            if (entity->isKindOf(*owner)) _derivedElsewhere.emplace(entity, static_cast<std::size_t>(index));
    }
}

bool ReleaseSchema::isDerived(const sdai::EntityDefinition& entity, std::size_t slot) const {
    return entity.attributes()[slot].isDerived || _derivedElsewhere.contains(std::pair(&entity, slot));
}

} // namespace velkor::exchange
