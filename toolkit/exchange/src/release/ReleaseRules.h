/// Every rule that the release step may follow.
#pragma once

#include "velkor/exchange/ConversionReport.h"

#include <span>

namespace velkor::exchange {

/// In the order of the tables.
std::span<const ConversionRule* const> releaseRules();

} // namespace velkor::exchange
