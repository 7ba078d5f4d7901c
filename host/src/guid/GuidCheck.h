/// The identifiers of a model: every GlobalId well-formed and used once.
#pragma once

#include "ModelCheck.h"

namespace velkor::host::guid {

struct GuidCheck {
    /// Instances that have a GlobalId.
    std::uint64_t count = 0;
    /// With the codes of Fault, "guid-missing" and "guid-duplicate".
    CheckResult result;
};

/// Checks every instance of IFCROOT; at most `limit` problems are listed.
GuidCheck checkGuids(CommandContext& context, const sdai::Model& model, std::size_t limit);

} // namespace velkor::host::guid
