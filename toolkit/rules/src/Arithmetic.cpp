#include "Arithmetic.h"

#include <cmath>
#include <limits>
#include <optional>

namespace velkor::rules {

namespace {

using Integer = std::int64_t;

Value whole(std::optional<Integer> value) noexcept {
    return value ? Value(*value) : Value();
}

std::optional<Integer> power(Integer base, Integer exponent) noexcept {
    Integer result = 1;
    while (exponent > 0) {
        if ((exponent & 1) != 0 && __builtin_mul_overflow(result, base, &result)) return std::nullopt;
        exponent >>= 1;
        if (exponent > 0 && __builtin_mul_overflow(base, base, &base)) return std::nullopt;
    }
    return result;
}

/// With a = (a DIV b) * b + (a MOD b), or minus it for b below 0, and a MOD b from 0 to below |b|.
std::optional<Integer> modulo(Integer a, Integer b) noexcept {
    if (b == 0) return std::nullopt;
    // The only quotient that does not fit.
    if (b == -1) return 0;
    const Integer rest = a % b;
    const Integer floored = rest != 0 && (rest < 0) != (b < 0) ? rest + b : rest;
    return b < 0 ? -floored : floored;
}

std::optional<Integer> quotient(Integer a, Integer b) noexcept {
    if (b == 0 || (b == -1 && a == std::numeric_limits<Integer>::min())) return std::nullopt;
    const Integer truncated = a / b;
    return a % b != 0 && (a % b < 0) != (b < 0) ? truncated - 1 : truncated;
}

/// The integer part of a number.
std::optional<Integer> truncated(const Value& value) noexcept {
    if (value.kind() == ValueKind::Integer) return value.integer();
    const double real = std::trunc(value.number());
    return std::abs(real) < 0x1p63 ? std::optional(static_cast<Integer>(real)) : std::nullopt;
}

Value ofIntegers(Operation operation, Integer a, Integer b) noexcept {
    Integer result = 0;
    switch (operation) {
    case Operation::Add:
        return __builtin_add_overflow(a, b, &result) ? Value() : Value(result);
    case Operation::Subtract:
        return __builtin_sub_overflow(a, b, &result) ? Value() : Value(result);
    case Operation::Multiply:
        return __builtin_mul_overflow(a, b, &result) ? Value() : Value(result);
    default:
        return b >= 0 ? whole(power(a, b)) : Value(std::pow(static_cast<double>(a), static_cast<double>(b)));
    }
}

Value ofReals(Operation operation, double a, double b) noexcept {
    switch (operation) {
    case Operation::Add:
        return Value(a + b);
    case Operation::Subtract:
        return Value(a - b);
    case Operation::Multiply:
        return Value(a * b);
    case Operation::Divide:
        return b == 0 ? Value() : Value(a / b);
    default:
        return Value(std::pow(a, b));
    }
}

} // namespace

Value arithmetic(Operation operation, const Value& a, const Value& b) noexcept {
    if (!a.isNumber() || !b.isNumber()) return {};
    if (operation == Operation::IntegerDivide || operation == Operation::Modulo) {
        const auto first = truncated(a);
        const auto second = truncated(b);
        if (!first || !second) return {};
        return whole(operation == Operation::Modulo ? modulo(*first, *second) : quotient(*first, *second));
    }
    const bool areIntegers = a.kind() == ValueKind::Integer && b.kind() == ValueKind::Integer;
    if (areIntegers && operation != Operation::Divide) return ofIntegers(operation, a.integer(), b.integer());
    return ofReals(operation, a.number(), b.number());
}

Value negated(const Value& value) noexcept {
    if (value.kind() == ValueKind::Integer) return ofIntegers(Operation::Subtract, 0, value.integer());
    return value.kind() == ValueKind::Real ? Value(-value.number()) : Value();
}

Value realFunction(BuiltinFunction function, const Value& value) noexcept {
    if (!value.isNumber()) return {};
    const double x = value.number();
    switch (function) {
    case BuiltinFunction::Abs:
        if (value.kind() == ValueKind::Integer) return value.integer() < 0 ? negated(value) : Value(value.integer());
        return Value(std::abs(x));
    case BuiltinFunction::ACos:
        return Value(std::acos(x));
    case BuiltinFunction::ASin:
        return Value(std::asin(x));
    case BuiltinFunction::Cos:
        return Value(std::cos(x));
    case BuiltinFunction::Exp:
        return Value(std::exp(x));
    case BuiltinFunction::Log:
        return Value(std::log(x));
    case BuiltinFunction::Log2:
        return Value(std::log2(x));
    case BuiltinFunction::Log10:
        return Value(std::log10(x));
    case BuiltinFunction::Sin:
        return Value(std::sin(x));
    case BuiltinFunction::Sqrt:
        return Value(std::sqrt(x));
    case BuiltinFunction::Tan:
        return Value(std::tan(x));
    default:
        return {};
    }
}

Value arcTangent(const Value& a, const Value& b) noexcept {
    const bool isDefined = a.isNumber() && b.isNumber() && (a.number() != 0 || b.number() != 0);
    return isDefined ? Value(std::atan2(a.number(), b.number())) : Value();
}

Value isOdd(const Value& value) noexcept {
    return value.kind() == ValueKind::Integer ? Value(logical(value.integer() % 2 != 0)) : Value();
}

} // namespace velkor::rules
