/// What a rule expects, in plain words, so that people read findings without knowing EXPRESS.
///
///     worded(*rule.expression, spelledNames(schema)); // "Depth is above 0"
#pragma once

#include "ExpressionText.h"
#include "ExpressSchema.h"

#include <string>

namespace velkor::rulegen {

/// How a schema spells its entities, types and attributes.
SpelledNames spelledNames(const express::ExpressSchema& schema);

/// What holds when a logical expression is TRUE. Where no good words are found EXPRESS stands in for the part.
std::string worded(const express::Expression& expression, const SpelledNames& names = {});

} // namespace velkor::rulegen
