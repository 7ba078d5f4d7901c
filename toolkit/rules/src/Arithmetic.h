/// Arithmetic of numbers, and texts compared with patterns (ISO 10303-11, 12.1 and 12.2.5). What overflows, divides by
/// zero or is no finite number is indeterminate, and so is what operands of other kinds give.
#pragma once

#include "Evaluation.h"
#include "RuleCode.h"

#include <string_view>

namespace velkor::rules {

/// Add, Subtract, Multiply, Divide, IntegerDivide, Modulo and Power of numbers.
Value arithmetic(Operation operation, const Value& a, const Value& b) noexcept;
Value negated(const Value& value) noexcept;

/// The built-in functions of one REAL argument, and ABS, which keeps the kind.
Value realFunction(BuiltinFunction function, const Value& value) noexcept;
/// ATAN(a, b)
Value arcTangent(const Value& a, const Value& b) noexcept;
/// ODD
Value isOdd(const Value& value) noexcept;

/// "text LIKE pattern"
Value isLike(std::string_view text, std::string_view pattern, Evaluation& evaluation);
/// FORMAT(number, format) and VALUE(text); the texts lie in the memory of the evaluation.
Value formatted(const Value& number, std::string_view format, Evaluation& evaluation);
Value numberIn(std::string_view text) noexcept;

} // namespace velkor::rules
