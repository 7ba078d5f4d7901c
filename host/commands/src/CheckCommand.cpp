// velkor check

#include "Commands.h"
#include "LimitOption.h"
#include "models/ModelWork.h"
#include "output/Json.h"
#include "output/ProblemText.h"
#include "output/PropertySetText.h"
#include "output/RuleText.h"
#include "terminal/DisplayText.h"
#include "velkor/check/ModelCheck.h"
#include "velkor/check/ProblemSummary.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/propertysets/DefinitionSearch.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <span>

namespace velkor::host {

namespace {

struct Options {
    ModelArguments models;
    bool syntaxOnly = false;
    bool withoutRules = false;
    bool propertySets = false;
    std::string rule;
    CodeFilter codes;
    std::size_t limit = defaultLimit;
};

/// What a release cannot break, because its source does not state it.
bool statesUniquenessAlone(std::string_view release) {
    const RuleCounts counts = ruleCounts(release);
    return counts.total() > 0 && counts.total() == counts.unique;
}

std::string secondsText(double seconds) {
    char text[32];
    std::snprintf(text, sizeof text, seconds < 10 ? "%.2f s" : "%.0f s", seconds);
    return text;
}

/// What the rules were held to, and where they had no answer.
void writeCoverage(TextSink out, const FileCheck& check, const RuleCoverage& coverage) {
    constexpr std::size_t longestList = 3;
    out << check.file << ": " << text::counted(coverage.instances, "instance", "instances") << " by "
        << text::grouped(coverage.judgedRules) << " of " << text::counted(coverage.rules, "rule", "rules") << " of "
        << check.release << ", " << text::grouped(coverage.undecided) << " undecided, " << secondsText(coverage.seconds)
        << '\n';
    if (statesUniquenessAlone(check.release))
        out << check.file << ": the source of " << check.release << " states no rules but UNIQUE\n";
    if (coverage.unknown == 0) return;
    const auto& rules = coverage.unknownByRule;
    const std::size_t shown = std::min(rules.size(), longestList);
    out << check.file << ": " << text::grouped(coverage.unknown) << " of "
        << text::counted(coverage.judgements, "judgement", "judgements")
        << " without an answer: " << text::joined(std::span(rules).first(shown), ", ", [](const auto& each) {
               return each.rule + " (" + text::grouped(each.count) + ')';
           });
    if (rules.size() > shown) out << " and of " << text::counted(rules.size() - shown, "other rule", "other rules");
    out << '\n';
}

Json judgedJson(const RuleCoverage& coverage) {
    Json unknown = Json::array();
    for (const auto& each : coverage.unknownByRule) unknown.push_back({{"rule", each.rule}, {"count", each.count}});
    return {{"instances", coverage.instances},   {"rules", coverage.rules},     {"judged_rules", coverage.judgedRules},
            {"judgements", coverage.judgements}, {"unknown", coverage.unknown}, {"unknown_by_rule", std::move(unknown)},
            {"undecided", coverage.undecided},   {"seconds", coverage.seconds}};
}

void writeText(CommandContext& context, const FileCheck& check) {
    const ModelCheckResult& result = check.result;
    for (const sdai::Problem& problem : result.problems) writeProblem(context.out, check.file, problem);
    if (result.total == 0) {
        context.out << check.file << ": no problems found\n";
    } else {
        const ProblemSummary summary = summarized(result.problems, result.total);
        context.out << check.file << ": " << text::counted(summary.errors, "error", "errors") << ", "
                    << text::counted(summary.warnings, "warning", "warnings");
        if (summary.total > summary.listed()) {
            context.out << " among the first " << text::grouped(summary.listed()) << " of "
                        << text::grouped(summary.total) << " problems (--limit shows more)";
        }
        context.out << '\n';
    }
    if (result.coverage) writeCoverage(context.out, check, *result.coverage);
    if (result.propertySets) context.out << check.file << ": " << coverageText(*result.propertySets) << '\n';
}

/// Problems with the rule that each breaks.
Json brokenRulesJson(const FileCheck& check) {
    std::map<std::string, std::string> expressions;
    for (RuleFacts& rule : rulesOf(check.release)) expressions.emplace(rule.name, std::move(rule.expression));
    Json result = problemsJson(check.result.problems);
    for (std::size_t i = 0; i < result.size(); ++i) {
        const std::string& rule = check.result.problems[i].rule;
        const auto known = expressions.find(rule);
        result[i]["rule"] = textOrNull(rule);
        result[i]["expression"] = known == expressions.end() ? Json() : Json(known->second);
    }
    return result;
}

/// A code of property sets that is asked for; null for none.
const SetCode* chosenSetCode(const CodeFilter& codes) {
    const auto isChosen = [&](const SetCode& code) { return std::ranges::count(codes.only, code.code) > 0; };
    const auto chosen = std::ranges::find_if(setCodes(), isChosen);
    return chosen == setCodes().end() ? nullptr : &*chosen;
}

void tellDefinitions(CommandContext& context, const PropertySetCheck& sets, const SetLibrary& library) {
    if (!sets.hasDefinitions) context.reportUnreadable(noDefinitions);
    for (const std::string& reason : unreadableDefinitions(sets, library)) context.reportUnreadable(reason);
}

void writeResult(CommandContext& context, const FileCheck& check) {
    const ModelCheckResult& result = check.result;
    if (!context.json()) return writeText(context, check);
    writeModelJson(context, {{"file", check.path},
                             {"release", textOrNull(check.release)},
                             {"total", result.total},
                             {"problems", brokenRulesJson(check)},
                             {"judged", result.coverage ? judgedJson(*result.coverage) : Json()},
                             {"property_sets", result.propertySets ? coverageJson(*result.propertySets) : Json()}});
}

void checkOne(CommandContext& context, const Options& options, const ModelInput& input, Json& facts) {
    ModelCheckOptions wanted({options.limit, context.progress(), options.codes});
    wanted.scope = options.syntaxOnly     ? CheckScope::Structure
                   : options.withoutRules ? CheckScope::Dictionary
                                          : CheckScope::Everything;
    wanted.jobs = input.jobs;
    if (!options.rule.empty()) wanted.rules = {options.rule};
    std::optional<PlatformSetup> setup;
    std::optional<SetLibrary> library;
    if (options.propertySets) {
        setup.emplace(context.configuration, context.tell());
        wanted.definitions = &library.emplace(definitionViews(*setup));
    }
    const auto check = input.openFile().and_then(
        [&](std::unique_ptr<sdai::Part21File> file) { return checkFile(std::move(file), wanted); });
    if (!check) return context.reportUnreadable(check.error().message);
    if (!options.rule.empty() && !check->release.empty() && !ruleNamed(check->release, options.rule))
        return context.reportBadUsage("--rule: " + noSuchRule(check->release, options.rule));
    context.status = check->result.total == 0 ? Done : Findings;
    facts = {{"problems", check->result.total}};
    writeResult(context, *check);
    if (check->result.propertySets) tellDefinitions(context, *check->result.propertySets, *library);
}

void runCheck(CommandContext& context, const Options& options) {
    const SetCode* code = options.propertySets ? nullptr : chosenSetCode(options.codes);
    if (code != nullptr) return context.reportBadUsage("--only: " + std::string(code->code) + " needs --property-sets");
    ModelWork work{.run = [&](CommandContext& one, const ModelInput& input, Json& facts) {
        checkOne(one, options, input, facts);
    }};
    work.totals = {{"problems", "problem", "problems"}};
    workOnModels(context, options.models, work);
}

} // namespace

void addCheckCommand(const Command& app, CommandContext& context) {
    const Command command = app.addCommand(
        "check",
        "What is wrong with a model: its exchange structure, its instances by the dictionary, the rules of its schema, "
        "and its property sets");
    const auto options = std::make_shared<Options>();
    options->models.addTo(command);
    const Option syntax =
        command.addFlag("--syntax", options->syntaxOnly, "Judge the exchange structure (ISO 10303-21) alone");
    const Option schema = command.addFlag("--schema", options->withoutRules,
                                          "Judge structure and instances, and leave the rules of the schema out");
    schema.excludes(syntax);
    const Option rule = command.addOption("--rule", options->rule, "Judge this rule of the schema and nothing else");
    rule.valueName("NAME").excludes(syntax).excludes(schema);
    command
        .addFlag("--property-sets", options->propertySets,
                 "Judge property sets and quantity sets by their definitions as well")
        .excludes(syntax)
        .excludes(rule);
    command.addOption("--only", options->codes.only, "List these kinds of problems only")
        .valueName("CODE,…")
        .someOf(problemCodes());
    command.addOption("--ignore", options->codes.ignore, "List all kinds of problems but these")
        .valueName("CODE,…")
        .someOf(problemCodes());
    addLimitOption(command, options->limit, "problems");
    command.example("velkor check house.ifc\n\nExit status 1 when there are problems.");
    context.complete(command, [&context, options] { runCheck(context, *options); }, {jsonLinesFormat});
}

} // namespace velkor::host
