/// What the step of properties does, and why.
#pragma once

#include "velkor/exchange/ConversionReport.h"

#include <span>

namespace velkor::exchange {

extern const ConversionRule customName;
extern const ConversionRule plmAttribute;
extern const ConversionRule valueToQuantity;
extern const ConversionRule setRenamed;
extern const ConversionRule setAdded;
extern const ConversionRule setSplit;
extern const ConversionRule setEmptied;
extern const ConversionRule mappingRefused;

std::span<const ConversionRule* const> propertyRules();

} // namespace velkor::exchange
