#include "velkor/check/ModelCheck.h"

#include "velkor/identifiers/GuidCheck.h"
#include "velkor/rules/DerivedSlots.h"
#include "velkor/rules/RuleCatalogue.h"
#include "velkor/sdai/PopulationCheck.h"
#include "velkor/sdai/SyntaxCheck.h"

#include <array>
#include <utility>

namespace velkor {

namespace {

constexpr std::array<std::string_view, 2> numberTypes{"IFCCOUNTMEASURE", "IFCNUMERICMEASURE"};

// What a check of the platform calls.
sdai::Progress stepsOf(const Progress& progress, const char* work, bool& isComplete) {
    if (!progress) return {};
    return [&progress, &isComplete, work](std::uint64_t done, std::uint64_t total) {
        return isComplete = progress({work, done, total});
    };
}

// What a check of the platform asks for.
sdai::CodeChoice choiceOf(const CodeFilter& codes) {
    if (codes.takesAll()) return {};
    return [&codes](std::string_view code) { return codes.takes(code); };
}

CheckResult checkInstances(const sdai::Model& model, const CheckOptions& options) {
    CheckResult result;
    sdai::PopulationCheckOptions wanted;
    wanted.limit = options.limit;
    const auto slots = derivedSlots(model.schema());
    wanted.derivedSlots = slots;
    wanted.numberTypes = numberTypes;
    wanted.progress = stepsOf(options.progress, "Checking the instances", result.isComplete);
    wanted.choice = choiceOf(options.codes);
    result.problems = sdai::checkPopulation(model, wanted, &result.total);
    return result;
}

/// What neither the dictionary nor a rule of the release tells of identifiers already.
CheckResult checkIdentifiers(const sdai::Model& model, CheckOptions options) {
    options.codes.ignore.insert(options.codes.ignore.end(), {"guid-missing", "guid-length"});
    if (ruleNamed(model.schema().name(), "IfcRoot.UR1")) options.codes.ignore.emplace_back("guid-duplicate");
    return guid::checkGuids(model, options).result;
}

void take(ModelCheckResult& result, const CheckResult& more, std::size_t limit) {
    result.isComplete = result.isComplete && more.isComplete;
    result.add(more.problems, more.total, limit);
}

void judgeRules(const sdai::Model& model, const ModelCheckOptions& options, ModelCheckResult& result) {
    const RuleCheckResult rules =
        checkRules(model, {options.limit, options.progress, options.jobs, options.rules, options.codes});
    take(result, rules, options.limit);
    result.coverage = rules.coverage;
}

void judgePropertySets(const sdai::Model& model, const ModelCheckOptions& options, ModelCheckResult& result) {
    PropertySetCheck sets = checkPropertySets(model, *options.definitions, options);
    CheckResult found{{}, sets.total, sets.isComplete};
    for (SetFinding& finding : sets.findings) found.problems.push_back(std::move(finding.problem));
    take(result, found, options.limit);
    sets.findings.clear();
    result.propertySets = std::move(sets);
}

} // namespace

CheckResult checkStructure(const sdai::Part21File& file, const CheckOptions& options) {
    CheckResult result;
    const auto progress = stepsOf(options.progress, "Checking the exchange structure", result.isComplete);
    result.problems = sdai::checkSyntax(file, options.limit, &result.total, progress, choiceOf(options.codes));
    return result;
}

ModelCheckResult checkModel(const sdai::Model& model, const ModelCheckOptions& options) {
    ModelCheckResult result;
    if (!options.rules.empty()) {
        judgeRules(model, options, result);
        return result;
    }
    take(result, checkStructure(model.file(), options), options.limit);
    if (options.scope == CheckScope::Structure || !result.isComplete) return result;
    take(result, checkInstances(model, options), options.limit);
    if (options.scope == CheckScope::Everything && result.isComplete) {
        judgeRules(model, options, result);
        if (result.isComplete) take(result, checkIdentifiers(model, options), options.limit);
    }
    if (options.definitions != nullptr && result.isComplete) judgePropertySets(model, options, result);
    return result;
}

tl::expected<FileCheck, files::OpenError> checkFile(const std::string& path, const ModelCheckOptions& options) {
    return sdai::Part21File::open(path).and_then(
        [&](std::unique_ptr<sdai::Part21File> file) { return checkFile(std::move(file), options); });
}

tl::expected<FileCheck, files::OpenError> checkFile(std::unique_ptr<sdai::Part21File> file,
                                                    const ModelCheckOptions& options) {
    FileCheck check{file->name(), file->path(), {}, {}};
    const bool isStructureAlone = options.scope == CheckScope::Structure;
    const auto schemaProblem = isStructureAlone ? std::nullopt : sdai::Model::schemaProblem(*file);
    if (isStructureAlone || schemaProblem) {
        take(check.result, checkStructure(*file, options), options.limit);
        if (schemaProblem && options.codes.takes(schemaProblem->code))
            check.result.add({*schemaProblem}, 1, options.limit);
        return check;
    }
    const auto model = sdai::Model::over(std::move(file));
    if (!model) return tl::unexpected(model.error());
    check.release = (*model)->schema().name();
    check.result = checkModel(**model, options);
    return check;
}

} // namespace velkor
