#include "UniqueJudge.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace velkor::rules {

namespace {

constexpr std::size_t progressStep = 1024;

} // namespace

std::vector<Repetition> repetitions(std::vector<UniqueEntry>& entries, std::span<const TextId> attributes,
                                    RuleMachine& machine, const std::function<bool()>& goesOn) {
    std::ranges::sort(entries, {}, [](const UniqueEntry& entry) { return std::pair(entry.hash, entry.number); });
    std::vector<Repetition> result;
    std::unordered_map<std::string, std::uint32_t> firsts;
    std::string key;
    std::size_t compared = 0;
    for (auto at = entries.begin(); at != entries.end();) {
        const auto group = at;
        at = std::find_if(at, entries.end(), [&](const UniqueEntry& entry) { return entry.hash != group->hash; });
        if (at - group == 1) continue;
        firsts.clear();
        for (const UniqueEntry& entry : std::span(group, at)) {
            if (++compared % progressStep == 0 && !goesOn()) return result;
            key.clear();
            if (!machine.appendKey(entry.number, attributes, key)) continue;
            const auto [first, isNew] = firsts.try_emplace(key, entry.number);
            if (!isNew) result.push_back({entry.number, first->second});
        }
    }
    return result;
}

} // namespace velkor::rules
