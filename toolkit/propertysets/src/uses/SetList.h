/// The property sets and quantity sets of a model.
#pragma once

#include "records/Record.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <vector>

namespace velkor {

/// The entity of a set, and where its attributes stand.
struct SetKind {
    const char* entity;
    /// The name of the attribute that holds its properties.
    const char* members;
    bool isQuantitySet = false;
    int namePlace = -1;
    int membersPlace = -1;

    std::string_view name(const Record& set) const;
    std::string_view membersOf(const Record& set) const;
};

struct ListedSet {
    /// In the order of the file's instances.
    std::uint32_t number;
    std::uint32_t kind;
};

/// In file order; the extended properties of materials and profiles are among them.
class SetList {
public:
    explicit SetList(const sdai::Model& model);

    std::size_t size() const noexcept { return _sets.size(); }
    std::uint32_t numberOf(std::size_t set) const noexcept { return _sets[set].number; }
    const SetKind& kindOf(std::size_t set) const noexcept { return _kinds[_sets[set].kind]; }

private:
    std::vector<SetKind> _kinds;
    std::vector<ListedSet> _sets;
};

} // namespace velkor
