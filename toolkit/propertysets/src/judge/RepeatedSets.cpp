#include "judge/RepeatedSets.h"

#include <algorithm>
#include <vector>

namespace velkor {

namespace {

// Files of programs take a step or a few for each object of a relationship.
constexpr std::uint64_t fewSteps = 10'000'000, stepsOfAnObject = 32;

} // namespace

RepeatedSets::RepeatedSets(std::span<const Set> sets, const SetUses& uses) {
    const std::uint64_t mostSteps = fewSteps + stepsOfAnObject * uses.objectCount();
    std::vector<Set> byName(sets.begin(), sets.end());
    std::ranges::stable_sort(byName, {}, &Set::name);
    for (auto begin = byName.begin(); begin != byName.end();) {
        const auto end = std::find_if(begin, byName.end(), [&](const Set& set) { return set.name != begin->name; });
        if (end - begin > 1 && !compare({begin, end}, uses, mostSteps)) return;
        begin = end;
    }
}

bool RepeatedSets::compare(std::span<const Set> alike, const SetUses& uses, std::uint64_t mostSteps) {
    // By object: the first set, and the last one that has been counted with it.
    struct Holder {
        const DXSdaiAppInstance* first;
        const DXSdaiAppInstance* last;
    };
    std::unordered_map<const DXSdaiAppInstance*, Holder> holders;
    for (const Set& set : alike) {
        for (const std::uint32_t group : uses.groupsOf(set.instance)) {
            const SetUses::Objects objects = uses.group(group);
            _steps += objects.size();
            if (_steps > mostSteps) return false;
            for (DXSdaiAppInstance* object : objects) {
                const auto [holder, isNew] = holders.try_emplace(object, Holder{set.instance, set.instance});
                if (isNew || holder->second.last == set.instance) continue;
                Repeat& repeat = _repeats[set.instance];
                if (repeat.other == nullptr) repeat.other = holder->second.first;
                repeat.objects.add({object, 1});
                holder->second.last = set.instance;
            }
        }
    }
    return true;
}

const RepeatedSets::Repeat* RepeatedSets::of(const DXSdaiAppInstance* set) const {
    const auto repeat = _repeats.find(set);
    return repeat == _repeats.end() ? nullptr : &repeat->second;
}

} // namespace velkor
