/// Problems of a model as lines for people and as JSON.
#pragma once

#include "output/Json.h"
#include "velkor/sdai/Problem.h"

#include <string>
#include <vector>

namespace velkor::host {

/// A message on a terminal is cut there.
inline constexpr std::size_t longestMessage = 1000;

/// One line as compilers write it, so that editors jump to the place.
void writeProblem(TextSink out, const std::string& file, const sdai::Problem& problem);

Json problemJson(const sdai::Problem& problem);
Json problemsJson(const std::vector<sdai::Problem>& problems);

} // namespace velkor::host
