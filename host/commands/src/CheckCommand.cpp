// velkor check

#include "Commands.h"
#include "LimitOption.h"
#include "output/Json.h"
#include "output/ProblemText.h"
#include "terminal/DisplayText.h"
#include "velkor/check/ModelCheck.h"
#include "velkor/check/ProblemSummary.h"
#include "velkor/text/Wording.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

struct Options {
    std::string path;
    bool syntaxOnly = false;
    std::size_t limit = defaultLimit;
};

void writeText(CommandContext& context, const std::string& file, const CheckResult& result) {
    for (const sdai::Problem& problem : result.problems) writeProblem(context.out, file, problem);
    if (result.total == 0) {
        context.out << file << ": no problems found\n";
        return;
    }
    const ProblemSummary summary = summarized(result.problems, result.total);
    context.out << file << ": " << text::counted(summary.errors, "error", "errors") << ", "
                << text::counted(summary.warnings, "warning", "warnings");
    if (summary.total > summary.listed()) {
        context.out << " among the first " << text::grouped(summary.listed()) << " of " << text::grouped(summary.total)
                    << " problems (--limit shows more)";
    }
    context.out << '\n';
}

void runCheck(CommandContext& context, const Options& options) {
    const auto check = checkFile(options.path, options.syntaxOnly, context.checkOptions(options.limit));
    if (!check) return context.reportUnreadable(check.error().message);
    const CheckResult& result = check->result;
    context.status = result.total == 0 ? Done : Findings;
    if (!context.json()) return writeText(context, check->file, result);
    writeJson(context.out, {{"file", check->file},
                            {"release", textOrNull(check->release)},
                            {"total", result.total},
                            {"problems", problemsJson(result.problems)}});
}

} // namespace

void addCheckCommand(const Command& app, CommandContext& context) {
    const Command command = app.addCommand(
        "check", "What is wrong with a model's exchange structure and, by the dictionary, with its instances");
    const auto options = std::make_shared<Options>();
    command.addOption("MODEL", options->path, "IFC file").required();
    command.addFlag("--syntax", options->syntaxOnly, "Judge the exchange structure (ISO 10303-21) alone");
    addLimitOption(command, options->limit, "problems");
    command.example("velkor check house.ifc\n\nExit status 1 when there are problems.");
    context.complete(command, [&context, options] { runCheck(context, *options); });
}

} // namespace velkor::host
