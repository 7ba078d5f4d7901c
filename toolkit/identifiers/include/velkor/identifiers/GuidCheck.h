/// The identifiers of a model: every GlobalId well-formed and used once.
///
///     const guid::GuidCheck check = guid::checkGuids(*model);
///     for (const sdai::Problem& problem : check.result.problems) show(problem.line, problem.message);
#pragma once

#include "velkor/model/CheckResult.h"
#include "velkor/sdai/Model.h"
#include "velkor/ToolkitExport.h"

namespace velkor::guid {

struct GuidCheck {
    /// Instances that have a GlobalId and were looked at.
    std::uint64_t count = 0;
    /// With the codes of Fault, "guid-missing" and "guid-duplicate".
    CheckResult result;
};

/// The GlobalId of an instance of IFCROOT as the file writes it; no literal when there is none.
VELKOR_TOOLKIT_API std::string_view encodedIdentifier(const sdai::Model& model, std::uint32_t number);

/// Checks every instance of IFCROOT. Memory is in proportion to their number.
VELKOR_TOOLKIT_API GuidCheck checkGuids(const sdai::Model& model, const CheckOptions& options = {});

} // namespace velkor::guid
