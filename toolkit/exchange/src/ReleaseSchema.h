/// A dictionary as conversions ask it.
#pragma once

#include "velkor/sdai/Dictionary.h"

#include <set>
#include <string_view>
#include <utility>

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
    // Places that only the rules of the release derive. Entities may share their slots with their supertypes, which
    // do not.
    std::set<std::pair<const sdai::EntityDefinition*, std::size_t>> _derivedElsewhere;
};

} // namespace velkor::exchange
