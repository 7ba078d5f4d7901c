/// Values of properties as quantities.
#pragma once

#include "ReleaseSchema.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <string>

namespace velkor::exchange {

/// The record of the quantity that says the value of an IFCPROPERTYSINGLEVALUE; empty when there is none such: the
/// value is no number of its measures, is below 0 or has a unit that quantities can't have.
std::string quantityOf(const sdai::Model& model, const ReleaseSchema& schema, std::uint32_t property,
                       const std::string& name);

} // namespace velkor::exchange
