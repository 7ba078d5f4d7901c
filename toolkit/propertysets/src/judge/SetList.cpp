#include "judge/SetList.h"

#include <algorithm>

namespace velkor {

namespace {

constexpr SetKind kinds[] = {{"IFCPROPERTYSET", "HASPROPERTIES"},
                             {"IFCELEMENTQUANTITY", "QUANTITIES", true},
                             {"IFCEXTENDEDPROPERTIES", "PROPERTIES"},
                             {"IFCEXTENDEDMATERIALPROPERTIES", "EXTENDEDPROPERTIES"}};

} // namespace

std::vector<ListedSet> setsOf(const sdai::Model& model) {
    std::vector<ListedSet> sets;
    for (const SetKind& kind : kinds) {
        for (const std::uint32_t number : model.numbersOf(kind.entity)) sets.push_back({number, &kind});
    }
    std::ranges::stable_sort(sets, {}, &ListedSet::number);
    return sets;
}

} // namespace velkor
