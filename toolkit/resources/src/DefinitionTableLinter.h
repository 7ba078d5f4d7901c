/// Judges tables of definitions against the dictionary of their release.
#pragma once

#include "Dictionaries.h"
#include "velkor/resources/ResourceCheck.h"

#include <string_view>

namespace velkor::lint {

/// Its sets are the entries. What a table lists as a fault of what it was made from is no finding: the table says what
/// was done about it.
Judgement judgeDefinitionTable(std::string_view text, Dictionaries& dictionaries);

} // namespace velkor::lint
