#include "ChangeList.h"
#include "ResultHeader.h"
#include "units/UnitAssignment.h"
#include "units/UnitRewriter.h"
#include "units/UnitRules.h"
#include "velkor/exchange/Conversion.h"

namespace velkor {

using namespace exchange;

Converted<StepReport> convertUnits(const sdai::Model& model, const UnitOptions& options, files::OutputFile& output) {
    auto assignment = UnitAssignment::read(model, options.units);
    if (!assignment) return tl::unexpected(assignment.error());
    ChangeList changes(model.file(), options.limit);
    sdai::Part21Edit edit(model.file());
    if (auto done = setResultHeader(edit, model.file(), {}, changes); !done) return tl::unexpected(done.error());
    if (auto done = assignment->rewrite(edit, changes); !done) return tl::unexpected(done.error());
    StepReport report;
    report.step = "units";
    report.kept = model.file().instanceCount();
    if (assignment->ratios().empty()) {
        edit.write(output);
        return report;
    }
    MeasureRatios ratios(model.schema(), assignment->ratios(),
                         [&](std::string_view type) { return assignment->isAssigned(type); });
    UnitRewriter rewriter(model, ratios, edit, changes, options.progress);
    edit.write(output, rewriter);
    rewriter.finish();
    if (rewriter.isEnded()) return tl::unexpected(std::string("the conversion was ended before its end"));
    report.converted = rewriter.converted() + assignment->counts().converted;
    report.rebuilt = assignment->counts().dropped;
    report.added = assignment->counts().added;
    report.kept -= report.converted + report.rebuilt;
    report.uses = changes.uses(unitRules());
    return report;
}

} // namespace velkor
