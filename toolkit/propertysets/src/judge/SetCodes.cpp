// The kinds of findings about property sets and quantity sets.

#include "velkor/propertysets/PropertySetCheck.h"

namespace velkor {

namespace {

constexpr std::string_view standardSets = "PSE001", customSets = "PSE001 and PSE002", standardQuantities = "QTY001";

constexpr SetCode codes[] = {
    {"set-unknown", "the name of the set is written as those of the standard are, and no definition has it", customSets,
     standardQuantities},
    {"set-not-applicable", "the set is attached to an object or type that it does not apply to", standardSets,
     standardQuantities},
    {"set-template", "the set is attached to a type, where it is for occurrences, or the other way round", standardSets,
     standardQuantities},
    {"set-repeated", "an object has two sets of one name", {}, {}},
    {"property-unknown", "the set has a property or quantity that its definition does not have", standardSets,
     standardQuantities},
    {"property-kind", "the property is of another kind than the definition says", standardSets, {}},
    {"property-repeated", "the set has two properties or quantities of one name", {}, {}},
    {"value-type", "a value of the property is of another type than the definition says", standardSets, {}},
    {"value-enumerator",
     "a value of the property, or of its own enumeration, is not among those that the definition "
     "lists",
     standardSets,
     {}},
    {"value-unit", "the unit of the property or quantity is for other measures than that of its values", {}, {}},
    {"quantity-kind", "the quantity is of another kind than the definition says", {}, standardQuantities},
    {"quantity-method", "the method of measurement is none that the set allows", {}, standardQuantities},
};

} // namespace

std::span<const SetCode> setCodes() noexcept {
    return codes;
}

} // namespace velkor
