// velkor validate

#include "Commands.h"
#include "LimitOption.h"
#include "output/Json.h"
#include "output/ProblemText.h"
#include "output/PropertySetText.h"
#include "terminal/DisplayText.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/propertysets/PropertySetCheck.h"
#include "velkor/text/Wording.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

/// Names without a definition that people are file.
constexpr std::size_t mostNames = 8;

struct Options {
    std::string path;
    std::size_t limit = defaultLimit;
};

void writeText(TextSink out, const std::string& file, const PropertySetCheck& check) {
    for (const SetFinding& finding : check.findings) writeProblem(out, file, finding.problem);
    out << file << ": " << (check.total == 0 ? "no findings" : text::counted(check.total, "finding", "findings"));
    if (check.total > check.findings.size())
        out << ", the first " << text::grouped(check.findings.size()) << " are listed (--limit shows more)";
    out << "; " << text::grouped(check.checkedSets) << " of " << text::counted(check.sets, "set", "sets") << " and "
        << text::grouped(check.checkedProperties) << " of "
        << text::counted(check.properties, "property or quantity", "properties and quantities") << " checked\n";
    if (check.customSets > 0) out << file << ": " << text::counted(check.customSets, "set", "sets") << " of your own\n";
    if (check.uncheckedSets() > 0) out << file << ": no definition for " << undefinedText(check, mostNames) << '\n';
}

Json findingJson(const SetFinding& finding) {
    const Json object =
        finding.object == 0
            ? Json()
            : Json{{"instance", finding.object}, {"entity", finding.objectEntity}, {"name", finding.objectName}};
    Json json = problemJson(finding.problem);
    json.update({{"set", finding.set},
                 {"object", object},
                 {"others", finding.others},
                 {"property", textOrNull(finding.property)},
                 {"nearest", textOrNull(finding.nearest)}});
    return json;
}

void writeResult(CommandContext& context, const sdai::Model& model, const PropertySetCheck& check) {
    if (!context.json()) return writeText(context.out, model.file().name(), check);
    Json json{{"file", model.file().name()}, {"release", model.schema().name()}};
    json.update(coverageJson(check));
    Json findings = Json::array();
    for (const SetFinding& finding : check.findings) findings.push_back(findingJson(finding));
    json["total"] = check.total;
    json["findings"] = std::move(findings);
    writeJson(context.out, json);
}

void runValidate(CommandContext& context, const Options& options) {
    const auto model = context.openModel(options.path);
    if (!model) return;
    const PlatformSetup setup(context.configuration, context.tell());
    const PropertySetCheck check = checkPropertySets(*model, context.checkOptions(options.limit));
    if (!check.hasDefinitions) {
        return context.reportUnreadable(
            "there are no definitions of property sets to check by; velkor resources says where they are looked for");
    }
    context.status = check.total == 0 ? Done : Findings;
    writeResult(context, *model, check);
    for (const std::string& reason : unreadableDefinitions(check)) context.reportUnreadable(reason);
}

} // namespace

void addValidateCommand(const Command& app, CommandContext& context) {
    const Command command =
        app.addCommand("validate", "The property sets and quantity sets of a model against their definitions");
    const auto options = std::make_shared<Options>();
    command.addOption("MODEL", options->path, "IFC file").required();
    addLimitOption(command, options->limit, "findings");
    command.example("velkor validate house.ifc\n\nExit status 1 when there are findings.");
    context.complete(command, [&context, options] { runValidate(context, *options); });
}

} // namespace velkor::host
