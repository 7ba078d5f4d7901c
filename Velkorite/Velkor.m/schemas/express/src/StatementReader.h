/// Reads statements of EXPRESS (ISO 10303-11, clause 13).
#pragma once

#include "Expression.h"
#include "ExpressTokens.h"

#include <vector>

namespace velkor::express {

/// Statements up to one of the words that end a block: END…, ELSE, WHERE; it is left in place.
[[nodiscard]] std::vector<StatementPointer> readStatements(ExpressTokens& tokens);

} // namespace velkor::express
