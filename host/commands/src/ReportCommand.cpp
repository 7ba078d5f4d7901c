// velkor report

#include "Commands.h"
#include "models/ModelWork.h"
#include "output/PropertySetText.h"
#include "output/Report.h"
#include "output/ReportOverview.h"
#include "ResultFile.h"
#include "velkor/check/ModelCheck.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/identifiers/GuidCheck.h"
#include "velkor/identifiers/GuidText.h"
#include "velkor/propertysets/DefinitionSearch.h"
#include "velkor/resources/ResourceSearch.h"
#include "velkor/sdai/Model.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

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

/// The pages of several models, and the one that leads to them.
class PageFolder {
public:
    explicit PageFolder(std::string folder) : _folder(std::move(folder)) {}

    /// Gives each model the name of its page, and makes the folder. What is wrong with it; empty for nothing.
    std::string prepare(const std::vector<ModelInput>& models) {
        std::error_code none;
        if (std::filesystem::exists(_folder, none) && !std::filesystem::is_directory(_folder, none))
            return "-o: expected a folder, found " + text::quoted(_folder);
        std::set<std::string> taken{text::asciiUpper(overviewName)};
        for (const ModelInput& model : models) {
            const std::string stem = linkableName(model.name());
            std::string name = stem + ".html";
            for (std::size_t i = 2; !taken.insert(text::asciiUpper(name)).second; ++i)
                name = stem + '-' + std::to_string(i) + ".html";
            _names.push_back(std::move(name));
        }
        // Who writes there tells when there is none.
        std::filesystem::create_directories(_folder, none);
        return {};
    }

    /// Writes the page of a model, and puts into `facts` what its row says.
    void write(CommandContext& context, const ModelInput& input, const Report& report, Json& facts) const {
        std::ostringstream page;
        writeReportHtml(page, report);
        const std::string& name = _names.at(input.place);
        if (!writeResultFile(context, path(name), page.str())) return;
        const auto counts = [](const ProblemSummary& problems) -> Json {
            return {problems.errors, problems.warnings, problems.total};
        };
        facts.update({{"page", name},
                      {"release", report.facts.release},
                      {"bytes", report.facts.bytes},
                      {"problem_counts", counts(report.problems)},
                      {"set_counts", counts(report.setFindings)}});
    }

    void take(const ModelInput& input, const Json& facts, const std::string& reason) {
        OverviewRow row{input.name()};
        row.page = facts.value("page", std::string());
        // The row begins with the name.
        const std::string lead = input.name() + ": ";
        row.reason = reason.starts_with(lead) ? reason.substr(lead.size()) : reason;
        if (!row.page.empty()) {
            const auto summary = [&](const char* member) {
                const Json& counts = facts.at(member);
                return ProblemSummary{{}, counts.at(0), counts.at(1), counts.at(2)};
            };
            row.release = facts.value("release", std::string());
            row.bytes = facts.value("bytes", std::uint64_t(0));
            row.instances = facts.value("instances", std::uint64_t(0));
            row.problems = summary("problem_counts");
            row.setFindings = summary("set_counts");
        }
        _rows.push_back(std::move(row));
    }

    void writeOverview(CommandContext& context) const {
        std::ostringstream page;
        writeReportOverview(page, _rows);
        if (!_rows.empty() && writeResultFile(context, path(overviewName), page.str()))
            context.out << path(overviewName) << ": an overview with a link to each\n";
    }

private:
    static constexpr const char* overviewName = "index.html";
    static constexpr std::size_t longestStem = 200;

    // Of letters that neither a link nor any file system has to escape.
    static std::string linkableName(const std::string& model) {
        std::string name = std::filesystem::path(model).filename().string().substr(0, longestStem);
        const auto isPlain = [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '.';
        };
        std::ranges::replace_if(
            name, [&](char c) { return !isPlain(c); }, '_');
        if (name.empty() || name.front() == '.' || name.front() == '-') name.insert(0, "_");
        return name;
    }
    std::string path(const std::string& name) const { return (std::filesystem::path(_folder) / name).string(); }

    std::string _folder;
    std::vector<std::string> _names;
    std::vector<OverviewRow> _rows;
};

Report reportOf(CommandContext& context, const sdai::Model& model, const PlatformSetup& setup,
                const SetLibrary& library) {
    Report report{modelFacts(model), unitReport(model), {}, 0, {}, {}, {}, {}};
    ModelCheckOptions options = context.checkOptions(mostProblems);
    // Those of identifiers stand for themselves.
    options.codes.ignore.assign(guid::codes.begin(), guid::codes.end());
    const CheckResult check = checkModel(model, options);
    report.problems = summarized(check.problems, check.total);
    const guid::GuidCheck guids = guid::checkGuids(model, context.checkOptions(mostProblems));
    report.identifierCount = guids.count;
    report.identifiers = summarized(guids.result.problems, guids.result.total);
    addPropertySets(context, model, library, report);
    addClassification(context, model, setup, report);
    return report;
}

/// Of one model, into a page of its own where there are `pages`.
void reportOne(CommandContext& context, const ModelInput& input, const PageFolder* pages, Json& facts) {
    const auto model = input.openModel(context);
    if (!model) return;
    const PlatformSetup setup(context.configuration, context.tell());
    const SetLibrary library(definitionViews(setup));
    const Report report = reportOf(context, *model, setup, library);
    facts = {{"instances", report.facts.instanceCount},
             {"problems", report.problems.total},
             {"set_findings", report.setFindings.total}};
    if (context.json())
        writeModelJson(context, reportJson(report));
    else if (pages != nullptr)
        pages->write(context, input, report, facts);
    else if (context.format == htmlFormat)
        writeReportHtml(context.out, report);
    else
        writeReportPage(context.out, context.color, report);
    for (const std::string& reason : unreadableDefinitions(report.propertySets, library))
        context.reportUnreadable(reason);
}

void runReport(CommandContext& context, const ModelArguments& models, const std::string& folder) {
    const bool isHtml = context.format == htmlFormat;
    if (!folder.empty() && !isHtml) return context.reportBadUsage("-o needs --format html");
    if (folder.empty() && isHtml && !models.isSingle())
        return context.reportBadUsage("--format html: several models need -o FOLDER");
    PageFolder pages(folder);
    const PageFolder* const used = folder.empty() ? nullptr : &pages;
    ModelWork work{.run = [used](CommandContext& one, const ModelInput& input, Json& facts) {
        reportOne(one, input, used, facts);
    }};
    work.done = "read";
    work.totals = {{"instances", "instance", "instances"},
                   {"problems", "problem", "problems"},
                   {"set_findings", "finding in property sets", "findings in property sets"}};
    work.isFileObject = true;
    if (used != nullptr) {
        work.fault = [&](const std::vector<ModelInput>& list) { return pages.prepare(list); };
        work.take = [&](const ModelInput& input, const Json& facts, const std::string& reason) {
            pages.take(input, facts, reason);
        };
    }
    workOnModels(context, models, work);
    if (used != nullptr && context.status != BadUsage) pages.writeOverview(context);
}

} // namespace

void addReportCommand(const Command& app, CommandContext& context) {
    const Command command = app.addCommand("report", "One page about a model");
    const auto models = std::make_shared<ModelArguments>();
    models->addTo(command);
    command.example("velkor report house.ifc --format html > house.html\n\n"
                    "Problems of the model do not change the exit status.");
    const auto folder = std::make_shared<std::string>();
    command
        .addOption(
            "-o,--output", *folder,
            "With --format html: write a page for each model into this folder, and index.html, which leads to them")
        .valueName("FOLDER");
    const auto run = [&context, models, folder] { runReport(context, *models, *folder); };
    context.complete(command, run, {jsonLinesFormat, htmlFormat});
}

} // namespace velkor::host
