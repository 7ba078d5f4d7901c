/// What the step for units does, as rules that a report names.
#pragma once

#include "velkor/exchange/ConversionReport.h"

#include <span>

namespace velkor::exchange {

namespace unitrule {

extern const ConversionRule unitReplaced;
extern const ConversionRule unitAdded;
extern const ConversionRule measure;
extern const ConversionRule hiddenMeasure;
extern const ConversionRule curveParameter;
extern const ConversionRule surfaceParameter;
extern const ConversionRule mapScale;
extern const ConversionRule numberUnreadable;
extern const ConversionRule notWhole;
extern const ConversionRule notUnderstood;
extern const ConversionRule parameterShared;

} // namespace unitrule

/// All of them, in the order of a report.
std::span<const ConversionRule* const> unitRules();

} // namespace velkor::exchange
