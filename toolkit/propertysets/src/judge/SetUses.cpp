#include "judge/SetUses.h"

#include "judge/SharedText.h"
#include "velkor/model/RelatedInstances.h"

#include <algorithm>

namespace velkor {

SetUses::SetUses(const sdai::Model& model) {
    addTypes(model);
    addTypeObjects(model);
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYPROPERTIES"))
        addRelationship(*model.instanceAt(number));
    addOwned(model, "IFCMATERIALPROPERTIES", "MATERIAL");
    addOwned(model, "IFCPROFILEPROPERTIES", "PROFILEDEFINITION");
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
}

void SetUses::addTypeObjects(const sdai::Model& model) {
    for (const std::uint32_t number : model.numbersOf("IFCTYPEOBJECT")) {
        DXSdaiAppInstance* type = model.instanceAt(number);
        const sdai::Aggregate sets = type->GetAttr("HASPROPERTYSETS").asAggregate();
        if (sets.isNull()) continue;
        _objects.push_back(type);
        const std::uint32_t group = addGroup();
        eachInstance(sets, [&](const DXSdaiAppInstance* set) { _groupsOf[set].push_back(group); });
    }
}

void SetUses::addRelationship(const DXSdaiAppInstance& relationship) {
    const std::size_t before = _objects.size();
    eachInstance(relationship.GetAttr("RELATEDOBJECTS").asAggregate(),
                 [&](DXSdaiAppInstance* object) { _objects.push_back(object); });
    if (_objects.size() == before) return;
    const std::uint32_t group = addGroup();
    eachSet(relationship, [&](const DXSdaiAppInstance* set) { _groupsOf[set].push_back(group); });
}

void SetUses::addOwned(const sdai::Model& model, const char* entity, const char* owner) {
    for (const std::uint32_t number : model.numbersOf(entity)) {
        const DXSdaiAppInstance* set = model.instanceAt(number);
        DXSdaiAppInstance* object = referred(set->GetAttr(owner));
        if (object == nullptr) continue;
        _objects.push_back(object);
        _groupsOf[set].push_back(addGroup());
    }
}

std::uint32_t SetUses::addGroup() {
    _ends.push_back(_objects.size());
    return static_cast<std::uint32_t>(_ends.size() - 1);
}

std::span<const std::uint32_t> SetUses::groupsOf(const DXSdaiAppInstance* set) const {
    const auto groups = _groupsOf.find(set);
    return groups == _groupsOf.end() ? std::span<const std::uint32_t>() : groups->second;
}

SetUses::Objects SetUses::group(std::uint32_t number) const {
    const std::size_t begin = number == 0 ? 0 : _ends[number - 1];
    return Objects(_objects).subspan(begin, _ends[number] - begin);
}

SetUse SetUses::totalOf(const DXSdaiAppInstance* set) const {
    SetUse total;
    for (const std::uint32_t number : groupsOf(set)) total.add({group(number).front(), group(number).size()});
    return total;
}

DXSdaiAppInstance* SetUses::typeOf(const DXSdaiAppInstance* object) const {
    const auto type = _types.find(object);
    return type == _types.end() ? nullptr : type->second;
}

ObjectKind SetUses::kindOf(const DXSdaiAppInstance* object) const {
    const DXSdaiAppInstance* type = typeOf(object);
    return {object->entity(), type == nullptr ? nullptr : type->entity()};
}

SetUses::Objects SetUses::occurrencesOf(const DXSdaiAppInstance* type) const {
    const auto occurrences = _occurrences.find(type);
    return occurrences == _occurrences.end() ? Objects() : occurrences->second;
}

} // namespace velkor
