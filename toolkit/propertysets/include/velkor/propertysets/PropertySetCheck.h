/// The property sets and quantity sets of a model against their definitions.
///
///     const PlatformSetup setup(configuration);
///     const PropertySetCheck check = checkPropertySets(*model);
///     for (const SetFinding& finding : check.findings) show(finding.problem.line, finding.problem.message);
#pragma once

#include "velkor/model/CheckResult.h"
#include "velkor/sdai/Model.h"
#include "velkor/sdai/Problem.h"
#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace velkor {

/// One thing wrong with one set. Codes: "set-unknown", a standard name misspelled; "set-not-applicable" to the
/// class of an object; "property-unknown".
struct SetFinding {
    /// A warning at the instance of the set.
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

struct VELKOR_TOOLKIT_API PropertySetCheck {
    /// False when there is not one definition to check by.
    bool hasDefinitions = false;
    /// Looked at.
    std::uint64_t sets = 0;
    std::uint64_t properties = 0;
    /// Of sets that have a definition.
    std::uint64_t checkedSets = 0;
    std::uint64_t checkedProperties = 0;
    /// Of the user's own sets.
    std::uint64_t customSets = 0;
    /// Names without a definition, and how many sets have each; misspelled ones are findings instead.
    std::map<std::string, std::uint64_t> undefined;
    /// Names whose definition cannot be read.
    std::map<std::string, std::uint64_t> unreadable;

    /// In file order, bounded by the limit asked for; `total` is the full count.
    std::vector<SetFinding> findings;
    std::uint64_t total = 0;

    /// False when the caller has ended the check before its end.
    bool isComplete = true;

    std::uint64_t uncheckedSets() const noexcept;

    struct NameCount {
        std::string name;
        std::uint64_t count = 0;
    };
    /// Names whose sets were not checked, most frequent first.
    std::vector<NameCount> uncheckedNames() const;
};

/// Checks every IFCPROPERTYSET and IFCELEMENTQUANTITY. The platform must have been set up (PlatformSetup). Of a complex
/// property the name of the whole counts. Time is in proportion to the text of the sets and their relationships.
VELKOR_TOOLKIT_API PropertySetCheck checkPropertySets(const sdai::Model& model, const CheckOptions& options = {});

} // namespace velkor
