// velkor resources check

#include "Commands.h"
#include "LimitOption.h"
#include "output/Json.h"
#include "output/ProblemText.h"
#include "terminal/DisplayText.h"
#include "velkor/check/ProblemSummary.h"
#include "velkor/resources/ResourceCheck.h"
#include "velkor/text/Wording.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

using lint::CheckedFile;
using lint::Finding;
using lint::FindingCounts;
using lint::LinterKind;

struct Options {
    std::vector<std::string> paths;
    std::string kind;
    std::size_t limit = defaultLimit;
};

std::string summary(const FindingCounts& counts) {
    std::string result =
        text::counted(counts.files, "file", "files") + ", " + text::counted(counts.entries, "entry", "entries");
    if (counts.findings() == 0) return result + ", no findings";
    return result + ", " + text::counted(counts.errors, "error", "errors") + ", " +
           text::counted(counts.warnings, "warning", "warnings");
}

void writeText(CommandContext& context, const std::vector<CheckedFile>& files, const FindingCounts& total,
               bool isSearched) {
    for (const CheckedFile& file : files) {
        for (const Finding& finding : file.judgement.findings) {
            context.out << file.path << ':' << finding.line << ": " << name(finding.severity) << ": "
                        << shortenedOn(context.out, finding.message, longestMessage)
                        << (finding.hint.empty() ? "" : "; ") << shortenedOn(context.out, finding.hint, longestMessage)
                        << " [" << finding.code << "]\n";
        }
    }
    for (const LinterKind& kind : lint::linterKinds()) {
        FindingCounts counts;
        for (const CheckedFile& file : files) {
            if (file.kind == &kind) counts.add(file);
        }
        if (counts.files > 0)
            context.out << kind.name << ": " << summary(counts) << '\n';
        else if (isSearched && kind.resource != nullptr)
            context.out << kind.name << ": no file that can be read; \"velkor resources\" says why\n";
    }
    if (total.listed == total.findings()) return;
    context.out << "the first " << text::grouped(total.listed) << " of "
                << text::counted(total.findings(), "finding", "findings") << " are listed (--limit shows more)\n";
}

Json findingsJson(const std::vector<Finding>& findings) {
    Json result = Json::array();
    for (const Finding& finding : findings) {
        result.push_back({{"severity", name(finding.severity)},
                          {"line", finding.line},
                          {"code", finding.code},
                          {"message", finding.message},
                          {"hint", finding.hint.empty() ? Json() : Json(finding.hint)}});
    }
    return result;
}

void writeFiles(CommandContext& context, const std::vector<CheckedFile>& files, const FindingCounts& total) {
    Json list = Json::array();
    for (const CheckedFile& file : files) {
        if (file.unreadable) continue;
        list.push_back({{"path", file.path},
                        {"kind", file.kind == nullptr ? Json() : Json(file.kind->word)},
                        {"entries", file.judgement.entries},
                        {"findings", findingsJson(file.judgement.findings)}});
    }
    writeJson(context.out, {{"errors", total.errors}, {"warnings", total.warnings}, {"files", std::move(list)}});
}

void runCheck(CommandContext& context, const Options& options) {
    lint::ResourceCheck check(options.limit);
    std::vector<CheckedFile> files;
    const bool isSearched = options.paths.empty();
    if (isSearched) {
        const PlatformSetup setup(context.configuration, context.tell());
        files = check.used(setup);
    } else {
        const LinterKind* kind = lint::linterKind(options.kind);
        for (const std::string& path : options.paths) files.push_back(check.file(path, kind, context.in));
    }
    FindingCounts total;
    for (const CheckedFile& file : files) {
        total.add(file);
        if (file.unreadable) context.reportUnreadable(file.path + ": cannot be read: " + file.unreadable->message);
    }
    if (files.empty()) context.reportUnreadable("no resource file is found; \"velkor resources\" says why");
    if (context.status == Done && total.findings() > 0) context.status = Findings;
    if (context.json())
        writeFiles(context, files, total);
    else
        writeText(context, files, total, isSearched);
}

} // namespace

void addResourcesCheckCommand(const Command& resources, CommandContext& context) {
    const Command command =
        resources.addCommand("check", "What is wrong in resource files, with its place and what is meant");
    const auto options = std::make_shared<Options>();
    std::vector<std::string> words;
    for (const LinterKind& kind : lint::linterKinds()) words.emplace_back(kind.word);
    const Option paths = command.addOption("FILE", options->paths,
                                           "Resource files, - for standard input; the ones that are used unless told");
    command.addOption("--kind", options->kind, "What the files are; seen from their content unless told")
        .valueName("KIND")
        .oneOf(words)
        .needs(paths);
    addLimitOption(command, options->limit, "findings");
    command.example("velkor resources check walls.xml --kind custom-mapping\n\n"
                    "Exit status 1 when there are findings.");
    context.complete(command, [&context, options] { runCheck(context, *options); });
}

} // namespace velkor::host
