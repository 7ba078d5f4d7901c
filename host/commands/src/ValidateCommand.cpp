// velkor validate

#include "Commands.h"
#include "LimitOption.h"
#include "models/ModelWork.h"
#include "output/Csv.h"
#include "output/Json.h"
#include "output/ProblemText.h"
#include "output/PropertySetText.h"
#include "terminal/TextTable.h"
#include "velkor/check/ProblemSummary.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/propertysets/DefinitionSearch.h"
#include "velkor/propertysets/PropertySetCheck.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <span>

namespace velkor::host {

namespace {

/// Names without a definition that people are told.
constexpr std::size_t mostNames = 8;

struct Options {
    ModelArguments models;
    CodeFilter codes;
    std::size_t limit = defaultLimit;
};

std::vector<std::string_view> codeNames() {
    std::vector<std::string_view> names;
    for (const SetCode& code : setCodes()) names.push_back(code.code);
    return names;
}

/// A line for each name of a set. Without a definition nothing is known to be missing.
void writeSummaries(TextSink out, const PropertySetCheck& check, std::size_t limit) {
    TextTable table({{"set"},
                     {"sets", TextTable::Right},
                     {"objects", TextTable::Right},
                     {"filled", TextTable::Right},
                     {"missing", TextTable::Right},
                     {"wrong", TextTable::Right}});
    for (const SetSummary& summary : std::span(check.summaries).first(std::min(limit, check.summaries.size()))) {
        table.add({summary.name.empty() ? "(no name)" : summary.name, text::grouped(summary.sets),
                   text::grouped(summary.objects), text::grouped(summary.filled),
                   summary.isDefined ? text::grouped(summary.missing) : "-", text::grouped(summary.wrong)});
    }
    if (table.empty()) return;
    if (!check.findings.empty()) out << '\n';
    table.write(out);
    out << '\n';
}

void writeText(TextSink out, const std::string& file, const PropertySetCheck& check, std::size_t limit) {
    for (const SetFinding& finding : check.findings) writeProblem(out, file, finding.problem);
    writeSummaries(out, check, limit);
    out << file << ": " << (check.total == 0 ? "no findings" : text::counted(check.total, "finding", "findings"));
    if (check.total > check.findings.size())
        out << ", the first " << text::grouped(check.findings.size()) << " are listed (--limit shows more)";
    out << "; " << coverageText(check) << '\n';
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

Json summaryJson(const SetSummary& summary) {
    return {{"set", summary.name},      {"defined", summary.isDefined},
            {"sets", summary.sets},     {"objects", summary.objects},
            {"filled", summary.filled}, {"missing", summary.isDefined ? Json(summary.missing) : Json()},
            {"wrong", summary.wrong}};
}

Json resultJson(const sdai::Model& model, const PropertySetCheck& check) {
    Json json{{"file", model.file().path()}, {"release", model.schema().name()}};
    json.update(coverageJson(check));
    Json findings = Json::array(), summaries = Json::array();
    for (const SetFinding& finding : check.findings) findings.push_back(findingJson(finding));
    for (const SetSummary& summary : check.summaries) summaries.push_back(summaryJson(summary));
    json["total"] = check.total;
    json["findings"] = std::move(findings);
    json["defined_by"] = check.definedBy;
    json["summaries"] = std::move(summaries);
    return json;
}

void writeCsv(CommandContext& context, const PropertySetCheck& check) {
    context.out << "line,instance,severity,code,set,object,entity,object_name,others,property,nearest,message\r\n";
    for (const SetFinding& finding : check.findings) {
        const sdai::Problem& problem = finding.problem;
        const std::string object = finding.object == 0 ? std::string() : std::to_string(finding.object);
        context.out << problem.line << ',' << problem.instance << ',' << std::string_view(name(problem.severity)) << ','
                    << problem.code << ',' << csvField(finding.set) << ',' << object << ','
                    << csvField(finding.objectEntity) << ',' << csvField(finding.objectName) << ',' << finding.others
                    << ',' << csvField(finding.property) << ',' << csvField(finding.nearest) << ','
                    << csvField(problem.message) << "\r\n";
    }
    if (check.total > check.findings.size()) {
        context.err << "velkor: the first " << text::grouped(check.findings.size()) << " of "
                    << text::grouped(check.total) << " findings are listed (--limit shows more)\n";
    }
}

void writeResult(CommandContext& context, const sdai::Model& model, const PropertySetCheck& check, std::size_t limit) {
    if (context.json())
        writeModelJson(context, resultJson(model, check));
    else if (context.csv())
        writeCsv(context, check);
    else
        writeText(context.out, model.file().name(), check, limit);
}

void runValidate(CommandContext& context, const Options& options, const ModelInput& input, Json& facts) {
    const auto model = input.openModel(context);
    if (!model) return;
    const PlatformSetup setup(context.configuration, context.tell());
    const SetLibrary library(definitionViews(setup));
    const PropertySetCheck check =
        checkPropertySets(*model, library, {options.limit, context.progress(), options.codes});
    if (!check.hasDefinitions) return context.reportUnreadable(noDefinitions);
    context.status = check.total == 0 ? Done : Findings;
    facts = {{"findings", check.total}};
    writeResult(context, *model, check, options.limit);
    for (const std::string& reason : unreadableDefinitions(check, library)) context.reportUnreadable(reason);
}

} // namespace

void addValidateCommand(const Command& app, CommandContext& context) {
    const Command command =
        app.addCommand("validate", "The property sets and quantity sets of a model against their definitions");
    const auto options = std::make_shared<Options>();
    options->models.addTo(command);
    command.addOption("--only", options->codes.only, "List these kinds of findings only")
        .valueName("CODE,…")
        .someOf(codeNames());
    command.addOption("--ignore", options->codes.ignore, "List all kinds of findings but these")
        .valueName("CODE,…")
        .someOf(codeNames());
    addLimitOption(command, options->limit, "findings");
    command.example("velkor validate house.ifc --format csv\n\nExit status 1 when there are findings.");
    const auto run = [&context, options] {
        ModelWork work{.run = [options](CommandContext& one, const ModelInput& input, Json& facts) {
            runValidate(one, *options, input, facts);
        }};
        work.totals = {{"findings", "finding", "findings"}};
        work.isHeaded = true;
        workOnModels(context, options->models, work);
    };
    context.complete(command, run, {jsonLinesFormat, "csv"});
}

} // namespace velkor::host
