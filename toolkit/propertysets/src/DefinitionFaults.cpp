#include "DefinitionFaults.h"

#include "velkor/propertysets/DefinitionFile.h"

#include <algorithm>
#include <iterator>

namespace velkor {

namespace {

constexpr DefinitionFaultKind kinds[] = {
    {definitionfaults::blanks, "Blanks or line ends stand around a name or a type; they are left out."},
    {definitionfaults::strayPoint, "A full stop stands behind an enumerator or a predefined type; it is left out."},
    {definitionfaults::nameMissing,
     "A set has no name and gets that of its file, or a property or an enumerator has none and is left out.", true},
    {definitionfaults::nameDiffers, "A set is named otherwise than its file, by which it is found."},
    {definitionfaults::templateUnknown,
     "The template type is empty or none of ISO 16739's; the set is then for types and occurrences alike, or for "
     "performance histories where its name says so."},
    {definitionfaults::classWithSchema, "A schema stands before the name of a class; the class alone is taken."},
    {definitionfaults::classMissing,
     "A text that should name a class is empty and left out, or a set names no class at all and gets the one that its "
     "own name tells of."},
    {definitionfaults::classesInOneText, "One text names several classes; each is taken."},
    {definitionfaults::classRepeated, "A class is named twice; it counts once."},
    {definitionfaults::classUnknown, "The release has no such class; it is left out.", true},
    {definitionfaults::predefinedTypeUnknown, "The class has no such predefined type; those that begin with the text "
                                              "are taken, and where there are none, objects "
                                              "whose object type it is are meant."},
    {definitionfaults::condition,
     "What a set applies to depends on more than a class and its predefined or object type; a related type is taken as "
     "the class, other conditions are left out.",
     true},
    {definitionfaults::propertyRepeated, "A property is defined twice in a set; the first definition counts.", true},
    {definitionfaults::simpleProperty, "A property is called simple; it is read as one of a single value."},
    {definitionfaults::kindMissing, "A property has no kind, or none of ISO 16739's; any kind of property will do."},
    {definitionfaults::typeMissing, "The type of a property's values is empty; any type will do."},
    {definitionfaults::typeUnknown, "The release has no such type of values or no such entity; any will do.", true},
    {definitionfaults::typeIsEntity, "A single value is of an entity; where properties can refer to that, a reference "
                                     "is meant, else any value will do."},
    {definitionfaults::unitIsMeasure,
     "A unit type is given by the name of a measure; it is read as that of the measure's unit, none where that has "
     "none."},
    {definitionfaults::unitMissing, "A unit type is empty or left open; none is taken."},
    {definitionfaults::unitUnknown, "The release has no such unit type; none is taken.", true},
    {definitionfaults::unitMismatch, "The unit type is not that of the values' type, which decides.", true},
    {definitionfaults::enumeratorRepeated, "An enumerator is listed twice; it counts once."},
    {definitionfaults::enumeratorsElsewhere, "The list of enumerators is empty; the constants beside it are taken."},
    {definitionfaults::enumeratorsDiffer, "The list of enumerators and the constants beside it are not the same; what "
                                          "either has is taken, the list's first."},
    {definitionfaults::enumeratorsMissing, "An enumerated property lists no values; any value will do."},
};

} // namespace

std::span<const DefinitionFaultKind> definitionFaultKinds() noexcept {
    return kinds;
}

const DefinitionFaultKind* definitionFaultKind(std::string_view name) noexcept {
    const auto* const found = std::ranges::find(kinds, name, &DefinitionFaultKind::name);
    return found == std::end(kinds) ? nullptr : found;
}

} // namespace velkor
