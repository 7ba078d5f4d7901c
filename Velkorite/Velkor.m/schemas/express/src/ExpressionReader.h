/// Reads one expression of EXPRESS (ISO 10303-11, clause 12).
#pragma once

#include "Expression.h"
#include "ExpressTokens.h"

namespace velkor::express {

/// Deeper than any schema nests; keeps a hostile source off the end of the stack.
inline constexpr int deepestNesting = 200;

/// Up to the token that cannot belong to the expression. Never null; after an error anything.
[[nodiscard]] ExpressionPointer readExpression(ExpressTokens& tokens);

/// A variable, perhaps with attributes, groups and indexes behind it.
[[nodiscard]] ExpressionPointer readQualifiedName(ExpressTokens& tokens);

} // namespace velkor::express
