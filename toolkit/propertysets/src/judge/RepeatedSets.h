/// Objects that have two sets of one name.
#pragma once

#include "judge/SetUses.h"

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
        const DXSdaiAppInstance* other = nullptr;
    };
    struct Set {
        const DXSdaiAppInstance* instance;
        /// The same for sets of the same name.
        std::uint32_t name;
    };

    /// Sets in the order of the file. Relationships that bring together thousands of sets and thousands of objects,
    /// each of them anew, can ask for more comparisons than the file has bytes: behind many times as many as there are
    /// objects, nothing more is looked for.
    RepeatedSets(std::span<const Set> sets, const SetUses& uses);

    /// Null when no object has another one.
    const Repeat* of(const DXSdaiAppInstance* set) const;

private:
    // False when there would be too much to compare.
    bool compare(std::span<const Set> alike, const SetUses& uses, std::uint64_t mostSteps);

    std::unordered_map<const DXSdaiAppInstance*, Repeat> _repeats;
    std::uint64_t _steps = 0;
};

} // namespace velkor
