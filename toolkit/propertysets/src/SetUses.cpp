#include "SetUses.h"

#include "velkor/model/RelatedInstances.h"

#include <algorithm>

namespace velkor {

ObjectKind SetUse::kind() const noexcept {
    return {first == nullptr ? nullptr : first->entity(), type == nullptr ? nullptr : type->entity()};
}

SetUses::SetUses(const sdai::Model& model) {
    addTypes(model);
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYPROPERTIES"))
        addRelationship(*model.instanceAt(number));
}

void SetUses::addTypes(const sdai::Model& model) {
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYTYPE")) {
        const DXSdaiAppInstance& relationship = *model.instanceAt(number);
        DXSdaiAppInstance* type = relationship.GetAttr("RELATINGTYPE").asInstance();
        if (type == nullptr) continue;
        std::vector<DXSdaiAppInstance*>& occurrences = _occurrences[type];
        eachInstance(relationship.GetAttr("RELATEDOBJECTS").asAggregate(), [&](DXSdaiAppInstance* object) {
            _types.try_emplace(object, type);
            const auto isAlike = [&](const DXSdaiAppInstance* other) { return other->entity() == object->entity(); };
            if (std::ranges::none_of(occurrences, isAlike)) occurrences.push_back(object);
        });
    }
    for (const std::uint32_t number : model.numbersOf("IFCTYPEOBJECT")) {
        DXSdaiAppInstance* type = model.instanceAt(number);
        const sdai::Aggregate sets = type->GetAttr("HASPROPERTYSETS").asAggregate();
        if (sets.isNull()) continue;
        const std::uint32_t group = addGroup({{type, nullptr, 1}});
        eachInstance(sets, [&](const DXSdaiAppInstance* set) { _groupsOf[set].push_back(group); });
    }
}

void SetUses::addRelationship(const DXSdaiAppInstance& relationship) {
    Group uses;
    std::unordered_map<ObjectKind, std::size_t, ObjectKindHash> places;
    eachInstance(relationship.GetAttr("RELATEDOBJECTS").asAggregate(), [&](DXSdaiAppInstance* object) {
        const auto type = _types.find(object);
        const SetUse use{object, type == _types.end() ? nullptr : type->second, 1};
        const auto [place, isNew] = places.try_emplace(use.kind(), uses.size());
        if (isNew)
            uses.push_back(use);
        else
            ++uses[place->second].count;
    });
    if (uses.empty()) return;
    const std::uint32_t group = addGroup(std::move(uses));
    eachSet(relationship, [&](const DXSdaiAppInstance* set) { _groupsOf[set].push_back(group); });
}

std::uint32_t SetUses::addGroup(Group group) {
    SetUse total = group.front();
    total.count = 0;
    for (const SetUse& use : group) total.count += use.count;
    _totals.push_back(total);
    _groups.push_back(std::move(group));
    return static_cast<std::uint32_t>(_groups.size() - 1);
}

std::span<const std::uint32_t> SetUses::groupsOf(const DXSdaiAppInstance* set) const {
    const auto groups = _groupsOf.find(set);
    return groups == _groupsOf.end() ? std::span<const std::uint32_t>() : groups->second;
}

SetUse SetUses::totalOf(const DXSdaiAppInstance* set) const {
    SetUse total;
    for (const std::uint32_t group : groupsOf(set)) {
        if (total.first == nullptr) total.first = _totals[group].first;
        total.count += _totals[group].count;
    }
    return total;
}

std::span<DXSdaiAppInstance* const> SetUses::occurrencesOf(const DXSdaiAppInstance* type) const {
    const auto occurrences = _occurrences.find(type);
    return occurrences == _occurrences.end() ? std::span<DXSdaiAppInstance* const>() : occurrences->second;
}

} // namespace velkor
