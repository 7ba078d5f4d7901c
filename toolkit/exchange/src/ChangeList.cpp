#include "ChangeList.h"

#include <algorithm>
#include <unordered_set>

namespace velkor {

std::string_view word(Effect effect) {
    constexpr std::string_view words[] = {"converted", "rebuilt", "lost", "kept"};
    return words[static_cast<std::size_t>(effect)];
}

bool StepReport::isLossless() const {
    return lost == 0 && std::ranges::none_of(uses, [](const RuleUse& use) { return use.rule->effect == Effect::Lost; });
}

namespace exchange {

void ChangeList::noteFile(const ConversionRule& rule, std::string detail) {
    RuleUse& use = count(rule);
    if (use.first.size() < _limit) use.first.push_back({0, 0, {}, std::move(detail)});
}

RuleUse& ChangeList::count(const ConversionRule& rule) {
    RuleUse& use = _uses[rule.name];
    if (use.rule == nullptr) use.rule = &rule;
    ++use.count;
    return use;
}

void ChangeList::add(RuleUse& use, std::uint32_t number, std::string detail) {
    const std::string_view text = _file.instanceText(number);
    const std::uint64_t offset = _file.offset(number);
    use.first.push_back({_file.id(number), _file.line(offset),
                         std::string(text.substr(0, text.find_first_of("( \t\r\n/;"))), std::move(detail)});
}

std::vector<RuleUse> ChangeList::uses(std::span<const ConversionRule* const> order) const {
    std::vector<RuleUse> result;
    std::unordered_set<std::string_view> told;
    for (const ConversionRule* rule : order) {
        const auto found = _uses.find(rule->name);
        if (found == _uses.end() || !told.insert(rule->name).second) continue;
        result.push_back(found->second);
        std::ranges::stable_sort(result.back().first, {}, &Change::line);
    }
    return result;
}

} // namespace exchange
} // namespace velkor
