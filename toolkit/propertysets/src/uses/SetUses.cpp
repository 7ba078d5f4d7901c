#include "uses/SetUses.h"

#include "records/Record.h"
#include "records/SharedText.h"

#include <algorithm>

namespace velkor {

SetUses::SetUses(const sdai::Model& model, const SetList& sets)
    : _model(model), _setIndices(model.file().instanceCount()), _objectIndices(model.file().instanceCount()) {
    for (std::size_t i = 0; i < sets.size(); ++i) _setIndices[sets.numberOf(i)] = static_cast<std::uint32_t>(i + 1);
    addTypes();
    addTypeObjects();
    addRelationships();
    addOwned("IFCMATERIALPROPERTIES", "MATERIAL");
    addOwned("IFCPROFILEPROPERTIES", "PROFILEDEFINITION");
    sortSets(sets.size());
}

void SetUses::addTypes() {
    const std::vector<std::uint32_t> relationships = _model.numbersOf("IFCRELDEFINESBYTYPE");
    if (!relationships.empty()) _types.resize(_model.file().instanceCount(), none);
    Record relationship(_model);
    for (const std::uint32_t number : relationships) {
        relationship.read(number);
        const auto type = referredNumber(_model, relationship.text("RELATINGTYPE"));
        if (!type) continue;
        std::vector<const sdai::EntityDefinition*>& entities = _entities[*type];
        eachReference(_model, relationship.text("RELATEDOBJECTS"), [&](std::uint32_t object) {
            if (_types[object] == none) _types[object] = *type;
            const sdai::EntityDefinition* entity = _model.entityAt(object);
            if (std::ranges::find(entities, entity) == entities.end()) entities.push_back(entity);
        });
    }
}

void SetUses::addTypeObjects() {
    Record type(_model);
    for (const std::uint32_t number : _model.numbersOf("IFCTYPEOBJECT")) {
        type.read(number);
        const std::string_view sets = type.text("HASPROPERTYSETS");
        if (!isGiven(sets)) continue;
        addObject(number);
        addGroup(sets);
    }
}

void SetUses::addRelationships() {
    Record relationship(_model);
    for (const std::uint32_t number : _model.numbersOf("IFCRELDEFINESBYPROPERTIES")) {
        relationship.read(number);
        const std::size_t before = _members.size();
        eachReference(_model, relationship.text("RELATEDOBJECTS"), [&](std::uint32_t object) { addObject(object); });
        // One set, or since IFC4 several at once.
        if (_members.size() > before) addGroup(relationship.text("RELATINGPROPERTYDEFINITION"));
    }
}

void SetUses::addOwned(const char* entity, const char* owner) {
    Record set(_model);
    for (const std::uint32_t number : _model.numbersOf(entity)) {
        set.read(number);
        const auto object = referredNumber(_model, set.text(owner));
        if (!object) continue;
        addObject(*object);
        addGroup({});
        addSet(number);
    }
}

void SetUses::addObject(std::uint32_t number) {
    std::uint32_t& index = _objectIndices[number];
    if (index == 0) {
        _objects.push_back({number, _types.empty() ? none : _types[number]});
        index = static_cast<std::uint32_t>(_objects.size());
    }
    _members.push_back(index - 1);
}

void SetUses::addGroup(std::string_view sets) {
    _ends.push_back(_members.size());
    eachReference(_model, sets, [&](std::uint32_t set) { addSet(set); });
}

// To the last group.
void SetUses::addSet(std::uint32_t number) {
    const std::uint32_t index = _setIndices[number];
    if (index > 0) _pairs.emplace_back(index - 1, static_cast<std::uint32_t>(_ends.size() - 1));
}

void SetUses::sortSets(std::size_t count) {
    _firstGroups.resize(count + 1);
    for (const auto& [set, group] : _pairs) ++_firstGroups[set + 1];
    for (std::size_t i = 1; i <= count; ++i) _firstGroups[i] += _firstGroups[i - 1];
    _groups.resize(_pairs.size());
    std::vector<std::size_t> places(_firstGroups.begin(), _firstGroups.end() - 1);
    for (const auto& [set, group] : _pairs) _groups[places[set]++] = group;
    _pairs = {};
    _setIndices = {};
    _objectIndices = {};
    _types = {};
}

std::span<const std::uint32_t> SetUses::groupsOf(std::size_t set) const {
    return std::span(_groups).subspan(_firstGroups[set], _firstGroups[set + 1] - _firstGroups[set]);
}

SetUses::Objects SetUses::group(std::uint32_t number) const {
    const std::size_t begin = number == 0 ? 0 : _ends[number - 1];
    return Objects(_members).subspan(begin, _ends[number] - begin);
}

SetUse SetUses::totalOf(std::size_t set) const {
    SetUse total;
    for (const std::uint32_t number : groupsOf(set)) total.add({group(number).front(), group(number).size()});
    return total;
}

ObjectKind SetUses::kindOf(ObjectIndex object) const {
    const auto& [number, type] = _objects[object];
    return {_model.entityAt(number), type == none ? nullptr : _model.entityAt(type)};
}

std::span<const sdai::EntityDefinition* const> SetUses::entitiesOf(std::uint32_t type) const {
    const auto known = _entities.find(type);
    return known == _entities.end() ? std::span<const sdai::EntityDefinition* const>() : known->second;
}

} // namespace velkor
