#include "SetHolders.h"

#include "RecordText.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

void sortOnce(std::vector<std::uint32_t>& numbers) {
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

} // namespace

bool isQuantitySet(const sdai::EntityDefinition& set) {
    return set.isKindOf("IFCELEMENTQUANTITY");
}

std::string_view memberAttribute(const sdai::EntityDefinition& set) {
    return isQuantitySet(set) ? "QUANTITIES" : "HASPROPERTIES";
}

SetHolders::SetHolders(const sdai::Model& model) : _model(model), _timesUsed(model.file().instanceCount()) {
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYPROPERTIES")) {
        SetRelationship relationship{number, {}, {}};
        eachNumber(model.file(), parameterOf(model, number, "RELATINGPROPERTYDEFINITION"),
                   [&](std::uint32_t set) { relationship.sets.push_back(set); });
        eachNumber(model.file(), parameterOf(model, number, "RELATEDOBJECTS"),
                   [&](std::uint32_t object) { relationship.objects.push_back(object); });
        sortOnce(relationship.sets);
        sortOnce(relationship.objects);
        // Many sets times many objects would be more than the text that says so.
        const std::size_t mostPairs = 1024 + 16 * (relationship.sets.size() + relationship.objects.size());
        if (relationship.sets.size() * relationship.objects.size() > mostPairs && relationship.sets.size() > 1) {
            _unmapped.insert(relationship.sets.begin(), relationship.sets.end());
            continue;
        }
        for (const std::uint32_t set : relationship.sets)
            _uses[set].relationships.push_back(static_cast<std::uint32_t>(_relationships.size()));
        _relationships.push_back(std::move(relationship));
    }
    for (const std::uint32_t type : model.numbersOf("IFCTYPEOBJECT")) {
        eachNumber(model.file(), parameterOf(model, type, "HASPROPERTYSETS"), [&](std::uint32_t set) {
            std::vector<std::uint32_t>& types = _uses[set].types;
            if (types.empty() || types.back() != type) types.push_back(type);
        });
    }
    countMembers();
}

void SetHolders::countMembers() {
    for (const std::string_view entity : {"IFCPROPERTYSET", "IFCELEMENTQUANTITY"}) {
        for (const std::uint32_t set : _model.numbersOf(entity)) {
            const sdai::EntityDefinition* definition = _model.entityAt(set);
            if (definition == nullptr) continue;
            eachNumber(_model.file(), parameterOf(_model, set, memberAttribute(*definition)),
                       [&](std::uint32_t member) {
                           if (_timesUsed[member] < 2) ++_timesUsed[member];
                       });
        }
    }
}

const SetUse* SetHolders::use(std::uint32_t set) const {
    const auto found = _uses.find(set);
    return found == _uses.end() || _unmapped.contains(set) ? nullptr : &found->second;
}

bool SetHolders::isReferredTo(std::uint32_t number) {
    if (_isReferredTo.empty()) {
        _isReferredTo.resize(_model.file().instanceCount());
        for (const std::uint32_t relationship : _model.numbersOf("IFCRELATIONSHIP")) {
            const sdai::EntityDefinition* entity = _model.entityAt(relationship);
            if (entity != nullptr && entity->isKindOf("IFCRELDEFINESBYPROPERTIES")) continue;
            eachNumber(_model.file(), _model.file().instanceText(relationship),
                       [&](std::uint32_t referred) { _isReferredTo[referred] = true; });
        }
    }
    return _isReferredTo[number];
}

} // namespace velkor::exchange
