/// The text parameters of header entities and of DATA sections.
#pragma once

#include "velkor/sdai/Part21File.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::sdai::part21 {

/// The decoded strings of each parameter of "KEYWORD(…)", a lone string and a list of strings
/// alike; empty for parameters of other kinds.
std::vector<std::vector<std::string>> textParameters(std::string_view statement);

/// Stores what a header entity tells; entities of other names tell nothing. Lists and single
/// strings may stand for each other.
void readHeaderEntity(std::string_view statement, FileHeader& header);

} // namespace velkor::sdai::part21
