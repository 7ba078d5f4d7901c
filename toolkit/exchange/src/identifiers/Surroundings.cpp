#include "Surroundings.h"

#include "DerivedIdentifier.h"
#include "RecordText.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

/// What of an instance stands below what: attributes of relationships, or of instances that hold their own.
struct Standing {
    std::string_view entity;
    std::string_view lower;
    /// Empty for the instance itself.
    std::string_view upper;
};

constexpr Standing standings[] = {
    {"IFCRELAGGREGATES", "RELATEDOBJECTS", "RELATINGOBJECT"},
    {"IFCRELNESTS", "RELATEDOBJECTS", "RELATINGOBJECT"},
    {"IFCRELCONTAINEDINSPATIALSTRUCTURE", "RELATEDELEMENTS", "RELATINGSTRUCTURE"},
    {"IFCRELVOIDSELEMENT", "RELATEDOPENINGELEMENT", "RELATINGBUILDINGELEMENT"},
    {"IFCRELPROJECTSELEMENT", "RELATEDFEATUREELEMENT", "RELATINGELEMENT"},
    {"IFCRELADHERESTOELEMENT", "RELATEDSURFACEFEATURES", "RELATINGELEMENT"},
    {"IFCRELFILLSELEMENT", "RELATEDBUILDINGELEMENT", "RELATINGOPENINGELEMENT"},
    {"IFCRELCONNECTSPORTTOELEMENT", "RELATINGPORT", "RELATEDELEMENT"},
    {"IFCRELDECLARES", "RELATEDDEFINITIONS", "RELATINGCONTEXT"},
    {"IFCRELDEFINESBYPROPERTIES", "RELATINGPROPERTYDEFINITION", "RELATEDOBJECTS"},
    {"IFCTYPEOBJECT", "HASPROPERTYSETS", ""},
    {"IFCPROPERTYSETTEMPLATE", "HASPROPERTYTEMPLATES", ""},
    {"IFCCOMPLEXPROPERTYTEMPLATE", "HASPROPERTYTEMPLATES", ""},
};

// In bytes: many may refer to an instance.
constexpr std::size_t longestIdentity = 64;

} // namespace

Surroundings::Surroundings(RootList& roots, const std::vector<bool>& wanted) : _roots(roots), _wanted(wanted) {
    for (const Standing& standing : standings) addBelow(standing.entity, standing.lower, standing.upper);
}

bool Surroundings::isWanted(std::uint32_t number) const {
    const std::uint32_t place = _roots.place(number);
    return place != RootList::none && _wanted[place];
}

void Surroundings::addBelow(std::string_view entity, std::string_view lower, std::string_view upper) {
    const sdai::Model& model = _roots.model();
    std::vector<std::uint32_t> below;
    for (const std::uint32_t number : model.numbersOf(entity)) {
        below.clear();
        eachNumber(model.file(), parameterOf(model, number, lower), [&](std::uint32_t member) {
            if (isWanted(member)) below.push_back(_roots.place(member));
        });
        if (below.empty()) continue;
        std::string above =
            upper.empty() ? std::string(identity(number)) : identities(parameterOf(model, number, upper));
        // However much it is, each of many below has but a line of it.
        if (above.size() > longestIdentity) above = derivedIdentifier(above);
        for (const std::uint32_t place : below) _above[place].push_back(above);
    }
}

std::string_view Surroundings::identity(std::uint32_t number) {
    const std::uint32_t place = _roots.place(number);
    if (place == RootList::none) return {};
    const std::string_view text = _roots.before(place);
    if (!text.empty() && text.size() <= longestIdentity) return text;
    const auto [named, isNew] = _named.try_emplace(place, text);
    std::string& name = named->second;
    if (!isNew) return name;
    if (text.empty()) {
        if (const sdai::EntityDefinition* entity = _roots.entity(place)) name = entity->name();
        (name += ' ') += textOf(parameterOf(_roots.model(), number, "NAME"));
    }
    if (name.size() > longestIdentity) name = derivedIdentifier(name);
    return name;
}

std::string Surroundings::identities(std::string_view parameter) {
    std::vector<std::string_view> all;
    eachNumber(_roots.model().file(), parameter, [&](std::uint32_t number) {
        if (const std::string_view one = identity(number); !one.empty()) all.push_back(one);
    });
    // What is related is a set.
    std::ranges::sort(all);
    return text::joined(all, " ");
}

std::string Surroundings::related(std::uint32_t number) {
    const sdai::EntityDefinition& entity = *_roots.model().entityAt(number);
    std::string result;
    for (const sdai::AttributeSlot& slot : entity.attributes()) {
        const std::string one = identities(parameterOf(_roots.model(), number, slot.attribute->name()));
        if (!one.empty()) ((result += slot.attribute->name()) += ' ').append(one) += '\n';
    }
    return result;
}

std::string Surroundings::of(std::uint32_t place) {
    const sdai::EntityDefinition* entity = _roots.entity(place);
    if (entity == nullptr) return {};
    const std::uint32_t number = _roots.number(place);
    std::string result(entity->name());
    for (const std::string_view attribute : {"NAME", "TAG"})
        (result += '\n') += textOf(parameterOf(_roots.model(), number, attribute));
    result += '\n';
    if (entity->isKindOf("IFCRELATIONSHIP")) return result += related(number);
    const auto above = _above.find(place);
    if (above == _above.end()) return result;
    std::ranges::sort(above->second);
    return result += text::joined(above->second, "\n");
}

} // namespace velkor::exchange
