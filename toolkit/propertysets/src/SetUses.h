/// Which objects of a model each property set and quantity set is attached to: those that a relationship defines
/// by it, and the types that hold it.
#pragma once

#include "velkor/sdai/Model.h"

#include <cstdint>
#include <functional>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace velkor {

/// The entity of an object and that of its type; null for what has none.
using ObjectKind = std::pair<const sdai::EntityDefinition*, const sdai::EntityDefinition*>;

struct ObjectKindHash {
    std::size_t operator()(const ObjectKind& kind) const noexcept {
        const std::hash<const void*> hash;
        return hash(kind.first) * 31 + hash(kind.second);
    }
};

/// Objects of one kind. Whatever goes for the first goes for all of them.
struct SetUse {
    DXSdaiAppInstance* first = nullptr;
    /// Type of the first; null when it has none.
    DXSdaiAppInstance* type = nullptr;
    std::uint64_t count = 0;

    ObjectKind kind() const noexcept;
};

/// Instances of the model stay valid as long as it is open. Time and memory are in proportion to the text of the
/// model's relationships, however many sets and objects one of them brings together.
class SetUses {
public:
    /// Objects that have the same sets from the same place, by kind in the order of the file.
    using Group = std::vector<SetUse>;

    explicit SetUses(const sdai::Model& model);

    /// Numbers of the groups that a set is attached to, in the order of the file's types and relationships.
    std::span<const std::uint32_t> groupsOf(const DXSdaiAppInstance* set) const;
    const Group& group(std::uint32_t number) const { return _groups[number]; }
    /// All objects of a set together, the first of them as the first.
    SetUse totalOf(const DXSdaiAppInstance* set) const;
    /// Objects of a type, one of each entity.
    std::span<DXSdaiAppInstance* const> occurrencesOf(const DXSdaiAppInstance* type) const;

private:
    void addTypes(const sdai::Model& model);
    void addRelationship(const DXSdaiAppInstance& relationship);
    std::uint32_t addGroup(Group group);

    std::vector<Group> _groups;
    // The first of each group, and how many there are in all.
    std::vector<SetUse> _totals;
    // By set.
    std::unordered_map<const DXSdaiAppInstance*, std::vector<std::uint32_t>> _groupsOf;
    // By object.
    std::unordered_map<const DXSdaiAppInstance*, DXSdaiAppInstance*> _types;
    // By type.
    std::unordered_map<const DXSdaiAppInstance*, std::vector<DXSdaiAppInstance*>> _occurrences;
};

} // namespace velkor
