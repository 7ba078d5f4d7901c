// velkor report

#include "Commands.h"
#include "models/ModelWork.h"
#include "output/PropertySetText.h"
#include "output/Report.h"
#include "velkor/check/ModelCheck.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/identifiers/GuidCheck.h"
#include "velkor/identifiers/GuidText.h"
#include "velkor/propertysets/DefinitionSearch.h"
#include "velkor/resources/ResourceSearch.h"
#include "velkor/sdai/Model.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

// Enough for a summary by kind.
constexpr std::size_t mostProblems = 10'000;
constexpr const char* htmlFormat = "html";

void addPropertySets(CommandContext& context, const sdai::Model& model, const SetLibrary& library, Report& report) {
    report.propertySets = checkPropertySets(model, library, context.checkOptions(mostProblems));
    std::vector<sdai::Problem> problems;
    for (SetFinding& finding : report.propertySets.findings) problems.push_back(std::move(finding.problem));
    report.propertySets.findings.clear();
    report.setFindings = summarized(problems, report.propertySets.total);
}

// A document that is there and cannot be read is the user's to mend; without one the page says so and no more.
void addClassification(CommandContext& context, const sdai::Model& model, const PlatformSetup& setup, Report& report) {
    report.classified = classifyAsConfigured(model, setup, context.progress());
    if (!report.classified && searchResource(aecMappingResource, setup).isUsable())
        context.reportUnreadable(report.classified.error());
}

void runReport(CommandContext& context, const ModelInput& input, Json& facts) {
    const auto model = input.openModel(context);
    if (!model) return;
    const PlatformSetup setup(context.configuration, context.tell());
    const SetLibrary library(definitionViews(setup));
    Report report{modelFacts(*model), unitReport(*model), {}, 0, {}, {}, {}, {}};
    ModelCheckOptions options = context.checkOptions(mostProblems);
    // Those of identifiers stand for themselves.
    options.codes.ignore.assign(guid::codes.begin(), guid::codes.end());
    const CheckResult check = checkModel(*model, options);
    report.problems = summarized(check.problems, check.total);
    const guid::GuidCheck guids = guid::checkGuids(*model, context.checkOptions(mostProblems));
    report.identifierCount = guids.count;
    report.identifiers = summarized(guids.result.problems, guids.result.total);
    addPropertySets(context, *model, library, report);
    addClassification(context, *model, setup, report);
    facts = {{"instances", report.facts.instanceCount},
             {"problems", report.problems.total},
             {"set_findings", report.setFindings.total}};
    if (context.json())
        writeModelJson(context, reportJson(report));
    else if (context.format == htmlFormat)
        writeReportHtml(context.out, report);
    else
        writeReportPage(context.out, context.color, report);
    for (const std::string& reason : unreadableDefinitions(report.propertySets, library))
        context.reportUnreadable(reason);
}

} // namespace

void addReportCommand(const Command& app, CommandContext& context) {
    const Command command = app.addCommand("report", "One page about a model");
    const auto models = std::make_shared<ModelArguments>();
    models->addTo(command);
    command.example("velkor report house.ifc --format html > house.html\n\n"
                    "Problems of the model do not change the exit status.");
    const auto run = [&context, models] {
        if (context.format == htmlFormat && !models->isSingle())
            return context.reportBadUsage("--format html takes one model");
        ModelWork work{.run = runReport, .done = "read"};
        work.totals = {{"instances", "instance", "instances"},
                       {"problems", "problem", "problems"},
                       {"set_findings", "finding in property sets", "findings in property sets"}};
        work.isFileObject = true;
        workOnModels(context, *models, work);
    };
    context.complete(command, run, {jsonLinesFormat, htmlFormat});
}

} // namespace velkor::host
