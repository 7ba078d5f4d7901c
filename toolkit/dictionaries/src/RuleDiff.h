/// The part of a comparison of two schemas that is about their rules.
#pragma once

#include "velkor/dictionaries/DictionaryDiff.h"

#include <string_view>

namespace velkor {

/// Sets the rules of a diff. The schemas are named as their dictionaries are.
void compareRules(std::string_view before, std::string_view after, DictionaryDiff& diff);

} // namespace velkor
