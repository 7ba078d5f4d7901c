#include "ChangeList.h"
#include "release/ReleaseRewriter.h"
#include "release/ReleaseRules.h"
#include "ResultHeader.h"
#include "velkor/exchange/Conversion.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"

namespace velkor {

using namespace exchange;

namespace exchange {

std::span<const ConversionRule* const> releaseRules() {
    static const std::vector<const ConversionRule*> rules = [] {
        std::vector<const ConversionRule*> all = RuleBook::all();
        all.insert(all.end(), headerRules().begin(), headerRules().end());
        return all;
    }();
    return rules;
}

} // namespace exchange

Converted<StepReport> convertRelease(const sdai::Model& model, const ReleaseOptions& options,
                                     files::OutputFile& output) {
    const auto schema = DXSdaiDictionaryRepo::TheOne().schema(options.release);
    if (!schema) return tl::unexpected(schema.error().message);
    const ReleaseSchema source(model.schema());
    const ReleaseSchema target(**schema);
    const Releases releases{source, target};
    ChangeList changes(model.file(), options.limit);
    sdai::Part21Edit edit(model.file());
    const ResultHeader header{.schema = target.name(), .timeStamp = options.timeStamp};
    if (auto done = setResultHeader(edit, model.file(), header, changes); !done) return tl::unexpected(done.error());
    if (source.name() == target.name()) {
        // Rules are for what another release says otherwise.
        edit.write(output);
        StepReport report;
        report.step = "release";
        report.kept = model.file().instanceCount();
        report.uses = changes.uses(releaseRules());
        return report;
    }
    RuleBook book;
    const ReleaseNames names(releases, options.setup);
    ReleasePlan plan(model, releases, book, names, edit);
    plan.decide();
    ReleaseRewriter rewriter(plan, changes, options.timeStamp.empty() ? model.header().timeStamp : options.timeStamp,
                             options.progress);
    rewriter.settle();
    edit.write(output, rewriter);
    if (rewriter.isEnded()) return tl::unexpected(std::string("the conversion was ended before its end"));
    const ReleaseRewriter::Counts& counts = rewriter.counts();
    StepReport report;
    report.step = "release";
    report.converted = counts.converted;
    report.rebuilt = counts.rebuilt;
    report.lost = counts.lost;
    report.added = counts.added;
    report.kept = model.file().instanceCount() - counts.converted - counts.rebuilt - counts.lost;
    report.uses = changes.uses(releaseRules());
    return report;
}

} // namespace velkor
