#include "ResultHeader.h"

#include "velkor/model/ModelFacts.h"

namespace velkor::exchange {

namespace {

constexpr std::string_view noView = "notYetAssigned";

constexpr ConversionRule viewRule{
    "view-definition", Effect::Converted, "View definitions of the header become notYetAssigned",
    "A view is defined for one release, and nobody has held the result to one of the other release"};

constexpr const ConversionRule* rules[] = {&viewRule};

void forgetViews(sdai::FileHeader& header, ChangeList& changes) {
    for (std::string& entry : header.description) {
        const std::string_view view = viewDefinition(entry);
        if (view.empty() || view == noView) continue;
        std::string detail = "no view in place of ";
        detail += view;
        changes.noteFile(viewRule, std::move(detail));
        entry.replace(static_cast<std::size_t>(view.data() - entry.data()), view.size(), noView);
    }
}

bool isSame(const sdai::FileHeader& one, const sdai::FileHeader& other) {
    return one.description == other.description && one.timeStamp == other.timeStamp &&
           one.preprocessorVersion == other.preprocessorVersion && one.schemas == other.schemas;
}

} // namespace

tl::expected<void, std::string> setResultHeader(sdai::Part21Edit& edit, const sdai::Part21File& file,
                                                const ResultHeader& wanted, ChangeList& changes) {
    sdai::FileHeader header = file.header();
    header.preprocessorVersion = "Velkor " VELKOR_VERSION;
    if (!wanted.timeStamp.empty()) header.timeStamp = wanted.timeStamp;
    const std::vector<std::string> schemas{std::string(wanted.schema)};
    if (!wanted.schema.empty() && header.schemas != schemas) {
        header.schemas = schemas;
        forgetViews(header, changes);
    }
    if (isSame(header, file.header())) return {};
    auto done = edit.setHeader(header);
    if (!done && wanted.schema.empty()) return {};
    return done;
}

std::span<const ConversionRule* const> headerRules() {
    return rules;
}

} // namespace velkor::exchange
