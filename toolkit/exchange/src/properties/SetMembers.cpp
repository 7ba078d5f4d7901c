#include "properties/SetMembers.h"

#include "RecordText.h"

#include <algorithm>

namespace velkor::exchange {

std::vector<SetMembers> setsOf(const sdai::Model& model) {
    const sdai::Part21File& file = model.file();
    std::vector<SetMembers> sets;
    std::unordered_map<std::uint32_t, std::size_t> places;
    const auto takeSets = [&](const char* entity, std::string_view attribute) {
        for (const std::uint32_t number : model.numbersOf(entity)) {
            // Complex instances are passed over.
            if (model.entityAt(number) == nullptr || !places.try_emplace(number, sets.size()).second) continue;
            SetMembers& set = sets.emplace_back();
            set.set = number;
            set.name = textOf(parameterOf(model, number, "NAME"));
            set.attribute = attribute;
            eachNumber(file, parameterOf(model, number, attribute),
                       [&](std::uint32_t member) { set.members.push_back(member); });
        }
    };
    takeSets("IFCPROPERTYSET", "HASPROPERTIES");
    takeSets("IFCELEMENTQUANTITY", "QUANTITIES");
    const auto use = [&](std::uint32_t set, std::uint32_t by, std::uint32_t object, bool isOfType) {
        const auto place = places.find(set);
        if (place == places.end()) return;
        sets[place->second].users.push_back({by, object});
        sets[place->second].isOfType = sets[place->second].isOfType || isOfType;
    };
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYPROPERTIES"))
        eachNumber(file, parameterOf(model, number, "RELATINGPROPERTYDEFINITION"), [&](std::uint32_t set) {
            if (!places.contains(set)) return;
            eachNumber(file, parameterOf(model, number, "RELATEDOBJECTS"),
                       [&](std::uint32_t object) { use(set, number, object, false); });
        });
    for (const std::uint32_t number : model.numbersOf("IFCTYPEOBJECT"))
        eachNumber(file, parameterOf(model, number, "HASPROPERTYSETS"),
                   [&](std::uint32_t set) { use(set, number, number, true); });
    std::erase_if(sets, [](const SetMembers& set) { return set.users.empty() || set.members.empty(); });
    std::ranges::sort(sets, {}, &SetMembers::set);
    return sets;
}

} // namespace velkor::exchange
