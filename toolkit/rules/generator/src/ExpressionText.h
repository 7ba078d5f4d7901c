/// Values of EXPRESS expressions as noun phrases: "Width / 2", "the number of members of Slopes", "EdgeStart".
#pragma once

#include "Expression.h"

#include <map>
#include <string>
#include <string_view>

namespace velkor::rulegen {

/// Names of entities and types as they are spelled, by the name in upper case.
using SpelledNames = std::map<std::string, std::string, std::less<>>;

/// A value in words, as far as there are any, else in EXPRESS. What is qualified by SELF or a supertype stands without
/// it.
std::string phrase(const express::Expression& expression, const SpelledNames& names);

/// The name behind the schema in 'SCHEMA.NAME', as it is spelled where that is known; empty for any other text.
std::string qualifiedName(const express::Expression& expression, const SpelledNames& names);

/// Whether it is a call of a function, letter case ignored.
bool isCall(const express::Expression& expression, std::string_view function);
/// SIZEOF, or HIINDEX, which says the same of lists and sets.
bool isSize(const express::Expression& expression);
/// The name of an entity, type or function of the schema, rather than of an attribute or variable.
bool isSchemaName(std::string_view name);
/// A number without what needs not be said: "0." is "0".
std::string plainNumber(std::string_view number);

std::string upper(std::string_view text);

} // namespace velkor::rulegen
