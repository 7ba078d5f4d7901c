/// The units of a model as JSON and as a section of a page.
#pragma once

#include "output/Json.h"
#include "terminal/Page.h"
#include "velkor/units/UnitReport.h"

namespace velkor::host {

/// The members that `velkor units` has beside file and release.
Json unitReportJson(const UnitReport& report);

/// The section of a report.
void writeUnits(Page& page, const UnitReport& report);

} // namespace velkor::host
