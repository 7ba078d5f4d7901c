#include "uses/RepeatedSets.h"

#include <algorithm>

namespace velkor {

namespace {

// Files of programs take a step or a few for each object of a relationship.
constexpr std::uint64_t fewSteps = 100'000'000, stepsOfAUse = 32;

// Those with a name, by name, in the order of the file.
std::vector<std::uint32_t> sortedByName(std::span<const std::uint32_t> names) {
    std::vector<std::uint32_t> sets;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] != RepeatedSets::noName) sets.push_back(static_cast<std::uint32_t>(i));
    }
    std::ranges::stable_sort(sets, {}, [&](std::uint32_t set) { return names[set]; });
    return sets;
}

} // namespace

RepeatedSets::RepeatedSets(std::span<const std::uint32_t> names, const SetUses& uses) : _holders(uses.objectCount()) {
    std::uint64_t stepsLeft = fewSteps + stepsOfAUse * uses.useCount();
    for (const std::uint32_t set : sortedByName(names)) {
        for (const std::uint32_t group : uses.groupsOf(set)) {
            const SetUses::Objects objects = uses.group(group);
            if (objects.size() > stepsLeft) return;
            stepsLeft -= objects.size();
            for (const ObjectIndex object : objects) add(set, names[set], object);
        }
    }
    _holders = {};
}

void RepeatedSets::add(std::uint32_t set, std::uint32_t name, ObjectIndex object) {
    Holder& holder = _holders[object];
    if (holder.name != name) {
        holder = {name, set, set};
        return;
    }
    if (holder.last == set) {
        ++_more[set];
        return;
    }
    holder.last = set;
    Repeat& repeat = _repeats[set];
    if (!repeat.objects.isAny()) repeat.other = holder.first;
    repeat.objects.add({object, 1});
}

std::uint64_t RepeatedSets::more(std::size_t set) const {
    const auto more = _more.find(set);
    return more == _more.end() ? 0 : more->second;
}

const RepeatedSets::Repeat* RepeatedSets::of(std::size_t set) const {
    const auto repeat = _repeats.find(set);
    return repeat == _repeats.end() ? nullptr : &repeat->second;
}

} // namespace velkor
