/// The kinds of faults of definitions; definitionFaultKinds() says what each means.
#pragma once

#include <string_view>

namespace velkor::definitionfaults {

// Of texts.
inline constexpr std::string_view blanks = "blanks";
inline constexpr std::string_view strayPoint = "stray-point";
inline constexpr std::string_view nameMissing = "name-missing";
inline constexpr std::string_view nameDiffers = "name-differs";
inline constexpr std::string_view templateUnknown = "template-unknown";

// Of classes.
inline constexpr std::string_view classWithSchema = "class-with-schema";
inline constexpr std::string_view classMissing = "class-missing";
inline constexpr std::string_view classesInOneText = "classes-in-one-text";
inline constexpr std::string_view classRepeated = "class-repeated";
inline constexpr std::string_view classUnknown = "class-unknown";
inline constexpr std::string_view predefinedTypeUnknown = "predefined-type-unknown";
inline constexpr std::string_view condition = "condition";

// Of properties.
inline constexpr std::string_view propertyRepeated = "property-repeated";
inline constexpr std::string_view simpleProperty = "simple-property";
inline constexpr std::string_view kindMissing = "kind-missing";
inline constexpr std::string_view typeMissing = "type-missing";
inline constexpr std::string_view typeUnknown = "type-unknown";
inline constexpr std::string_view typeIsEntity = "type-is-entity";
inline constexpr std::string_view unitIsMeasure = "unit-is-measure";
inline constexpr std::string_view unitMissing = "unit-missing";
inline constexpr std::string_view unitUnknown = "unit-unknown";
inline constexpr std::string_view unitMismatch = "unit-mismatch";
inline constexpr std::string_view enumeratorRepeated = "enumerator-repeated";
inline constexpr std::string_view enumeratorsElsewhere = "enumerators-elsewhere";
inline constexpr std::string_view enumeratorsDiffer = "enumerators-differ";
inline constexpr std::string_view enumeratorsMissing = "enumerators-missing";

} // namespace velkor::definitionfaults
