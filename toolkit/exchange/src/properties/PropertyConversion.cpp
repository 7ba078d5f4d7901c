#include "ChangeList.h"
#include "properties/PropertyMapper.h"
#include "properties/PropertyRules.h"
#include "ResultHeader.h"
#include "velkor/exchange/Conversion.h"

namespace velkor {

using namespace exchange;

Converted<StepReport> convertProperties(const sdai::Model& model, const PropertyOptions& options,
                                        files::OutputFile& output) {
    if (options.setup == nullptr)
        return tl::unexpected(std::string("properties are mapped by the documents of a set-up"));
    const auto mapping = TypeMapping::load(
        *options.setup, {.customMapping = options.customMapping.has_value(), .plmAttributes = options.plmAttributes});
    if (!mapping) return tl::unexpected(mapping.error());
    ChangeList changes(model.file(), options.limit);
    sdai::Part21Edit edit(model.file());
    if (auto done = setResultHeader(edit, model.file(), {}, changes); !done) return tl::unexpected(done.error());
    PropertyMapper mapper(model, *mapping, options, edit, changes);
    const auto isDone = mapper.run();
    if (!isDone) return tl::unexpected(isDone.error());
    if (!*isDone) return tl::unexpected(std::string("the conversion was ended before its end"));
    edit.write(output);
    StepReport report;
    report.step = "properties";
    report.converted = mapper.converted();
    report.kept = model.file().instanceCount() - report.converted;
    report.added = mapper.added();
    report.uses = changes.uses(propertyRules());
    return report;
}

} // namespace velkor
