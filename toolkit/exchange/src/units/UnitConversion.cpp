#include "ChangeList.h"
#include "ResultHeader.h"
#include "units/UnitAssignment.h"
#include "units/UnitRewriter.h"
#include "units/UnitRules.h"
#include "velkor/exchange/Conversion.h"

namespace velkor {

using namespace exchange;

Converted<StepReport> convertUnits(const sdai::Model& model, const UnitOptions& options, files::OutputFile& output) {
    const auto assignment = UnitAssignment::read(model, options.units);
    if (!assignment) return tl::unexpected(assignment.error());
    ChangeList changes(model.file(), options.limit);
    sdai::Part21Edit edit(model.file());
    if (auto done = setResultHeader(edit, model.file(), {}, changes); !done) return tl::unexpected(done.error());
    if (auto done = assignment->rewrite(edit, changes); !done) return tl::unexpected(done.error());
    MeasureRatios ratios(model.schema(), assignment->ratios(),
                         [&](std::string_view type) { return assignment->isAssigned(type); });
    UnitRewriter rewriter(model, ratios, changes, options.progress);
    edit.write(output, rewriter);
    if (rewriter.isEnded()) return tl::unexpected(std::string("the conversion was ended before its end"));
    StepReport report;
    report.step = "units";
    report.converted = rewriter.converted() + assignment->ratios().size();
    report.kept = model.file().instanceCount() - report.converted;
    report.uses = changes.uses(unitRules());
    return report;
}

} // namespace velkor
