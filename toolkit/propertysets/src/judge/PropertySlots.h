/// Where instances of each kind of property and quantity have what counts here.
#pragma once

#include "velkor/propertysets/SetDefinition.h"
#include "velkor/sdai/DXSdaiAppInstance.h"

#include <array>
#include <cstdint>
#include <optional>
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
    };

    /// None for a quantity that is made of others.
    std::optional<PropertyKind> kind;
    int name = -1;
    std::array<Value, 3> values = {};
    /// The enumeration that enumerated values are said to be of.
    int enumeration = -1;
    /// The properties or quantities that it is made of.
    int members = -1;

    /// Whether it has one of its values, or a member.
    bool isFilled(const DXSdaiAppInstance& property) const;
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

} // namespace velkor
