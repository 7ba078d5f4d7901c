/// The generated units: one with what all releases share, one per release.
#pragma once

#include "GeneratedUnits.h"
#include "RuleCompiler.h"

#include <string>
#include <vector>

namespace velkor::rulegen {

/// `inputs` names the sources of each release with their hashes, for the first line.
std::vector<express::GeneratedUnit> ruleUnits(RuleCompiler& compiler, const std::vector<std::string>& inputs);

} // namespace velkor::rulegen
