/// Positions of IFC enumeration values as the unit tables count them.
#pragma once

#include "Fileschema.h"

#include "velkor/sdai/Value.h"

namespace velkor::library {

/// Position of an enumeration value in the dictionary of `schema`, taken there by name when the value comes
/// from another release; -1 when that knows no such value.
int unitPosition(const sdai::Enumeration& value, Fileschema schema);

} // namespace velkor::library
