#include "properties/PropertyMapper.h"

#include "identifiers/DerivedIdentifier.h"
#include "properties/PropertyRules.h"
#include "RecordBuilder.h"
#include "RecordText.h"

#include "velkor/classification/Classification.h"
#include "velkor/sdai/Part21Encoding.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

std::string becomes(std::string_view before, std::string_view after) {
    std::string words(before);
    words += " becomes ";
    return words += after;
}

std::vector<std::uint32_t> objectsOf(const std::vector<SetMembers::User>& users) {
    std::vector<std::uint32_t> objects;
    for (const SetMembers::User& user : users) objects.push_back(user.object);
    std::ranges::sort(objects);
    objects.erase(std::unique(objects.begin(), objects.end()), objects.end());
    return objects;
}

} // namespace

PropertyMapper::PropertyMapper(const sdai::Model& model, const TypeMapping& mapping, const PropertyOptions& options,
                               sdai::Part21Edit& edit, ChangeList& changes)
    : _model(model), _mapping(mapping), _options(options), _edit(edit), _changes(changes), _schema(model.schema()),
      _sets(setsOf(model)) {
    for (const SetMembers& set : _sets) {
        for (const std::uint32_t member : set.members) ++_uses[member];
        if (!set.isOfType) _byUsers.try_emplace({set.name, objectsOf(set.users)}, set.set);
    }
}

tl::expected<bool, std::string> PropertyMapper::run() {
    classifyProducts();
    constexpr std::size_t progressStep = 1 << 10;
    for (std::size_t i = 0; i < _sets.size(); ++i) {
        if (i % progressStep == 0 && !goesOn(_options.progress, {"Mapping the properties", i, _sets.size()}))
            return false;
        if (auto done = map(_sets[i]); !done) return tl::unexpected(done.error());
    }
    return true;
}

void PropertyMapper::classifyProducts() {
    const Classification classes = classify(_model);
    for (const Classification::Product& product : classes.products)
        if (const std::string& type = classes.decisions[product.decision].plmType; !type.empty())
            _types.emplace(product.number, type);
}

PropertyMapper::Target PropertyMapper::target(std::string_view type, std::string_view set, std::string_view property) {
    const Target same{std::string(set), std::string(property)};
    if (type.empty()) return same;
    const auto [found, isNew] = _targets.try_emplace({std::string(type), same.set, same.property}, same);
    if (!isNew) return found->second;
    if (_options.customMapping) {
        const bool isExport = *_options.customMapping == MappingDirection::Export;
        if (auto mapped = _mapping.custom(type, isExport, set, property)) found->second = std::move(*mapped);
    }
    if (_options.plmAttributes && found->second == same)
        if (auto mapped = _mapping.plmAttribute(type, property)) found->second = std::move(*mapped);
    return found->second;
}

PropertyMapper::Targets PropertyMapper::targetsOf(const SetMembers& set, std::string_view type) {
    Targets targets;
    bool isSame = true;
    for (const std::uint32_t number : set.members) {
        const std::string name = textOf(parameterOf(_model, number, "NAME"));
        targets.push_back(target(type, set.name, name));
        isSame = isSame && targets.back() == Target{set.name, name};
    }
    return isSame ? Targets() : targets;
}

std::vector<PropertyMapper::Group> PropertyMapper::groupsOf(const SetMembers& set) {
    std::vector<Group> groups;
    std::map<std::string, std::size_t, std::less<>> byType;
    for (const SetMembers::User& user : set.users) {
        const auto type = _types.find(user.object);
        const std::string name = type == _types.end() ? std::string() : type->second;
        const auto [known, isNew] = byType.try_emplace(name, 0);
        if (isNew) {
            Targets targets = targetsOf(set, name);
            const auto same = std::ranges::find(groups, targets, &Group::targets);
            known->second = static_cast<std::size_t>(same - groups.begin());
            if (same == groups.end()) groups.push_back({std::move(targets), {}});
        }
        groups[known->second].users.push_back(user);
    }
    return groups;
}

PropertyMapper::Result PropertyMapper::map(const SetMembers& set) {
    const std::vector<Group> groups = groupsOf(set);
    const bool isShared = groups.size() > 1;
    for (const Group& group : groups) {
        if (group.targets.empty()) continue;
        if (auto done = move(set, group, !isShared); !done) return done;
    }
    return {};
}

PropertyMapper::Result PropertyMapper::move(const SetMembers& set, const Group& group, bool keep) {
    // The sets that the members go to, in the order in which they are met.
    std::vector<std::pair<std::string, std::vector<std::string>>> sets;
    for (std::size_t i = 0; i < set.members.size(); ++i) {
        const Target& to = group.targets[i];
        auto record = member(set.members[i], to.property, keep);
        if (!record) return tl::unexpected(record.error());
        auto place = std::ranges::find(sets, to.set, &std::pair<std::string, std::vector<std::string>>::first);
        if (place == sets.end()) place = sets.insert(sets.end(), {to.set, {}});
        place->second.push_back(std::move(*record));
    }
    if (!keep)
        if (auto done = leave(group.users); !done) return done;
    // What stays in the set, else what comes first.
    auto kept = std::ranges::find(sets, set.name, &std::pair<std::string, std::vector<std::string>>::first);
    if (kept == sets.end()) kept = sets.begin();
    for (auto at = sets.begin(); at != sets.end(); ++at) {
        const auto& [name, members] = *at;
        if (!keep || at != kept) {
            if (keep && join(group, name, set.attribute, members)) continue;
            if (auto done =
                    addSet(set, group, name, members, keep ? propertyrule::setDivided : propertyrule::setCopied);
                !done)
                return done;
            continue;
        }
        if (name != set.name && join(group, name, set.attribute, members)) {
            if (auto done = leave(group.users); !done) return done;
            if (auto done = _edit.drop(_model.file().id(set.set)); !done) return done;
            _changed.insert(set.set);
            continue;
        }
        if (auto done = this->set(set.set, set.attribute, listOf(members)); !done) return done;
        if (name == set.name) continue;
        if (auto done = this->set(set.set, "NAME", literal(name)); !done) return done;
        _changes.note(propertyrule::setRenamed, set.set, [&] { return becomes(set.name, name); });
    }
    return {};
}

tl::expected<std::string, std::string> PropertyMapper::member(std::uint32_t number, const std::string& name,
                                                              bool inPlace) {
    const std::string before = textOf(parameterOf(_model, number, "NAME"));
    const std::uint64_t id = _model.file().id(number);
    if (before == name) return reference(id);
    _changes.note(propertyrule::propertyRenamed, number, [&] { return becomes(before, name); });
    if (inPlace && _uses[number] == 1) {
        if (auto done = set(number, "NAME", literal(name)); !done) return tl::unexpected(done.error());
        return reference(id);
    }
    const auto record = _edit.record(id);
    if (!record) return tl::unexpected(record.error());
    const auto copy = _edit.add(std::string(*record));
    if (!copy) return tl::unexpected(copy.error());
    ++_added;
    const int place = _model.entityAt(number)->attributeIndex("NAME");
    if (auto done = _edit.setParameter(*copy, static_cast<std::size_t>(place), literal(name)); !done)
        return tl::unexpected(done.error());
    return reference(*copy);
}

bool PropertyMapper::join(const Group& group, const std::string& name, std::string_view attribute,
                          const std::vector<std::string>& members) {
    const auto found = _byUsers.find({name, objectsOf(group.users)});
    if (found == _byUsers.end()) return false;
    const std::uint32_t other = found->second;
    const sdai::EntityDefinition* entity = _model.entityAt(other);
    const int place = entity->attributeIndex(attribute);
    const auto record = _edit.record(_model.file().id(other));
    if (place < 0 || !record) return false;
    std::vector<std::string> all;
    eachReference(parameterOf(*record, static_cast<std::size_t>(place)),
                  [&](std::uint64_t id) { all.push_back(reference(id)); });
    all.insert(all.end(), members.begin(), members.end());
    if (!set(other, attribute, listOf(all))) return false;
    _changes.note(propertyrule::setJoined, other, [&] { return name; });
    return true;
}

PropertyMapper::Result PropertyMapper::addSet(const SetMembers& set, const Group& group, const std::string& name,
                                              const std::vector<std::string>& members, const ConversionRule& rule) {
    const sdai::EntityDefinition& entity = *_model.entityAt(set.set);
    const std::string history(parameterOf(_model, set.set, "OWNERHISTORY"));
    std::string text(textOf(parameterOf(_model, set.set, "GLOBALID")));
    text.append(" ").append(name).append(" ").append(reference(_model.file().id(group.users.front().object)));
    RecordBuilder record(_schema, entity);
    record.set("GLOBALID", literal(derivedIdentifier(text)));
    record.set("OWNERHISTORY", history);
    record.set("NAME", literal(name));
    record.set(set.attribute, listOf(members));
    const auto id = _edit.add(record.text());
    if (!id) return tl::unexpected(id.error());
    RecordBuilder relationship(_schema, "IFCRELDEFINESBYPROPERTIES");
    relationship.set("GLOBALID", literal(derivedIdentifier(text += " IFCRELDEFINESBYPROPERTIES")));
    relationship.set("OWNERHISTORY", history);
    std::vector<std::string> objects;
    for (const std::uint32_t object : objectsOf(group.users)) objects.push_back(reference(_model.file().id(object)));
    relationship.set("RELATEDOBJECTS", listOf(objects));
    relationship.set("RELATINGPROPERTYDEFINITION", reference(*id));
    if (const auto added = _edit.add(relationship.text()); !added) return tl::unexpected(added.error());
    _added += 2;
    _changes.note(rule, set.set, [&] { return name; });
    return {};
}

PropertyMapper::Result PropertyMapper::leave(const std::vector<SetMembers::User>& users) {
    std::map<std::uint32_t, std::unordered_set<std::uint64_t>> leaving;
    for (const SetMembers::User& user : users) leaving[user.by].insert(_model.file().id(user.object));
    for (const auto& [relationship, objects] : leaving) {
        const std::uint64_t id = _model.file().id(relationship);
        const auto record = _edit.record(id);
        if (!record) return tl::unexpected(record.error());
        const int place = _model.entityAt(relationship)->attributeIndex("RELATEDOBJECTS");
        std::vector<std::string> left;
        eachReference(parameterOf(*record, static_cast<std::size_t>(place)), [&](std::uint64_t object) {
            if (!objects.contains(object)) left.push_back(reference(object));
        });
        _changed.insert(relationship);
        const auto done = left.empty() ? _edit.drop(id) : this->set(relationship, "RELATEDOBJECTS", listOf(left));
        if (!done) return tl::unexpected(done.error());
    }
    return {};
}

PropertyMapper::Result PropertyMapper::set(std::uint32_t number, std::string_view attribute, std::string_view encoded) {
    _changed.insert(number);
    const int place = _model.entityAt(number)->attributeIndex(attribute);
    return _edit.setParameter(_model.file().id(number), static_cast<std::size_t>(place), encoded);
}

} // namespace velkor::exchange
