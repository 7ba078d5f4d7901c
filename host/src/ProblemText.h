/// Problems of a model as lines for people and as JSON.
#pragma once

#include "Json.h"
#include "sdai/Problem.h"

#include <iosfwd>
#include <string>

namespace velkor::host {

/// One line as compilers write it, so that editors jump to the place. `file` is printable already.
void writeProblem(std::ostream& out, const std::string& file, const sdai::Problem& problem);

Json problemJson(const sdai::Problem& problem);

} // namespace velkor::host
