#include "ChangeList.h"
#include "NameTargets.h"
#include "PropertyMover.h"
#include "PropertyRules.h"
#include "RecordText.h"
#include "ResultHeader.h"
#include "velkor/exchange/Conversion.h"

#include <algorithm>

namespace velkor {

using namespace exchange;

namespace {

// Sets between two looks at the clock.
constexpr std::uint64_t progressStep = 256;

constexpr const char* endedEarly = "the conversion was ended before its end";

/// Looks through the sets of a model.
class SetWalk {
public:
    SetWalk(const sdai::Model& model, ObjectTypes& types, NameTargets& targets)
        : _model(model), _types(types), _targets(targets), _holders(model) {
        for (const SetRelationship& relationship : _holders.relationships()) {
            std::vector<std::uint32_t> kinds;
            for (const std::uint32_t object : relationship.objects) kinds.push_back(_types.kindOf(object));
            std::sort(kinds.begin(), kinds.end());
            kinds.erase(std::unique(kinds.begin(), kinds.end()), kinds.end());
            _kinds.push_back(std::move(kinds));
        }
    }

    SetHolders& holders() noexcept { return _holders; }

    PropertySet read(std::uint32_t number) {
        const sdai::EntityDefinition& entity = *_model.entityAt(number);
        PropertySet set{number, textOf(parameterOf(_model, number, "NAME")), isQuantitySet(entity), {}};
        eachNumber(_model.file(), parameterOf(_model, number, memberAttribute(entity)), [&](std::uint32_t member) {
            set.members.push_back({member, nameOf(parameterOf(_model, member, "NAME"))});
        });
        return set;
    }

    /// The sets to which properties of a set go for any kind of its objects.
    std::set<std::string> targetSets(const PropertySet& set) {
        std::set<std::string> result;
        const auto add = [&](std::uint32_t kind) {
            for (const Target* target : targetsOf(set, kind))
                if (target != nullptr) result.insert(target->set);
        };
        const SetUse* use = _holders.use(set.number);
        if (use == nullptr) return result;
        for (const std::uint32_t position : use->relationships) std::ranges::for_each(_kinds[position], add);
        for (const std::uint32_t type : use->types) add(_types.kindOf(type));
        return result;
    }

    std::vector<TargetGroup> groups(const PropertySet& set) {
        std::map<std::uint32_t, std::size_t> ofKind;
        std::vector<TargetGroup> result;
        const auto group = [&](std::uint32_t object) -> TargetGroup& {
            const std::uint32_t kind = _types.kindOf(object);
            const auto [known, isNew] = ofKind.try_emplace(kind, 0);
            if (isNew) {
                std::vector<const Target*> targets = targetsOf(set, kind);
                const auto same = std::ranges::find(result, targets, &TargetGroup::targets);
                known->second = static_cast<std::size_t>(same - result.begin());
                if (same == result.end()) result.push_back({std::move(targets), {}, {}});
            }
            return result[known->second];
        };
        const SetUse& use = *_holders.use(set.number);
        for (const std::uint32_t position : use.relationships) {
            for (const std::uint32_t object : _holders.relationships()[position].objects) {
                auto& objects = group(object).objects;
                if (objects.empty() || objects.back().first != position) objects.push_back({position, {}});
                objects.back().second.push_back(object);
            }
        }
        for (const std::uint32_t type : use.types) group(type).types.push_back(type);
        return result;
    }

private:
    std::vector<const Target*> targetsOf(const PropertySet& set, std::uint32_t kind) {
        std::vector<const Target*> result;
        for (const SetMember& member : set.members)
            result.push_back(_targets.of(_types.kind(kind), kind, set.name, member.name, set.isQuantities));
        return result;
    }

    const std::string& nameOf(std::string_view encoded) {
        const auto [name, isNew] = _names.try_emplace(encoded);
        if (isNew) name->second = textOf(encoded);
        return name->second;
    }

    const sdai::Model& _model;
    ObjectTypes& _types;
    NameTargets& _targets;
    SetHolders _holders;
    // Of the objects of each relationship.
    std::vector<std::vector<std::uint32_t>> _kinds;
    std::unordered_map<std::string_view, std::string> _names;
};

/// False when the caller has ended the work.
bool mapProperties(const sdai::Model& model, SetWalk& walk, PropertyMover& mover, const Progress& progress) {
    std::vector<std::uint32_t> sets = model.numbersOf("IFCPROPERTYSET");
    const std::vector<std::uint32_t> quantities = model.numbersOf("IFCELEMENTQUANTITY");
    sets.insert(sets.end(), quantities.begin(), quantities.end());
    std::ranges::sort(sets);
    std::vector<std::uint32_t> changing;
    std::set<std::string> targetSets;
    for (std::uint64_t i = 0; i < sets.size(); ++i) {
        if (i % progressStep == 0 && !goesOn(progress, {"Looking at the property sets", i, sets.size()})) return false;
        if (model.entityAt(sets[i]) == nullptr) continue;
        const std::set<std::string> targets = walk.targetSets(walk.read(sets[i]));
        if (targets.empty()) continue;
        changing.push_back(sets[i]);
        targetSets.insert(targets.begin(), targets.end());
    }
    mover.expect(targetSets);
    for (std::uint64_t i = 0; i < changing.size(); ++i) {
        if (i % progressStep == 0 && !goesOn(progress, {"Mapping the properties", i, changing.size()})) return false;
        const PropertySet set = walk.read(changing[i]);
        std::vector<TargetGroup> groups = walk.groups(set);
        mover.move(set, groups);
    }
    mover.flush();
    return true;
}

} // namespace

Converted<StepReport> convertProperties(const sdai::Model& model, const PropertyOptions& options,
                                        files::OutputFile& output) {
    if (options.setup == nullptr)
        return tl::unexpected(std::string("properties are mapped by the documents of a set-up"));
    const auto mapping = TypeMapping::load(
        *options.setup, {.customMapping = options.customMapping.has_value(), .plmAttributes = options.plmAttributes});
    if (!mapping) return tl::unexpected(mapping.error());
    ObjectTypes types(model, *options.setup, options.progress);
    if (!types.isComplete()) return tl::unexpected<std::string>(endedEarly);
    NameTargets targets(*mapping, options);
    SetWalk walk(model, types, targets);
    ChangeList changes(model.file(), options.limit);
    sdai::Part21Edit edit(model.file());
    PropertyMover mover(model, walk.holders(), edit, changes);
    if (!mapProperties(model, walk, mover, options.progress)) return tl::unexpected<std::string>(endedEarly);
    StepReport report;
    report.step = "properties";
    report.converted = mover.converted();
    report.rebuilt = mover.rebuilt();
    report.added = mover.added();
    if (report.converted + report.rebuilt + report.added > 0) {
        if (auto set = setResultHeader(edit, model.file(), {}, changes); !set) return tl::unexpected(set.error());
    }
    edit.write(output);
    report.kept = model.file().instanceCount() - report.converted - report.rebuilt;
    report.uses = changes.uses(propertyRules());
    return report;
}

} // namespace velkor
