/// Who has which property sets and quantity sets.
#pragma once

#include "velkor/sdai/Model.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace velkor::exchange {

/// An IFCRELDEFINESBYPROPERTIES. Instances by their numbers.
struct SetRelationship {
    std::uint32_t number;
    std::vector<std::uint32_t> sets;
    std::vector<std::uint32_t> objects;
};

/// What brings a set to objects.
struct SetUse {
    /// Positions of relationships.
    std::vector<std::uint32_t> relationships;
    /// Instances of IFCTYPEOBJECT that list it.
    std::vector<std::uint32_t> types;
};

/// A member of a set.
struct SetMember {
    std::uint32_t number;
    std::string name;
};

/// Memory is in proportion to the text of the relationships.
class SetHolders {
public:
    explicit SetHolders(const sdai::Model& model);

    const std::vector<SetRelationship>& relationships() const noexcept { return _relationships; }
    /// Null for a set that nobody has, and for one that relationships of very many sets and objects bring.
    const SetUse* use(std::uint32_t set) const;
    /// How many sets a property or quantity is in; more than two count as two.
    bool isShared(std::uint32_t property) const { return _timesUsed[property] > 1; }
    /// Whether other relationships refer to an instance. The first call looks through them.
    bool isReferredTo(std::uint32_t number);

private:
    void countMembers();

    const sdai::Model& _model;
    std::vector<SetRelationship> _relationships;
    std::unordered_map<std::uint32_t, SetUse> _uses;
    std::unordered_set<std::uint32_t> _unmapped;
    std::vector<std::uint8_t> _timesUsed;
    std::vector<bool> _isReferredTo;
};

/// "HASPROPERTIES" or "QUANTITIES".
std::string_view memberAttribute(const sdai::EntityDefinition& set);
bool isQuantitySet(const sdai::EntityDefinition& set);

} // namespace velkor::exchange
