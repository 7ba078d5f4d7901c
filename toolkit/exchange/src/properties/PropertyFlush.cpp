// What a mover has decided, as edits.

#include "identifiers/RootList.h"
#include "PropertyMover.h"
#include "RecordBuilder.h"
#include "RecordText.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

std::string references(const std::vector<std::uint64_t>& ids) {
    std::vector<std::string> members;
    members.reserve(ids.size());
    for (const std::uint64_t id : ids) members.push_back(reference(id));
    return listOf(members);
}

} // namespace

void PropertyMover::flush() {
    for (State& state : _states) {
        if (!state.isChanged && !state.isDropped) continue;
        if (state.isNew) {
            flushNew(state);
        } else if (state.isDropped) {
            if (_edit.drop(_model.file().id(state.number))) _dropped.insert(state.number);
        } else {
            if (state.name != textOf(parameterOf(_model, state.number, "NAME")))
                setAttribute(state.number, "NAME", literal(state.name));
            setAttribute(state.number, memberAttribute(*_model.entityAt(state.number)), references(state.members));
        }
    }
    flushRelationships();
    flushTypes();
    for (const std::uint32_t number : _dropped) _edited.erase(number);
}

std::string PropertyMover::newIdentifier(const std::string& text) {
    if (_taken.empty()) {
        RootList roots(_model);
        for (std::uint32_t place = 0; place < roots.size(); ++place) _taken.emplace(roots.before(place));
    }
    std::string identifier =
        _derived.next(text, [&](const std::string& candidate) { return !_taken.contains(candidate); });
    _taken.insert(identifier);
    return identifier;
}

void PropertyMover::flushNew(State& state) {
    const auto carried = [this](RecordBuilder& record, std::uint32_t from, std::string_view attribute) {
        const std::string_view value = parameterOf(_model, from, attribute);
        if (!value.empty()) record.set(attribute, std::string(value));
    };
    const std::string origin = textOf(parameterOf(_model, state.number, "GLOBALID")) + '\n' + state.name;
    RecordBuilder set(_schema, state.isQuantities ? "IFCELEMENTQUANTITY" : "IFCPROPERTYSET");
    set.set("GLOBALID", literal(newIdentifier("set\n" + origin)));
    carried(set, state.number, "OWNERHISTORY");
    set.set("NAME", literal(state.name));
    set.set(memberAttribute(set.entity()), references(state.members));
    carried(set, state.number, "METHODOFMEASUREMENT");
    state.id = addRecord(set.text());
    for (const std::uint32_t type : state.types) _joiningTypes[type].push_back(&state);
    if (state.objects.empty()) return;
    std::vector<std::uint64_t> objects;
    for (const std::uint32_t object : state.objects) objects.push_back(_model.file().id(object));
    RecordBuilder relationship(_schema, "IFCRELDEFINESBYPROPERTIES");
    relationship.set("GLOBALID", literal(newIdentifier("relationship\n" + origin)));
    carried(relationship, state.relationship, "OWNERHISTORY");
    relationship.set("RELATEDOBJECTS", references(objects));
    relationship.set("RELATINGPROPERTYDEFINITION", reference(state.id));
    addRecord(relationship.text());
}

void PropertyMover::flushRelationships() {
    for (const auto& [position, leaving] : _leaving) {
        const SetRelationship& relationship = _holders.relationships()[position];
        if (_droppedRelationships.contains(position)) continue;
        std::vector<std::uint64_t> staying;
        eachNumber(_model.file(), parameterOf(_model, relationship.number, "RELATEDOBJECTS"),
                   [&, &gone = leaving](std::uint32_t object) {
                       if (!gone.contains(object)) staying.push_back(_model.file().id(object));
                   });
        if (staying.empty())
            _droppedRelationships.insert(position);
        else
            setAttribute(relationship.number, "RELATEDOBJECTS", references(staying));
    }
    for (const std::uint32_t position : _droppedRelationships) {
        const std::uint32_t number = _holders.relationships()[position].number;
        if (_edit.drop(_model.file().id(number))) _dropped.insert(number);
    }
}

void PropertyMover::flushTypes() {
    std::set<std::uint32_t> types;
    for (const auto& [type, sets] : _leavingTypes) types.insert(type);
    for (const auto& [type, sets] : _joiningTypes) types.insert(type);
    for (const std::uint32_t type : types) {
        std::vector<std::uint32_t>& leaving = _leavingTypes[type];
        std::ranges::sort(leaving);
        std::vector<std::uint64_t> sets;
        eachNumber(_model.file(), parameterOf(_model, type, "HASPROPERTYSETS"), [&](std::uint32_t set) {
            if (!std::ranges::binary_search(leaving, set)) sets.push_back(_model.file().id(set));
        });
        for (const State* state : _joiningTypes[type]) sets.push_back(state->id);
        setAttribute(type, "HASPROPERTYSETS", sets.empty() ? std::string("$") : references(sets));
    }
}

} // namespace velkor::exchange
