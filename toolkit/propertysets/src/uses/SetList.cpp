#include "uses/SetList.h"

#include <algorithm>

namespace velkor {

namespace {

constexpr const char* nameAttribute = "NAME";

constexpr SetKind setKinds[] = {{"IFCPROPERTYSET", "HASPROPERTIES"},
                                {"IFCELEMENTQUANTITY", "QUANTITIES", true},
                                {"IFCEXTENDEDPROPERTIES", "PROPERTIES"},
                                {"IFCEXTENDEDMATERIALPROPERTIES", "EXTENDEDPROPERTIES"}};

} // namespace

std::string_view SetKind::name(const Record& set) const {
    return set.entity() == nullptr ? set.text(nameAttribute) : set.text(namePlace);
}

std::string_view SetKind::membersOf(const Record& set) const {
    return set.entity() == nullptr ? set.text(members) : set.text(membersPlace);
}

SetList::SetList(const sdai::Model& model) {
    for (const SetKind& setKind : setKinds) {
        const sdai::EntityDefinition* entity = model.schema().entity(setKind.entity);
        if (entity == nullptr) continue;
        SetKind& kind = _kinds.emplace_back(setKind);
        // Those of its subtypes as well.
        kind.namePlace = entity->attributeIndex(nameAttribute);
        kind.membersPlace = entity->attributeIndex(kind.members);
        const auto number = static_cast<std::uint32_t>(_kinds.size() - 1);
        for (const std::uint32_t set : model.numbersOf(kind.entity)) _sets.push_back({set, number});
    }
    std::ranges::stable_sort(_sets, {}, &ListedSet::number);
}

} // namespace velkor
