#include "RuleSelection.h"

namespace velkor::rules {

const char* codeOf(RuleKind kind) noexcept {
    switch (kind) {
    case RuleKind::Where:
    case RuleKind::Type:
        return whereCode;
    case RuleKind::Global:
        return globalCode;
    case RuleKind::Unique:
        return uniqueCode;
    case RuleKind::Inverse:
        return inverseCode;
    }
    return "";
}

namespace {

bool hasCode(RuleKind kind) noexcept {
    return kind != RuleKind::Unique && kind != RuleKind::Inverse;
}

} // namespace

RuleSelection::RuleSelection(const RuleStore& store, const RuleTables& tables, const RuleCheckOptions& options) {
    std::vector<RulePlace> places;
    for (const std::string& name : options.rules) {
        const auto named = placesNamed(store, tables, name);
        places.insert(places.end(), named.begin(), named.end());
    }
    const auto all = allPlaces(tables);
    for (const RulePlace place : all) _taken[static_cast<std::size_t>(place.kind)].push_back(false);
    if (options.rules.empty()) places = all;
    for (const RulePlace place : places) {
        const bool counts =
            options.codes.takes(codeOf(place.kind)) || (hasCode(place.kind) && options.codes.takes(notDecidedCode));
        auto&& taken = _taken[static_cast<std::size_t>(place.kind)][place.index];
        if (!counts || taken) continue;
        taken = true;
        ++_count;
    }
    _takesMembers = options.rules.empty() && options.codes.takes(elementCode);
}

std::vector<std::uint16_t> RuleSelection::taken(RuleKind kind, std::span<const std::uint16_t> indexes) const {
    std::vector<std::uint16_t> result;
    for (const std::uint16_t index : indexes) {
        if (takes(kind, index)) result.push_back(index);
    }
    return result;
}

} // namespace velkor::rules
