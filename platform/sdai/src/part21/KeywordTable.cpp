#include "KeywordTable.h"

#include "Separators.h"
#include "velkor/sdai/Part21File.h"

#include <algorithm>

namespace velkor::sdai::part21 {

namespace {

/// Longer words are no keywords of any schema; a table of them would be as large as the text.
constexpr std::size_t longestKeyword = 255;

} // namespace

std::uint16_t KeywordTable::number(std::string_view keyword, const char* spelledAt) {
    std::string upper = text::asciiUpper(keyword.substr(0, longestKeyword + 1));
    auto found = _numbers.find(upper);
    if (found == _numbers.end()) {
        if (_keywords.size() == maximumCount || upper.size() > longestKeyword) return Part21File::unlistedKeyword;
        found = _numbers.emplace(upper, static_cast<std::uint16_t>(_keywords.size())).first;
        _keywords.push_back(std::move(upper));
    }
    if (spelledAt != nullptr) {
        const Spelling spelling = spellingAt(spelledAt);
        if (spelling.length != 0 && spelling.length != recallReach) remember(spelling, found->second);
    }
    return found->second;
}

std::size_t KeywordTable::memoryUse() const noexcept {
    std::size_t bytes = _slots.capacity() * sizeof(Slot) + _keywords.capacity() * sizeof(std::string);
    // Each text is held twice, once in a node of the map.
    constexpr std::size_t node = sizeof(std::string) + 48;
    for (const std::string& keyword : _keywords) bytes += 2 * (keyword.capacity() + 1) + node;
    return bytes;
}

void KeywordTable::remember(const Spelling& spelling, std::uint16_t number) {
    if (_usedSlots * 4 >= _slots.size()) {
        if (_slots.size() == maximumSlots) return;
        growSlots();
    }
    std::size_t i = slotOf(spelling);
    for (std::size_t probe = 0; probe < longestProbe; ++probe, i = (i + 1) & (_slots.size() - 1)) {
        if (equal(_slots[i].words, spelling.words)) return;
        if (_slots[i].words[0] != 0) continue;
        _slots[i] = {spelling.words, number};
        ++_usedSlots;
        return;
    }
}

void KeywordTable::growSlots() {
    std::vector<Slot> old(_slots.size() * 2);
    old.swap(_slots);
    --_shift;
    _usedSlots = 0;
    for (const Slot& slot : old) {
        if (slot.words[0] != 0) remember({slot.words, 0}, slot.number);
    }
}

} // namespace velkor::sdai::part21
