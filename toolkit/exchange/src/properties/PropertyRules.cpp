#include "properties/PropertyRules.h"

namespace velkor::exchange {

namespace propertyrule {

const ConversionRule setRenamed = {"set-renamed", Effect::Converted,
                                   "A property set or quantity set takes the name that the mapping gives",
                                   "The mapping speaks of all its properties for all objects that have it"};

const ConversionRule setDivided = {"set-divided", Effect::Converted,
                                   "Properties that the mapping puts into another set stand in a new one of that name",
                                   "The other properties of the set stay where they are"};

const ConversionRule setCopied = {
    "set-copied", Effect::Converted, "Objects of a type whose mapping is another one get a set of their own",
    "Objects of several types share the set, and the mapping says different things for them"};

const ConversionRule setJoined = {"set-joined", Effect::Converted,
                                  "Properties join the set of the mapped name that the same objects have already",
                                  "An object has one set of a name"};

const ConversionRule propertyRenamed = {"property-renamed", Effect::Converted,
                                        "A property or quantity takes the name that the mapping gives",
                                        "Its value, unit and everything else stay"};

} // namespace propertyrule

std::span<const ConversionRule* const> propertyRules() {
    static constexpr const ConversionRule* rules[] = {&propertyrule::setRenamed, &propertyrule::setDivided,
                                                      &propertyrule::setCopied, &propertyrule::setJoined,
                                                      &propertyrule::propertyRenamed};
    return rules;
}

} // namespace velkor::exchange
