#include "velkor/propertysets/PropertySetCheck.h"

#include "SetDefinitions.h"
#include "SetUses.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

namespace velkor {

namespace {

constexpr std::uint64_t progressStep = 256;
/// A longer text is no name, and many sets may have the same one.
constexpr std::size_t longestName = 1000;

bool isTooLong(const sdai::Primitive& name) {
    return name.encoded().size() > longestName;
}

// As findings repeat it.
std::string shown(const sdai::Primitive& name) {
    return isTooLong(name) ? '(' + text::grouped(name.encoded().size()) + " bytes)" : name.asString();
}

using State = NamedDefinition::State;

// What the model's sets of one name have in common, so that it is asked once.
struct NamedSet {
    NamedDefinition* definition = nullptr;
    std::string likelyName;
    // By the name of the property as the file writes it.
    std::unordered_map<std::string_view, bool> properties;
    // Whether it applies, by the kind of object.
    std::unordered_map<ObjectKind, bool, ObjectKindHash> kinds;
    // The objects of a group that it does not apply to, by the number of the group.
    std::unordered_map<std::uint32_t, SetUse> groups;
};

std::string objectText(const SetFinding& finding) {
    std::string text = finding.objectEntity + " #" + std::to_string(finding.object);
    if (!finding.objectName.empty()) text += ' ' + text::quoted(finding.objectName);
    if (finding.others > 0) text += " and " + text::counted(finding.others, "other object", "other objects");
    return text;
}

std::string classesText(const std::vector<std::string>& classes) {
    return classes.empty() ? "no class" : text::joined(classes);
}

class Checker {
public:
    Checker(const sdai::Model& model, const CheckOptions& options) : _model(model), _options(options), _uses(model) {}

    PropertySetCheck check(const Progress& progress) {
        _result.hasDefinitions = !_definitions.empty();
        std::vector<std::uint32_t> numbers = _model.numbersOf("IFCPROPERTYSET");
        const auto quantities = _model.numbersOf("IFCELEMENTQUANTITY");
        const auto middle = numbers.insert(numbers.end(), quantities.begin(), quantities.end());
        std::inplace_merge(numbers.begin(), middle, numbers.end());
        for (std::uint64_t i = 0; i < numbers.size(); ++i) {
            if (i % progressStep == 0 && !goesOn(progress, {"Checking the property sets", i, numbers.size()})) {
                _result.isComplete = false;
                break;
            }
            _number = numbers[i];
            checkSet(_model.instanceAt(_number));
        }
        return std::move(_result);
    }

private:
    void checkSet(const DXSdaiAppInstance* set) {
        ++_result.sets;
        const bool isQuantitySet = set->IsKindOf("IFCELEMENTQUANTITY");
        const sdai::Aggregate members = set->GetAttr(isQuantitySet ? "QUANTITIES" : "HASPROPERTIES").asAggregate();
        NamedSet& named = namedSet(set->GetAttr("NAME"));
        const State state = named.definition->state();
        if (state == State::Defined) {
            ++_result.checkedSets;
            checkClasses(named, set);
            checkProperties(named, set, members, isQuantitySet ? "quantity" : "property");
            return;
        }
        _result.properties += members.memberCount();
        const std::string& name = named.definition->name();
        if (state == State::Custom)
            ++_result.customSets;
        else if (state == State::Unreadable)
            ++_result.unreadable[name];
        else if (named.likelyName.empty())
            ++_result.undefined[name];
        else if (SetFinding* finding = add("set-unknown", named, _uses.totalOf(set)))
            finding->problem.message = misspelled(*finding, named.likelyName);
    }

    NamedSet& namedSet(const sdai::Primitive& name) {
        NamedSet& named = _named[name.encoded()];
        if (named.definition != nullptr) return named;
        const std::string text = name.asString();
        named.definition = &_definitions.find(text);
        if (named.definition->state() == State::Undefined) named.likelyName = _definitions.likelyName(text);
        return named;
    }

    static std::string misspelled(SetFinding& finding, const std::string& likely) {
        finding.nearest = likely;
        std::string message = "expected a standard set, found " + text::quoted(finding.set);
        if (finding.object != 0) message += " of " + objectText(finding);
        return message + "; did you mean " + text::quoted(likely) + '?';
    }

    void checkClasses(NamedSet& named, const DXSdaiAppInstance* set) {
        SetUse wrong;
        for (const std::uint32_t group : _uses.groupsOf(set)) {
            const SetUse use = wrongUse(named, group);
            if (wrong.first == nullptr) wrong.first = use.first;
            wrong.count += use.count;
        }
        if (wrong.first == nullptr) return;
        SetFinding* finding = add("set-not-applicable", named, wrong);
        if (finding == nullptr) return;
        finding->problem.message = text::quoted(finding->set) + " does not apply to " + objectText(*finding) +
                                   "; expected " + classesText(named.definition->classes());
    }

    // Objects of a group that a set does not apply to; none of them is null and 0.
    SetUse wrongUse(NamedSet& named, std::uint32_t number) {
        const SetUses::Group& group = _uses.group(number);
        // A group of many kinds may have many sets.
        if (group.size() > 1) {
            if (const auto known = named.groups.find(number); known != named.groups.end()) return known->second;
        }
        SetUse wrong;
        for (const SetUse& use : group) {
            if (applies(named, use)) continue;
            if (wrong.first == nullptr) wrong.first = use.first;
            wrong.count += use.count;
        }
        if (group.size() > 1) named.groups.emplace(number, wrong);
        return wrong;
    }

    // To an object's own class or to that of its type.
    bool applies(NamedSet& named, const SetUse& use) {
        // A type that says nothing about the class leaves that to its objects.
        if (use.first->IsInstanceOf("IFCTYPEOBJECT") || use.first->IsInstanceOf("IFCTYPEPRODUCT")) {
            const auto occurrences = _uses.occurrencesOf(use.first);
            const auto isRight = [&](DXSdaiAppInstance* object) { return named.definition->appliesTo(object); };
            return occurrences.empty() || std::ranges::any_of(occurrences, isRight);
        }
        // Complex instances have no entity to remember an answer by.
        const bool isRemembered = use.first->entity() != nullptr;
        if (const auto known = named.kinds.find(use.kind()); isRemembered && known != named.kinds.end())
            return known->second;
        const bool answer =
            named.definition->appliesTo(use.first) || (use.type != nullptr && named.definition->appliesTo(use.type));
        if (isRemembered) named.kinds.emplace(use.kind(), answer);
        return answer;
    }

    void checkProperties(NamedSet& named, const DXSdaiAppInstance* set, const sdai::Aggregate& members,
                         const char* what) {
        for (const sdai::Primitive member : members) {
            ++_result.properties;
            const DXSdaiAppInstance* property = member.asInstance();
            if (property == nullptr) continue;
            ++_result.checkedProperties;
            const sdai::Primitive name = property->GetAttr("NAME");
            if (isKnown(named, name)) continue;
            if (SetFinding* finding = add("property-unknown", named, _uses.totalOf(set)))
                describeProperty(*finding, *named.definition, shown(name), what);
        }
    }

    static bool isKnown(NamedSet& named, const sdai::Primitive& name) {
        if (isTooLong(name)) return false;
        const auto [known, isNew] = named.properties.try_emplace(name.encoded());
        if (isNew) known->second = named.definition->hasProperty(name.asString());
        return known->second;
    }

    static void describeProperty(SetFinding& finding, const NamedDefinition& definition, std::string name,
                                 const char* what) {
        const std::vector<std::string_view> known(definition.properties().begin(), definition.properties().end());
        finding.property = std::move(name);
        // In a short name, two letters make another word.
        finding.nearest = text::likelyMeant(known, finding.property, finding.property.size() < 8 ? 1 : 2);
        std::string& message = finding.problem.message;
        message = text::quoted(finding.set);
        if (finding.object != 0) message += " of " + objectText(finding);
        message += std::string(" has no ") + what + ' ' + text::quoted(finding.property);
        if (!finding.nearest.empty()) message += "; did you mean " + text::quoted(finding.nearest) + '?';
    }

    // A new finding at the current set, or null when it is only counted.
    SetFinding* add(const char* code, const NamedSet& named, const SetUse& use) {
        if (!_options.codes.takes(code) || ++_result.total > _options.limit) return nullptr;
        SetFinding finding;
        const sdai::Part21File& file = _model.file();
        const std::uint64_t offset = file.offset(_number);
        finding.problem = {sdai::Severity::Warning, offset, file.line(offset), file.id(_number), code, {}};
        finding.set = named.definition->name();
        if (use.first != nullptr) {
            finding.object = use.first->id();
            finding.objectEntity = use.first->entity() == nullptr ? "" : use.first->entity()->name();
            finding.objectName = shown(use.first->GetAttr("NAME"));
            finding.others = use.count - 1;
        }
        return &_result.findings.emplace_back(std::move(finding));
    }

    const sdai::Model& _model;
    const CheckOptions& _options;
    SetUses _uses;
    SetDefinitions _definitions;
    // By the name of the set as the file writes it.
    std::unordered_map<std::string_view, NamedSet> _named;
    std::uint32_t _number = 0;
    PropertySetCheck _result;
};

std::uint64_t sum(const std::map<std::string, std::uint64_t>& counts) {
    return std::accumulate(counts.begin(), counts.end(), std::uint64_t{0},
                           [](std::uint64_t total, const auto& entry) { return total + entry.second; });
}

} // namespace

std::uint64_t PropertySetCheck::uncheckedSets() const noexcept {
    return sum(undefined) + sum(unreadable);
}

std::vector<PropertySetCheck::NameCount> PropertySetCheck::uncheckedNames() const {
    std::vector<NameCount> names;
    for (const auto* counts : {&undefined, &unreadable}) {
        for (const auto& [name, count] : *counts) names.push_back({name, count});
    }
    std::ranges::stable_sort(names, std::greater<>(), &NameCount::count);
    return names;
}

PropertySetCheck checkPropertySets(const sdai::Model& model, const CheckOptions& options) {
    return Checker(model, options).check(options.progress);
}

PropertySetCheck checkPropertySets(const sdai::Model& model, const SetLibrary&, const CheckOptions& options) {
    PropertySetCheck check = checkPropertySets(model, options);
    check.definedBy = model.schema().name();
    return check;
}

} // namespace velkor
