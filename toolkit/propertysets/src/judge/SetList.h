/// The property sets and quantity sets of a model.
#pragma once

#include "velkor/sdai/Model.h"

#include <cstdint>
#include <vector>

namespace velkor {

struct SetKind {
    const char* entity;
    /// Of the attribute that holds its properties.
    const char* members;
    bool isQuantitySet = false;
};

struct ListedSet {
    std::uint32_t number;
    const SetKind* kind;
};

/// In file order; the extended properties of materials and profiles are among them.
std::vector<ListedSet> setsOf(const sdai::Model& model);

} // namespace velkor
