/// Where instances of each kind of property and quantity have what counts here.
#pragma once

#include "records/Record.h"
#include "records/SharedText.h"
#include "velkor/propertysets/SetDefinition.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velkor {

/// Places are indices into attributes() of the entity, below 0 for none.
struct PropertySlots {
    struct Value {
        int place = -1;
        /// Several of them, in an aggregate.
        bool isMany = false;
        int unit = -1;
        /// Of a table: what the others are looked up by.
        bool isDefining = false;
        /// What the schema says that they are; null where the file says it.
        const sdai::DefinedType* type = nullptr;
    };

    /// None for a quantity that is made of others.
    std::optional<PropertyKind> kind;
    int name = -1;
    std::array<Value, 3> all = {};
    std::uint8_t valueCount = 0;
    /// The enumeration that enumerated values are said to be of.
    int enumeration = -1;
    /// The properties or quantities that it is made of.
    int members = -1;

    std::span<const Value> values() const noexcept { return std::span(all).first(valueCount); }
    /// Whether it has one of its values, or a member.
    bool isFilled(const Record& property) const;
};

class PropertySlotTable {
public:
    explicit PropertySlotTable(const sdai::SchemaDefinition& schema);

    /// Null for what is neither property nor quantity.
    const PropertySlots* of(const sdai::EntityDefinition* entity) const noexcept {
        const std::uint8_t number = entity == nullptr ? 0 : _numbers[entity->position()];
        return number == 0 ? nullptr : &_slots[number - 1U];
    }

private:
    std::vector<PropertySlots> _slots;
    // By position of the entity, counted from 1.
    std::vector<std::uint8_t> _numbers;
};

/// Takes each value that is given of a slot, as it stands in the file, until `take` answers false.
template <class Take>
void eachValue(const Record& property, const PropertySlots::Value& slot, Take take) {
    const std::string_view text = property.text(slot.place);
    if (slot.isMany)
        eachMember(text, [&](std::string_view value) { return !isGiven(value) || take(value); });
    else if (isGiven(text))
        take(text);
}

} // namespace velkor
