/// The complete pass over a model: exchange structure, instances by the dictionary, rules of the schema, identifiers,
/// and property sets where that is asked for.
///
///     const ModelCheckResult result = checkModel(*model);
///     for (const sdai::Problem& problem : result.problems) show(model->file().name(), problem);
#pragma once

#include "velkor/model/CheckResult.h"
#include "velkor/propertysets/PropertySetCheck.h"
#include "velkor/rules/RuleCheck.h"
#include "velkor/sdai/Model.h"
#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor {

/// How far a check goes; each goes as far as the one before, too.
enum class CheckScope : std::uint8_t {
    /// The exchange structure, without a dictionary.
    Structure,
    /// Every instance by the dictionary.
    Dictionary,
    /// The rules of the schema, and identifiers.
    Everything,
};

/// What a check of a model is made with.
struct ModelCheckOptions : CheckOptions {
    /// With those that all checks have.
    ModelCheckOptions(CheckOptions options = {}) : CheckOptions(std::move(options)) {}

    CheckScope scope = CheckScope::Everything;
    /// Threads that judge rules; 0 for as many as the machine has cores.
    unsigned jobs = 0;
    /// Names of rules, as ruleNamed() knows them: they are judged and nothing else. Empty for all that the scope has.
    std::vector<std::string> rules = {};
    /// Property sets are judged by these, too, as checkPropertySets() does, unless the structure alone or single rules
    /// are judged. Null for no such judgement.
    const SetLibrary* definitions = nullptr;
};

/// What is wrong with a model, and what was judged.
struct ModelCheckResult : CheckResult {
    /// What the rules were held to; none when the scope leaves them out.
    std::optional<RuleCoverage> coverage;
    /// What the definitions of property sets cover, its findings being among the problems; none when it was not asked
    /// for.
    std::optional<PropertySetCheck> propertySets;
};

/// The exchange structure alone, without a dictionary. One pass over the text; memory for the instance numbers and the
/// problems listed.
VELKOR_TOOLKIT_API CheckResult checkStructure(const sdai::Part21File& file, const CheckOptions& options = {});

/// What is wrong with a model, as far as the scope goes. A GlobalId that is used twice is told once: as a broken rule
/// where the release has one.
VELKOR_TOOLKIT_API ModelCheckResult checkModel(const sdai::Model& model, const ModelCheckOptions& options = {});

/// A file, and what is wrong in it.
struct FileCheck {
    /// As messages name it, with the member of an archive; the path alone.
    std::string file, path;
    /// Of the dictionary that the instances were judged by; empty when they were not.
    std::string release;
    ModelCheckResult result;
};

/// Opens a file and judges what can be judged: its structure alone when that is asked for, or when FILE_SCHEMA names no
/// dictionary that is known, which is then a problem itself.
VELKOR_TOOLKIT_API tl::expected<FileCheck, files::OpenError> checkFile(const std::string& path,
                                                                       const ModelCheckOptions& options = {});
/// The same over a file that is open already.
VELKOR_TOOLKIT_API tl::expected<FileCheck, files::OpenError> checkFile(std::unique_ptr<sdai::Part21File> file,
                                                                       const ModelCheckOptions& options = {});

/// Every code that a problem of a check may have, in alphabetical order.
VELKOR_TOOLKIT_API std::vector<std::string_view> problemCodes();

} // namespace velkor
