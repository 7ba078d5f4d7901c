/// Finds instances that share the values of a UNIQUE rule, once all have been hashed.
#pragma once

#include "InstanceJudge.h"

#include <functional>
#include <vector>

namespace velkor::rules {

/// Entries of one rule, in any order, which are sorted. Instances that may share values are compared by them; the
/// answer is in no order. `goesOn` is asked now and then; false ends the work.
std::vector<Repetition> repetitions(std::vector<UniqueEntry>& entries, std::span<const TextId> attributes,
                                    RuleMachine& machine, const std::function<bool()>& goesOn);

} // namespace velkor::rules
