#include "PropertyMover.h"

#include "identifiers/RootList.h"
#include "PropertyQuantity.h"
#include "PropertyRules.h"
#include "RecordBuilder.h"
#include "RecordText.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

/// What the names of quantity sets of the standard begin with.
constexpr std::string_view quantityPrefix = "Qto_";

std::uint64_t key(std::uint32_t object, std::uint32_t name) {
    return std::uint64_t{object} << 32U | name;
}

std::string full(const std::string& set, const std::string& property) {
    return text::quotedBeginning(set + '.' + property, 128);
}

} // namespace

bool TargetGroup::isUnchanged() const {
    return std::ranges::all_of(targets, [](const Target* target) { return target == nullptr; });
}

std::vector<std::uint32_t> TargetGroup::owners() const {
    std::vector<std::uint32_t> result = types;
    for (const auto& [relationship, members] : objects) result.insert(result.end(), members.begin(), members.end());
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

PropertyMover::PropertyMover(const sdai::Model& model, SetHolders& holders, sdai::Part21Edit& edit, ChangeList& changes)
    : _model(model), _schema(model.schema()), _holders(holders), _edit(edit), _changes(changes) {}

void PropertyMover::expect(const std::set<std::string>& targetSets) {
    for (const std::string& name : targetSets)
        _nameNumbers.try_emplace(name, static_cast<std::uint32_t>(_nameNumbers.size()));
    for (const std::string_view entity : {"IFCPROPERTYSET", "IFCELEMENTQUANTITY"}) {
        for (const std::uint32_t set : _model.numbersOf(entity))
            if (_model.entityAt(set) != nullptr && targetSets.contains(textOf(parameterOf(_model, set, "NAME"))))
                enter(state(set));
    }
}

void PropertyMover::enter(State& state) {
    const auto name = _nameNumbers.find(state.name);
    if (name == _nameNumbers.end()) return;
    for (const std::uint32_t owner : state.owners) _setsOf.insert_or_assign(key(owner, name->second), &state);
}

PropertyMover::State& PropertyMover::state(std::uint32_t set) {
    State*& known = _stateOf[set];
    if (known != nullptr) return *known;
    known = &_states.emplace_back();
    known->number = set;
    known->name = textOf(parameterOf(_model, set, "NAME"));
    known->isQuantities = isQuantitySet(*_model.entityAt(set));
    eachNumber(_model.file(), parameterOf(_model, set, memberAttribute(*_model.entityAt(set))),
               [&](std::uint32_t member) {
                   known->members.push_back(_model.file().id(member));
                   known->names.insert(textOf(parameterOf(_model, member, "NAME")));
               });
    if (const SetUse* use = _holders.use(set)) {
        TargetGroup all;
        all.types = use->types;
        for (const std::uint32_t position : use->relationships)
            all.objects.emplace_back(position, _holders.relationships()[position].objects);
        known->owners = all.owners();
    }
    return *known;
}

bool PropertyMover::isSound(std::uint32_t number) const {
    const std::uint64_t id = _model.file().id(number);
    return _model.entityAt(number) != nullptr && _model.file().find(id) == number && _edit.record(id).has_value();
}

bool PropertyMover::isMovable(const PropertySet& set, const std::vector<TargetGroup>& groups) {
    if (!isSound(set.number)) return false;
    for (const SetMember& member : set.members)
        if (!isSound(member.number)) return false;
    for (const TargetGroup& group : groups) {
        for (const std::uint32_t type : group.types)
            if (!isSound(type)) return false;
        for (const auto& [position, objects] : group.objects) {
            const SetRelationship& relationship = _holders.relationships()[position];
            if (!isSound(relationship.number)) return false;
            // Others of its sets are all its objects'.
            if (groups.size() > 1 && (relationship.sets.size() > 1 || _holders.isReferredTo(relationship.number)))
                return false;
        }
    }
    return true;
}

bool PropertyMover::isDroppable(const PropertySet& set) {
    if (_holders.isReferredTo(set.number)) return false;
    const SetUse* use = _holders.use(set.number);
    return use == nullptr || std::ranges::all_of(use->relationships, [&](std::uint32_t position) {
               const SetRelationship& relationship = _holders.relationships()[position];
               return relationship.sets.size() == 1 && !_holders.isReferredTo(relationship.number);
           });
}

void PropertyMover::move(const PropertySet& set, std::vector<TargetGroup>& groups) {
    if (!isMovable(set, groups)) {
        for (const TargetGroup& group : groups) {
            std::vector<std::size_t> moving;
            for (std::size_t i = 0; i < set.members.size(); ++i)
                if (group.targets[i] != nullptr) moving.push_back(i);
            refuse(set, moving, group);
        }
        return;
    }
    if (groups.size() == 1) return change(set, groups.front(), true);
    auto staying = std::ranges::find_if(groups, &TargetGroup::isUnchanged);
    if (staying == groups.end()) staying = groups.begin();
    std::string detail = text::quotedBeginning(set.name, 64);
    detail += " for " + text::counted(groups.size(), "kind", "kinds") + " of objects";
    _changes.note(setSplit, set.number, [&] { return detail; });
    for (const TargetGroup& group : groups)
        if (&group != &*staying) split(set, group);
    state(set.number).owners = staying->owners();
    change(set, *staying, false);
}

std::vector<PropertyMover::Part> PropertyMover::partsOf(const PropertySet& set, const TargetGroup& group) {
    std::vector<Part> parts;
    std::map<std::string, std::size_t> places;
    for (std::size_t i = 0; i < set.members.size(); ++i) {
        const Target* target = group.targets[i];
        if (target == nullptr || target->set == set.name) continue;
        const auto [place, isNew] = places.try_emplace(target->set, parts.size());
        if (isNew) parts.push_back({target->set, {}});
        parts[place->second].members.push_back(i);
    }
    for (Part& part : parts) settle(part, set, group);
    return parts;
}

void PropertyMover::settle(Part& part, const PropertySet& set, const TargetGroup& group) {
    bool isFree = false;
    part.to = existing(group.owners(), part.name, isFree);
    part.isQuantities =
        part.to != nullptr ? part.to->isQuantities : set.isQuantities || part.name.starts_with(quantityPrefix);
    const bool isTaken = part.to != nullptr || isFree;
    std::unordered_set<std::string> names;
    std::vector<std::size_t> taken;
    for (const std::size_t i : part.members) {
        const std::string& name = group.targets[i]->property;
        const bool isKind = set.isQuantities == part.isQuantities ||
                            (part.isQuantities && !quantityOf(_model, _schema, set.members[i].number, name).empty());
        const bool isNew = (part.to == nullptr || !part.to->names.contains(name)) && isTaken && isKind;
        (isNew && names.insert(name).second ? taken : part.refused).push_back(i);
    }
    part.members = std::move(taken);
}

PropertyMover::State* PropertyMover::existing(const std::vector<std::uint32_t>& owners, const std::string& name,
                                              bool& isFree) {
    const auto number = _nameNumbers.find(name);
    isFree = true;
    if (number == _nameNumbers.end()) return nullptr;
    State* common = nullptr;
    std::size_t count = 0;
    for (const std::uint32_t owner : owners) {
        const auto found = _setsOf.find(key(owner, number->second));
        if (found == _setsOf.end() || found->second->isDropped || found->second->name != name) continue;
        isFree = false;
        if (common != nullptr && common != found->second) return nullptr;
        common = found->second;
        ++count;
    }
    if (common == nullptr || count != owners.size() || common->owners.size() != count) return nullptr;
    return common->isNew || isSound(common->number) ? common : nullptr;
}

PropertyMover::Part* PropertyMover::renamingPart(const PropertySet& set, std::vector<Part>& parts, const State& own) {
    std::size_t leaving = 0;
    for (const Part& part : parts) leaving += part.members.size();
    // What others gave it stays under its name.
    if (leaving == 0 || leaving < own.members.size()) return nullptr;
    const auto found = std::ranges::find_if(parts, [&](const Part& part) {
        return !part.members.empty() && part.to == nullptr && part.isQuantities == set.isQuantities;
    });
    if (found != parts.end()) return &*found;
    if (!isDroppable(set)) std::swap(parts.back().refused, parts.back().members);
    return nullptr;
}

void PropertyMover::release(const PropertySet& set, const std::vector<Part>& parts, State& own) {
    std::unordered_set<std::size_t> leaving;
    for (const Part& part : parts) leaving.insert(part.members.begin(), part.members.end());
    if (leaving.empty()) return;
    own.isChanged = true;
    // The set's own come first, in their order.
    std::vector<std::uint64_t> staying;
    for (std::size_t i = 0; i < own.members.size(); ++i) {
        if (!leaving.contains(i))
            staying.push_back(own.members[i]);
        else
            own.names.erase(set.members[i].name);
    }
    own.members = std::move(staying);
}

void PropertyMover::renameWithin(const PropertySet& set, const TargetGroup& group, State& own, bool mayEdit) {
    for (std::size_t i = 0; i < set.members.size(); ++i) {
        const Target* target = group.targets[i];
        if (target == nullptr || target->set != set.name) continue;
        if (!own.names.insert(target->property).second) {
            refuse(set, {i}, group);
            continue;
        }
        own.names.erase(set.members[i].name);
        const std::uint64_t id = named(set.members[i].number, target->property, mayEdit);
        note(set, i, *target);
        const std::uint64_t before = _model.file().id(set.members[i].number);
        if (id == before) continue;
        std::ranges::replace(own.members, before, id);
        own.isChanged = true;
    }
}

void PropertyMover::change(const PropertySet& set, const TargetGroup& group, bool isWhole) {
    State& own = state(set.number);
    std::vector<Part> parts = partsOf(set, group);
    const Part* renaming = renamingPart(set, parts, own);
    release(set, parts, own);
    renameWithin(set, group, own, isWhole);
    if (renaming != nullptr) {
        own.name = renaming->name;
        enter(own);
        _changes.note(setRenamed, set.number, [&] {
            return text::quotedBeginning(set.name, 64) + " becomes " + text::quotedBeginning(own.name, 64);
        });
    }
    for (const Part& part : parts) {
        refuse(set, part.refused, group);
        if (part.members.empty()) continue;
        State& to = &part == renaming ? own : part.to != nullptr ? *part.to : add(set, part, group);
        for (const std::size_t i : part.members) give(to, set, i, group, isWhole);
    }
    if (own.members.empty() && !set.members.empty()) drop(set, own);
}

void PropertyMover::split(const PropertySet& set, const TargetGroup& group) {
    Part own{set.name, {}};
    own.isQuantities = set.isQuantities;
    for (Part& part : partsOf(set, group)) {
        refuse(set, part.refused, group);
        own.members.insert(own.members.end(), part.refused.begin(), part.refused.end());
        if (part.members.empty()) continue;
        State& to = part.to != nullptr ? *part.to : add(set, part, group);
        for (const std::size_t i : part.members) give(to, set, i, group, false);
    }
    for (std::size_t i = 0; i < set.members.size(); ++i)
        if (group.targets[i] == nullptr || group.targets[i]->set == set.name) own.members.push_back(i);
    std::ranges::sort(own.members);
    if (!own.members.empty()) {
        State& copy = add(set, own, group);
        for (const std::size_t i : own.members) give(copy, set, i, group, false);
    }
    for (const auto& [position, objects] : group.objects) _leaving[position].insert(objects.begin(), objects.end());
    for (const std::uint32_t type : group.types) _leavingTypes[type].push_back(set.number);
}

PropertyMover::State& PropertyMover::add(const PropertySet& like, const Part& part, const TargetGroup& group) {
    State& added = _states.emplace_back();
    added.number = like.number;
    added.isNew = true;
    added.isQuantities = part.isQuantities;
    added.name = part.name;
    added.owners = group.owners();
    added.types = group.types;
    if (!group.objects.empty()) added.relationship = _holders.relationships()[group.objects.front().first].number;
    TargetGroup others;
    others.objects = group.objects;
    added.objects = others.owners();
    enter(added);
    _changes.note(setAdded, like.number, [&] {
        return text::quotedBeginning(part.name, 64) + " for what " + text::quotedBeginning(like.name, 64) + " had";
    });
    return added;
}

void PropertyMover::drop(const PropertySet& set, State& state) {
    state.isDropped = true;
    _changes.note(setEmptied, set.number, [&] { return text::quotedBeginning(set.name, 64); });
    const SetUse* use = _holders.use(set.number);
    if (use == nullptr) return;
    _droppedRelationships.insert(use->relationships.begin(), use->relationships.end());
    for (const std::uint32_t type : use->types) _leavingTypes[type].push_back(set.number);
}

void PropertyMover::give(State& to, const PropertySet& set, std::size_t member, const TargetGroup& group,
                         bool mayEdit) {
    const SetMember& property = set.members[member];
    const Target* target = group.targets[member];
    const bool isMeant = target != nullptr && target->set == to.name;
    const std::string& name = isMeant ? target->property : property.name;
    const bool isQuantity = to.isQuantities && !set.isQuantities;
    to.members.push_back(isQuantity ? quantified(property.number, name, mayEdit)
                                    : named(property.number, name, mayEdit));
    to.names.insert(name);
    to.isChanged = true;
    if (isMeant) note(set, member, *target);
}

std::uint64_t PropertyMover::addRecord(const std::string& record) {
    const auto id = _edit.add(record);
    if (id) ++_added;
    return id.value_or(0);
}

std::uint64_t PropertyMover::quantified(std::uint32_t member, const std::string& name, bool mayEdit) {
    const std::uint64_t id = _model.file().id(member);
    const std::string record = quantityOf(_model, _schema, member, name);
    _changes.note(valueToQuantity, member, [&] { return text::quotedBeginning(name, 64); });
    if (!mayEdit || _holders.isShared(member)) return addRecord(record);
    if (_edit.replace(id, record)) _edited.insert(member);
    return id;
}

std::uint64_t PropertyMover::named(std::uint32_t member, const std::string& name, bool mayEdit) {
    const std::uint64_t id = _model.file().id(member);
    if (textOf(parameterOf(_model, member, "NAME")) == name) return id;
    if (mayEdit && !_holders.isShared(member)) {
        setAttribute(member, "NAME", literal(name));
        return id;
    }
    const auto [copy, isNew] = _copies.try_emplace({member, name}, 0);
    if (!isNew) return copy->second;
    const auto record = _edit.record(id);
    if (!record) return id;
    const int position = _model.entityAt(member)->attributeIndex("NAME");
    const std::string_view old = parameterOf(_model.file().instanceText(member), static_cast<std::size_t>(position));
    const std::string_view statement = _model.file().instanceText(member);
    const auto begin = static_cast<std::size_t>(old.data() - statement.data());
    std::string text(record->substr(0, begin));
    (text += literal(name)) += record->substr(begin + old.size());
    return copy->second = addRecord(text);
}

void PropertyMover::refuse(const PropertySet& set, const std::vector<std::size_t>& members, const TargetGroup& group) {
    for (const std::size_t i : members) {
        const Target& target = *group.targets[i];
        _changes.note(mappingRefused, set.members[i].number, [&] {
            return full(set.name, set.members[i].name) + " is not made " + full(target.set, target.property);
        });
    }
}

void PropertyMover::note(const PropertySet& set, std::size_t member, const Target& target) {
    _changes.note(*target.rule, set.members[member].number, [&] {
        return full(set.name, set.members[member].name) + " becomes " + full(target.set, target.property);
    });
}

void PropertyMover::setAttribute(std::uint32_t number, std::string_view attribute, const std::string& value) {
    const int position = _model.entityAt(number)->attributeIndex(attribute);
    if (position < 0) return;
    if (_edit.setParameter(_model.file().id(number), static_cast<std::size_t>(position), value)) _edited.insert(number);
}

} // namespace velkor::exchange
