/// What the step of identifiers does, and why.
#pragma once

#include "velkor/exchange/ConversionReport.h"

#include <span>

namespace velkor::exchange {

extern const ConversionRule malformedIdentifier;
extern const ConversionRule missingIdentifier;
extern const ConversionRule duplicateIdentifier;
extern const ConversionRule plmIdentifier;
extern const ConversionRule plmIdentifierBeyond;
extern const ConversionRule plmIdentifierTaken;
extern const ConversionRule plmIdentifierAbsent;
extern const ConversionRule identifierUnreadable;

std::span<const ConversionRule* const> identifierRules();

} // namespace velkor::exchange
