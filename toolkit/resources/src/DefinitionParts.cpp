#include "DefinitionParts.h"

#include "Linter.h"
#include "velkor/units/MeasureUnits.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace velkor::lint {

namespace {

using Faults = std::vector<DefinitionFault>;
/// Kinds and texts.
using Frame = std::set<std::pair<std::string, std::string>>;

void addTo(Frame& frame, const Faults& faults) {
    for (const DefinitionFault& fault : faults) frame.emplace(fault.kind, fault.text);
}

/// What is told of a part of a definition alone, the rest of which is the frame.
Faults beyond(const Frame& frame, SetDefinition part, const std::string& release) {
    Faults faults = mendDefinition(part, release);
    std::erase_if(faults, [&](const DefinitionFault& fault) { return frame.contains({fault.kind, fault.text}); });
    return faults;
}

PropertyDefinition withoutMembers(const PropertyDefinition& property) {
    PropertyDefinition alone;
    alone.name = property.name;
    alone.kind = property.kind;
    alone.valueType = property.valueType;
    alone.definingType = property.definingType;
    alone.unitType = property.unitType;
    alone.definingUnitType = property.definingUnitType;
    return alone;
}

/// The faults that every release has by their kind, as the last one tells them.
Faults common(const std::vector<Faults>& byRelease) {
    Faults result = byRelease.back();
    for (const Faults& faults : byRelease) {
        std::set<std::string_view> kinds;
        for (const DefinitionFault& fault : faults) kinds.insert(fault.kind);
        std::erase_if(result, [&](const DefinitionFault& fault) { return !kinds.contains(fault.kind); });
    }
    return result;
}

class PartFinder {
public:
    PartFinder(const SetDefinition& definition, const Dictionaries::Releases& releases, Dictionaries& dictionaries)
        : _definition(definition), _releases(releases), _dictionaries(dictionaries) {}

    std::vector<PartFault> find() {
        if (std::ranges::all_of(_releases, [this](const std::string& release) {
                SetDefinition copy = _definition;
                return !mendDefinition(copy, release).empty();
            }))
            findParts();
        return std::move(_found);
    }

private:
    void findParts() {
        for (const std::string& release : _releases) addTo(_ofEmpty.emplace_back(), beyond({}, {}, release));
        findClasses();
        for (const PropertyDefinition& property : _definition.properties) findProperty(property, property);
    }

    // A part is judged without a name, which would tell of what is left out.
    std::vector<Faults> judge(const SetDefinition& part, const std::vector<Frame>& frames) const {
        std::vector<Faults> faults;
        for (std::size_t i = 0; i < _releases.size(); ++i) faults.push_back(beyond(frames[i], part, _releases[i]));
        return faults;
    }

    void findClasses() {
        std::vector<Frame> ofClasses(_releases.size());
        for (const ApplicableClass& applicable : _definition.classes) {
            SetDefinition part;
            part.classes = {applicable};
            const std::vector<Faults> faults = judge(part, _ofEmpty);
            for (std::size_t i = 0; i < faults.size(); ++i) addTo(ofClasses[i], faults[i]);
            const std::string hint = classHint(applicable);
            // An object type of one's own stands there like a predefined type, and is none that is nearly one.
            if (hint.empty() && isLeftAlone(part)) continue;
            for (DefinitionFault& fault : common(faults))
                _found.push_back({std::move(fault), &applicable, nullptr, hint});
        }
        SetDefinition whole = _definition;
        whole.properties.clear();
        for (DefinitionFault& fault : common(judge(whole, ofClasses))) _found.push_back({std::move(fault), {}, {}, {}});
    }

    // The parser bounds how deep members have members.
    void findProperty(const PropertyDefinition& property, const PropertyDefinition& ofSet) {
        SetDefinition part;
        part.properties.push_back(withoutMembers(property));
        for (DefinitionFault& fault : common(judge(part, _ofEmpty))) {
            std::string hint = propertyHint(property, fault.text);
            _found.push_back({std::move(fault), nullptr, &ofSet, std::move(hint)});
        }
        for (const PropertyDefinition& member : property.members) findProperty(member, ofSet);
    }

    bool isLeftAlone(const SetDefinition& part) const {
        SetDefinition mended = part;
        mendDefinition(mended, _releases.back());
        return mended == part;
    }

    std::string classHint(const ApplicableClass& applicable) {
        std::vector<std::string_view> known;
        for (const char* ending : {"", "Type"}) {
            for (const auto* entity : _dictionaries.entities(applicable.entity + ending, _releases)) {
                const sdai::Attribute* attribute = entity->attribute("PredefinedType");
                const auto* types = attribute == nullptr ? nullptr : attribute->type().resolved().asEnumeration();
                if (types != nullptr) std::ranges::copy(types->values(), std::back_inserter(known));
            }
        }
        return didYouMean(known, applicable.predefinedType);
    }

    // For the word of the property that the fault names.
    std::string propertyHint(const PropertyDefinition& property, const std::string& fault) {
        const auto isMeant = [&](const std::string& word) {
            return !word.empty() && fault.find(quoted(word)) != std::string::npos;
        };
        const sdai::SchemaDefinition* schema = _dictionaries.schema(_releases.back());
        if (schema == nullptr) return {};
        for (const std::string* type : {&property.valueType, &property.definingType})
            if (isMeant(*type) && schema->named(*type) == nullptr)
                return didYouMean(_dictionaries.typeNames(_releases.back()), *type);
        for (const std::string* unit : {&property.unitType, &property.definingUnitType})
            if (isMeant(*unit) && !isUnitType(*schema, *unit)) return didYouMean(unitTypes(*schema), *unit);
        return {};
    }

    const SetDefinition& _definition;
    const Dictionaries::Releases& _releases;
    Dictionaries& _dictionaries;
    // What is told where nothing is.
    std::vector<Frame> _ofEmpty;
    std::vector<PartFault> _found;
};

} // namespace

std::vector<PartFault> faultsOf(const SetDefinition& definition, const Dictionaries::Releases& releases,
                                Dictionaries& dictionaries) {
    return PartFinder(definition, releases, dictionaries).find();
}

} // namespace velkor::lint
