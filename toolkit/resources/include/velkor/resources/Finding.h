/// One thing found wrong in a resource file.
///
///     show(path, finding.line, name(finding.severity), finding.message, finding.code);
#pragma once

#include "velkor/sdai/Problem.h"

#include <string>

namespace velkor::lint {

using sdai::Severity;

struct Finding {
    /// Errors are what surely has not the effect that it was written for; warnings are what hardly can be meant.
    Severity severity = Severity::Error;
    /// Counted from 1.
    int line = 0;
    /// Short stable word for programs, for example "unknown-entity".
    std::string code;
    std::string message;
    /// What probably was meant or helps; empty when nothing is known.
    std::string hint;
};

} // namespace velkor::lint
