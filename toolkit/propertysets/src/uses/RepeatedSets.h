/// Objects that have two sets of one name.
#pragma once

#include "uses/SetUses.h"

#include <cstdint>
#include <span>
#include <unordered_map>

namespace velkor {

/// A type and its occurrence may both have one; the same set twice is none.
class RepeatedSets {
public:
    struct Repeat {
        /// What has another set of the name, one that stands before.
        SetUse objects;
        /// That of the first object.
        std::size_t other = 0;
    };

    /// By the names of sets as they are listed: the same number for the same name. Relationships that bring together
    /// thousands of sets and thousands of objects, each of them anew, can ask for more comparisons than the file has
    /// bytes: behind many times as many as there are objects, nothing more is looked for.
    RepeatedSets(std::span<const std::uint32_t> names, const SetUses& uses);
    /// Of a set that has no name.
    static constexpr std::uint32_t noName = ~std::uint32_t{0};

    /// How often an object has the same set once more.
    std::uint64_t more(std::size_t set) const;
    /// Null when no object has another one.
    const Repeat* of(std::size_t set) const;

private:
    struct Holder {
        std::uint32_t name = noName;
        // The first set of the name, and the last one that has been counted with it.
        std::uint32_t first = 0;
        std::uint32_t last = 0;
    };

    void add(std::uint32_t set, std::uint32_t name, ObjectIndex object);

    // By object.
    std::vector<Holder> _holders;
    // By set.
    std::unordered_map<std::size_t, std::uint64_t> _more;
    std::unordered_map<std::size_t, Repeat> _repeats;
};

} // namespace velkor
