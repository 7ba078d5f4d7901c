/// What the step for properties does, as rules that a report names.
#pragma once

#include "velkor/exchange/ConversionReport.h"

#include <span>

namespace velkor::exchange {

namespace propertyrule {

extern const ConversionRule setRenamed;
extern const ConversionRule setDivided;
extern const ConversionRule setCopied;
extern const ConversionRule setJoined;
extern const ConversionRule propertyRenamed;

} // namespace propertyrule

/// All of them, in the order of a report.
std::span<const ConversionRule* const> propertyRules();

} // namespace velkor::exchange
