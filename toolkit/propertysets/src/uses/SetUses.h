/// Which objects of a model each property set and quantity set is attached to: those that a relationship defines
/// by it, the types that hold it, and the material or profile that it belongs to.
#pragma once

#include "uses/SetList.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
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

/// An object that has sets, counted from 0 as they are found.
using ObjectIndex = std::uint32_t;

/// Objects, of which the first is shown.
struct SetUse {
    ObjectIndex first = 0;
    std::uint64_t count = 0;

    bool isAny() const noexcept { return count > 0; }
    void add(const SetUse& more) noexcept {
        if (count == 0) first = more.first;
        count += more.count;
    }
};

/// Time and memory are in proportion to the model and the text of its relationships, however many sets and objects one
/// of them brings together.
class SetUses {
public:
    using Objects = std::span<const ObjectIndex>;

    SetUses(const sdai::Model& model, const SetList& sets);

    /// Numbers of the groups of objects that a set has, in the order of the file's types and relationships. Sets are
    /// counted as they are listed.
    std::span<const std::uint32_t> groupsOf(std::size_t set) const;
    /// Objects that have the same sets from the same place, in the order of the file. None is without any.
    Objects group(std::uint32_t number) const;
    /// All objects of a set.
    SetUse totalOf(std::size_t set) const;

    std::size_t objectCount() const noexcept { return _objects.size(); }
    /// Of all groups together.
    std::size_t useCount() const noexcept { return _members.size(); }
    /// The number of an object's instance, and that of its type's; `none` when it has no type.
    std::uint32_t numberOf(ObjectIndex object) const noexcept { return _objects[object].number; }
    std::uint32_t typeOf(ObjectIndex object) const noexcept { return _objects[object].type; }
    ObjectKind kindOf(ObjectIndex object) const;
    /// Entities of the objects of a type.
    std::span<const sdai::EntityDefinition* const> entitiesOf(std::uint32_t type) const;

    static constexpr std::uint32_t none = ~std::uint32_t{0};

private:
    struct Object {
        std::uint32_t number;
        std::uint32_t type;
    };

    void addTypes();
    void addTypeObjects();
    void addRelationships();
    void addOwned(const char* entity, const char* owner);
    void addObject(std::uint32_t number);
    // Gives the objects behind those of the last group to the sets of an attribute.
    void addGroup(std::string_view sets);
    void addSet(std::uint32_t number);
    void sortSets(std::size_t count);

    const sdai::Model& _model;
    // By the number of an instance, counted from 1: where it is listed as a set and stands among the objects.
    std::vector<std::uint32_t> _setIndices, _objectIndices;
    // By the number of an object.
    std::vector<std::uint32_t> _types;
    std::vector<Object> _objects;
    // Of all groups, one behind the other, and where each of them ends.
    std::vector<ObjectIndex> _members;
    std::vector<std::size_t> _ends;
    // Of all sets, one behind the other, and where those of each begin.
    std::vector<std::uint32_t> _groups;
    std::vector<std::size_t> _firstGroups;
    // Before that: a set and a group that it has.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> _pairs;
    // By type.
    std::unordered_map<std::uint32_t, std::vector<const sdai::EntityDefinition*>> _entities;
};

} // namespace velkor
