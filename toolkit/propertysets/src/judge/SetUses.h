/// Which objects of a model each property set and quantity set is attached to: those that a relationship defines
/// by it, the types that hold it, and the material or profile that it belongs to.
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

/// Objects, of which the first is shown.
struct SetUse {
    DXSdaiAppInstance* first = nullptr;
    std::uint64_t count = 0;

    void add(const SetUse& more) noexcept {
        if (first == nullptr) first = more.first;
        count += more.count;
    }
};

/// Instances of the model stay valid as long as it is open. Time and memory are in proportion to the text of the
/// model's relationships, however many sets and objects one of them brings together.
class SetUses {
public:
    using Objects = std::span<DXSdaiAppInstance* const>;

    explicit SetUses(const sdai::Model& model);

    /// Numbers of the groups of objects that a set is attached to, in the order of the file's types and relationships.
    std::span<const std::uint32_t> groupsOf(const DXSdaiAppInstance* set) const;
    /// Objects that have the same sets from the same place, in the order of the file. None is without any.
    Objects group(std::uint32_t number) const;
    /// Of all groups together.
    std::size_t objectCount() const noexcept { return _objects.size(); }
    /// All objects of a set.
    SetUse totalOf(const DXSdaiAppInstance* set) const;

    /// Null when an object has none.
    DXSdaiAppInstance* typeOf(const DXSdaiAppInstance* object) const;
    ObjectKind kindOf(const DXSdaiAppInstance* object) const;
    /// Objects of a type, one of each entity.
    Objects occurrencesOf(const DXSdaiAppInstance* type) const;

private:
    void addTypes(const sdai::Model& model);
    void addTypeObjects(const sdai::Model& model);
    void addRelationship(const DXSdaiAppInstance& relationship);
    void addOwned(const sdai::Model& model, const char* entity, const char* owner);
    // Of the objects that have been put behind those of the last one.
    std::uint32_t addGroup();

    // Of all groups, one behind the other, and where each of them ends.
    std::vector<DXSdaiAppInstance*> _objects;
    std::vector<std::size_t> _ends;
    // By set.
    std::unordered_map<const DXSdaiAppInstance*, std::vector<std::uint32_t>> _groupsOf;
    // By object.
    std::unordered_map<const DXSdaiAppInstance*, DXSdaiAppInstance*> _types;
    // By type.
    std::unordered_map<const DXSdaiAppInstance*, std::vector<DXSdaiAppInstance*>> _occurrences;
};

} // namespace velkor
