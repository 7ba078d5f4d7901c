/// The units of a model as JSON.
#pragma once

#include "output/Json.h"
#include "velkor/units/UnitReport.h"

namespace velkor::host {

/// The members that `velkor units` has beside file and release.
Json unitReportJson(const UnitReport& report);

} // namespace velkor::host
