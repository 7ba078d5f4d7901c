#include "velkor/propertysets/SetDifference.h"

#include "TypeNames.h"
#include "velkor/propertysets/SetCatalogue.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>

namespace velkor {

namespace {

/// What the classes of a definition say, without those that another one implies.
class ClassList {
public:
    explicit ClassList(const SetDefinition& definition) {
        for (const ApplicableClass& one : definition.classes) _keys.insert(key(one.entity, one.predefinedType));
        for (const ApplicableClass& one : definition.classes) {
            const std::string_view described = describedName(one.entity);
            if (described.empty() || !_keys.contains(key(described, one.predefinedType))) _classes.push_back(&one);
        }
    }

    std::vector<const ApplicableClass*> without(const ClassList& other) const {
        std::vector<const ApplicableClass*> result;
        for (const ApplicableClass* one : _classes)
            if (!other._keys.contains(key(one->entity, one->predefinedType))) result.push_back(one);
        return result;
    }

private:
    static std::string key(std::string_view entity, std::string_view predefinedType) {
        return text::toUpper(entity).append(1, '/').append(text::toUpper(predefinedType));
    }

    std::unordered_set<std::string> _keys;
    std::vector<const ApplicableClass*> _classes;
};

std::vector<std::string_view> namesWithout(const std::vector<std::string>& names,
                                           const std::vector<std::string>& others) {
    const std::unordered_set<std::string_view> known(others.begin(), others.end());
    std::vector<std::string_view> result;
    std::ranges::copy_if(names, std::back_inserter(result),
                         [&](const std::string& name) { return !known.contains(name); });
    return result;
}

class PropertyComparison {
public:
    explicit PropertyComparison(SetDifference& difference) : _difference(difference) {}

    /// `prefix` is the name of the whole that they are members of, with a dot.
    void compare(const std::vector<PropertyDefinition>& before, const std::vector<PropertyDefinition>& after,
                 const std::string& prefix = {}) {
        const Names earlier(before), later(after);
        for (const PropertyDefinition& property : after) {
            const std::string name = prefix + property.name;
            if (const PropertyDefinition* other = earlier.find(property.name))
                compare(*other, property, name);
            else
                _difference.addedProperties.push_back({name, &property});
        }
        for (const PropertyDefinition& property : before)
            if (later.find(property.name) == nullptr)
                _difference.removedProperties.push_back({prefix + property.name, &property});
    }

private:
    /// By name, letter case ignored as the services ignore it; the first of several.
    class Names {
    public:
        explicit Names(const std::vector<PropertyDefinition>& properties) {
            for (const PropertyDefinition& property : properties)
                _byName.try_emplace(text::toUpper(property.name), &property);
        }
        const PropertyDefinition* find(std::string_view name) const {
            const auto found = _byName.find(text::toUpper(name));
            return found == _byName.end() ? nullptr : found->second;
        }

    private:
        std::unordered_map<std::string, const PropertyDefinition*> _byName;
    };

    void compare(const PropertyDefinition& before, const PropertyDefinition& after, const std::string& name) {
        SetDifference::ChangedProperty changed{name, {}, {}, {}};
        const auto note = [&](std::string_view what, std::string_view one, std::string_view other) {
            changed.changes.push_back({what, std::string(one), std::string(other)});
        };
        const auto noteType = [&](std::string_view what, const std::string& one, const std::string& other) {
            if (!text::equalIgnoringCase(one, other)) note(what, one, other);
        };
        const auto noteStated = [&](std::string_view what, const std::string& one, const std::string& other) {
            if (!one.empty() && !other.empty() && one != other) note(what, one, other);
        };
        if (before.name != after.name) note("name", before.name, after.name);
        if (before.kind != after.kind) note("kind", wordOf(before.kind), wordOf(after.kind));
        noteType("value type", before.valueType, after.valueType);
        noteType("defining type", before.definingType, after.definingType);
        noteStated("unit type", before.unitType, after.unitType);
        noteStated("unit type of defining values", before.definingUnitType, after.definingUnitType);
        noteStated("enumeration", before.enumeration, after.enumeration);
        if (before.usageName != after.usageName) note("usage name", before.usageName, after.usageName);
        changed.addedEnumerators = namesWithout(after.enumerators, before.enumerators);
        changed.removedEnumerators = namesWithout(before.enumerators, after.enumerators);
        if (!changed.changes.empty() || !changed.addedEnumerators.empty() || !changed.removedEnumerators.empty())
            _difference.changedProperties.push_back(std::move(changed));
        if (before.kind == PropertyKind::Complex && after.kind == PropertyKind::Complex)
            compare(before.members, after.members, name + '.');
    }

    SetDifference& _difference;
};

/// Whether the type forbids something.
bool isHeldTo(TemplateType type) {
    return type != TemplateType::Unspecified && type != TemplateType::TypeDrivenOverride;
}

std::vector<const SetDefinition*> onlyIn(const SetCatalogue& catalogue, const SetCatalogue& other) {
    std::vector<const SetDefinition*> result;
    for (const std::string_view name : catalogue.names()) {
        if (other.contains(name)) continue;
        if (const SetDefinition* set = catalogue.find(name)) result.push_back(set);
    }
    return result;
}

} // namespace

SetDifference compareSets(const SetDefinition& before, const SetDefinition& after) {
    SetDifference difference;
    difference.name = after.name;
    const auto note = [&](std::string_view what, std::string_view one, std::string_view other) {
        if (one != other) difference.changes.push_back({what, std::string(one), std::string(other)});
    };
    note("kind", kindOf(before), kindOf(after));
    if (isHeldTo(before.templateType) || isHeldTo(after.templateType))
        note("template type", wordOf(before.templateType), wordOf(after.templateType));
    const ClassList earlier(before), later(after);
    difference.addedClasses = later.without(earlier);
    difference.removedClasses = earlier.without(later);
    difference.addedMethods = namesWithout(after.methods, before.methods);
    difference.removedMethods = namesWithout(before.methods, after.methods);
    PropertyComparison(difference).compare(before.properties, after.properties);
    return difference;
}

CatalogueDifference compareCatalogues(const SetCatalogue& before, const SetCatalogue& after) {
    CatalogueDifference difference;
    difference.added = onlyIn(after, before);
    difference.removed = onlyIn(before, after);
    for (const std::string_view name : after.names()) {
        if (!before.contains(name)) continue;
        const SetDefinition* earlier = before.find(name);
        const SetDefinition* later = after.find(name);
        if (earlier == nullptr || later == nullptr) continue;
        SetDifference set = compareSets(*earlier, *later);
        if (set.empty())
            ++difference.unchanged;
        else
            difference.changed.push_back(std::move(set));
    }
    return difference;
}

} // namespace velkor
