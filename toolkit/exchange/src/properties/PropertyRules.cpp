#include "PropertyRules.h"

namespace velkor::exchange {

constexpr ConversionRule customName{
    "custom-name", Effect::Converted, "A property gets the set and the name that the custom mapping gives",
    "The mapping says under which names the other side keeps it, for the type of the objects that have it"};
constexpr ConversionRule plmAttribute{
    "plm-attribute", Effect::Converted,
    "A PLM attribute gets the set and the name that the PLM attribute mapping gives",
    "The mapping says as which property of IFC an attribute of a PLM type is written"};
constexpr ConversionRule valueToQuantity{
    "value-to-quantity", Effect::Rebuilt, "A value that goes to a quantity set becomes a quantity",
    "A quantity set holds quantities alone; one of the measure of the value says the same"};
constexpr ConversionRule setRenamed{"set-renamed", Effect::Converted,
                                    "A set whose properties all go to another one gets its name",
                                    "It stays the same set, with its GlobalId and its relationships"};
constexpr ConversionRule setAdded{
    "set-added", Effect::Converted, "A set is added for properties whose objects have none of the name",
    "It is defined for the same objects, and its GlobalId is a hash of what it comes from, the same on every run"};
constexpr ConversionRule setSplit{
    "set-split", Effect::Rebuilt, "A set of objects of several types is made several sets",
    "Its properties are called otherwise for one type than for another, and a set has one name"};
constexpr ConversionRule setEmptied{"set-emptied", Effect::Rebuilt,
                                    "A set whose properties have all gone to others is left out",
                                    "IFC has no set without properties"};
constexpr ConversionRule mappingRefused{
    "mapping-refused", Effect::Kept, "A property stays where the mapping's set cannot take it",
    "The set is shared with other objects, has a property of the name or holds quantities, or the statements are "
    "damaged: moving it would change what others say"};

std::span<const ConversionRule* const> propertyRules() {
    static constexpr const ConversionRule* rules[] = {&customName, &plmAttribute, &valueToQuantity, &setRenamed,
                                                      &setAdded,   &setSplit,     &setEmptied,      &mappingRefused};
    return rules;
}

} // namespace velkor::exchange
