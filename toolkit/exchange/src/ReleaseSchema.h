/// A dictionary as conversions ask it.
#pragma once

#include "velkor/sdai/Dictionary.h"

#include <string_view>
#include <unordered_set>

namespace velkor::exchange {

class ReleaseSchema {
public:
    explicit ReleaseSchema(const sdai::SchemaDefinition& definition);

    const sdai::SchemaDefinition& definition() const noexcept { return *_definition; }
    std::string_view name() const noexcept { return _definition->name(); }
    /// Null when the release has none of the name.
    const sdai::EntityDefinition* entity(std::string_view name) const noexcept { return _definition->entity(name); }
    /// Whether instances of an entity have "*" in a slot; also where the dictionary does not carry it.
    bool isDerived(const sdai::EntityDefinition& entity, std::size_t slot) const;

private:
    const sdai::SchemaDefinition* _definition;
    // Slots that only the rules of the release derive.
    std::unordered_set<const sdai::AttributeSlot*> _derivedElsewhere;
};

} // namespace velkor::exchange
