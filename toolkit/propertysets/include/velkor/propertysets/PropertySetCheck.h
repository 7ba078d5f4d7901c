/// The property sets and quantity sets of a model against their definitions.
///
///     const PlatformSetup setup(configuration);
///     const SetLibrary library(definitionViews(setup));
///     const PropertySetCheck check = checkPropertySets(*model, library);
///     for (const SetFinding& finding : check.findings) show(finding.problem.line, finding.problem.message);
#pragma once

#include "velkor/model/CheckResult.h"
#include "velkor/propertysets/SetCatalogue.h"
#include "velkor/sdai/Model.h"
#include "velkor/sdai/Problem.h"
#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor {

/// A kind of finding.
struct SetCode {
    /// "set-unknown".
    std::string_view code;
    /// What it means, in a sentence.
    std::string_view meaning;
    /// The implementer agreement of buildingSMART that calls it a fault: "PSE001" for property sets; empty when none
    /// does. Findings of such codes are errors, others warnings, and so are
    /// those about sets whose names are not those of the standard.
    std::string_view agreement;
    /// The same for quantity sets.
    std::string_view quantityAgreement;
};

/// All kinds, in the order in which documentation lists them.
VELKOR_TOOLKIT_API std::span<const SetCode> setCodes() noexcept;

/// One thing wrong with one set.
struct SetFinding {
    /// At the instance of the set. Its code is one of setCodes().
    sdai::Problem problem;
    std::string set;
    /// The first object concerned; no entity when the set is attached to none.
    std::uint64_t object = 0;
    std::string objectEntity;
    std::string objectName;
    /// How many others are concerned.
    std::uint64_t others = 0;
    /// Empty unless the finding is about one.
    std::string property;
    /// The name that was probably meant; empty without one.
    std::string nearest;
};

/// What a model's sets of one name come to.
struct SetSummary {
    std::string name;
    /// False for sets without a definition, whose properties are counted as filled alone.
    bool isDefined = false;
    std::uint64_t sets = 0;
    /// What has them; an object that has two counts twice.
    std::uint64_t objects = 0;
    /// Properties and quantities of the definition, over all sets: with a value, without one or absent, and with
    /// findings of their own. Wrong ones may be filled as well.
    std::uint64_t filled = 0;
    std::uint64_t missing = 0;
    std::uint64_t wrong = 0;
};

struct VELKOR_TOOLKIT_API PropertySetCheck {
    /// That of the definitions: "IFC4X3_ADD2" for a model of IFC4X4.
    std::string definedBy;
    /// False when there is not one definition to check by.
    bool hasDefinitions = false;
    /// Looked at.
    std::uint64_t sets = 0;
    std::uint64_t properties = 0;
    /// Of sets that have a definition.
    std::uint64_t checkedSets = 0;
    std::uint64_t checkedProperties = 0;
    /// Of the user's own sets, named without a definition.
    std::uint64_t customSets = 0;
    /// Names without a definition, and how many sets have each; those that are findings are not among them.
    std::map<std::string, std::uint64_t> undefined;
    /// Names whose definition cannot be read.
    std::map<std::string, std::uint64_t> unreadable;
    /// By name.
    std::vector<SetSummary> summaries;

    /// In file order, bounded by the limit asked for; `total` is the full count.
    std::vector<SetFinding> findings;
    std::uint64_t total = 0;

    /// False when the caller has ended the check before its end.
    bool isComplete = true;

    std::uint64_t uncheckedSets() const noexcept; ///< How many sets had no definition.

    /// A name, and how many sets have it.
    struct NameCount {
        std::string name;
        std::uint64_t count = 0;
    };
    /// Names whose sets were not checked, most frequent first.
    std::vector<NameCount> uncheckedNames() const;
};

/// Checks every IFCPROPERTYSET, IFCELEMENTQUANTITY and the properties of materials and profiles by the definitions of
/// the model's own release. Names of the user's own sets are asked of the validation service, so the platform must have
/// been set up (PlatformSetup). Time is in proportion to the text of the sets and their relationships.
VELKOR_TOOLKIT_API PropertySetCheck checkPropertySets(const sdai::Model& model, const SetLibrary& library,
                                                      const CheckOptions& options = {});

} // namespace velkor
