#include "DefinitionParts.h"

#include "Linter.h"
#include "velkor/units/MeasureUnits.h"

#include <algorithm>
#include <iterator>

namespace velkor::lint {

namespace {

using Faults = std::vector<DefinitionFault>;

/// What is told of a part of a definition alone, the rest of which is the frame.
Faults beyond(const Faults& frame, SetDefinition part, const std::string& release) {
    Faults faults = mendDefinition(part, release);
    std::erase_if(faults, [&](const DefinitionFault& fault) { return std::ranges::find(frame, fault) != frame.end(); });
    return faults;
}

/// The faults that every release has by their kind, as the last one tells them.
Faults common(const std::vector<Faults>& byRelease) {
    Faults result = byRelease.back();
    std::erase_if(result, [&](const DefinitionFault& fault) {
        return std::ranges::any_of(byRelease, [&](const Faults& faults) {
            return std::ranges::find(faults, fault.kind, &DefinitionFault::kind) == faults.end();
        });
    });
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
        // A name tells of what is left out; without one a part is judged by itself.
        const SetDefinition empty;
        std::vector<Faults> ofEmpty, ofClasses;
        for (const std::string& release : _releases) ofEmpty.push_back(beyond({}, empty, release));
        const auto judge = [&](const SetDefinition& part, const std::vector<Faults>& frames) {
            std::vector<Faults> faults;
            for (std::size_t i = 0; i < _releases.size(); ++i) faults.push_back(beyond(frames[i], part, _releases[i]));
            return faults;
        };
        ofClasses.resize(_releases.size());
        for (const ApplicableClass& applicable : _definition.classes) {
            SetDefinition part;
            part.classes = {applicable};
            const std::vector<Faults> faults = judge(part, ofEmpty);
            for (std::size_t i = 0; i < faults.size(); ++i)
                std::ranges::copy(faults[i], std::back_inserter(ofClasses[i]));
            const std::string hint = classHint(applicable);
            // An object type of one's own stands there like a predefined type, and is none that is nearly one.
            if (hint.empty() && isLeftAlone(part)) continue;
            for (DefinitionFault& fault : common(faults))
                _found.push_back({std::move(fault), &applicable, nullptr, hint});
        }
        SetDefinition whole = _definition;
        whole.properties.clear();
        for (DefinitionFault& fault : common(judge(whole, ofClasses))) _found.push_back({std::move(fault), {}, {}, {}});
        for (const PropertyDefinition& property : _definition.properties) {
            SetDefinition part;
            part.properties = {property};
            for (DefinitionFault& fault : common(judge(part, ofEmpty))) {
                std::string hint = propertyHint(property, fault.text);
                _found.push_back({std::move(fault), nullptr, &property, std::move(hint)});
            }
        }
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
        if (isMeant(property.unitType) && !isUnitType(*schema, property.unitType))
            return didYouMean(unitTypes(*schema), property.unitType);
        for (const PropertyDefinition& member : property.members)
            if (std::string hint = propertyHint(member, fault); !hint.empty()) return hint;
        return {};
    }

    const SetDefinition& _definition;
    const Dictionaries::Releases& _releases;
    Dictionaries& _dictionaries;
    std::vector<PartFault> _found;
};

} // namespace

std::vector<PartFault> faultsOf(const SetDefinition& definition, const Dictionaries::Releases& releases,
                                Dictionaries& dictionaries) {
    return PartFinder(definition, releases, dictionaries).find();
}

} // namespace velkor::lint
