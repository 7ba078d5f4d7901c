/// Positions of IFC enumeration values as the unit tables count them.
#pragma once

#include "Fileschema.h"

#include "velkor/sdai/Value.h"

namespace velkor::library {

/// Positions in IFCUNITENUM that the unit services treat on their own.
enum UnitEnumPosition : int { AreaUnit = 2, LengthUnit = 15, MassUnit = 20, PlaneAngleUnit = 21, VolumeUnit = 28 };

/// Slot of the first value of IFCDERIVEDUNITENUM in a table of factors. It is also that of IFCUNITENUM's
/// last value, USERDEFINED.
inline constexpr int firstDerivedSlot = 29;

/// Position of an enumeration value in the dictionary of `schema`, taken there by name when the value comes
/// from another release; -1 when that knows no such value.
int unitPosition(const sdai::Enumeration& value, Fileschema schema);

} // namespace velkor::library
