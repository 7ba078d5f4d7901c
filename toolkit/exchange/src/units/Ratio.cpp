#include "Ratio.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <numbers>
#include <numeric>
#include <utility>

namespace velkor::exchange {

namespace {

// The powers of ten that a mantissa of 64 bits holds exactly.
constexpr int largestExactPower = 27;
constexpr auto powersOfTen = [] {
    std::array<long double, largestExactPower + 1> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
    return powers;
}();

// Every whole number up to here is a long double, whatever its size is on a machine.
constexpr long double largestWhole = 9007199254740992.0L;

long double powerOfTen(int exponent) {
    return exponent <= largestExactPower ? powersOfTen[static_cast<std::size_t>(exponent)]
                                         : std::pow(10.0L, static_cast<long double>(exponent));
}

bool isWhole(long double value) {
    return value >= 1 && value <= largestWhole && std::trunc(value) == value;
}

bool isNextTo(double a, double b) {
    return std::nextafter(a, b) == b;
}

/// A decimal number whose digits fit, without what makes a double of it.
struct Decimal {
    std::uint64_t digits = 0;
    int exponent = 0;
    bool isNegative = false;
};

/// False for what is no plain number, and for one with more than 15 digits that count or a large exponent: there the
/// double that it stands for is better known than its digits.
bool readDecimal(std::string_view text, Decimal& decimal) {
    const char* at = text.data();
    const char* const end = at + text.size();
    if (at != end && (*at == '-' || *at == '+')) decimal.isNegative = *at++ == '-';
    const char* const begin = at;
    const char* point = nullptr;
    int count = 0;
    for (; at != end; ++at) {
        if (*at == '.' && point == nullptr) {
            point = at;
            continue;
        }
        const auto digit = static_cast<unsigned>(*at - '0');
        if (digit > 9) break;
        decimal.digits = decimal.digits * 10 + digit;
        if (decimal.digits != 0 && ++count > 15) return false;
    }
    if (at == begin || point == begin) return false;
    if (point != nullptr) decimal.exponent = -static_cast<int>(std::min<std::ptrdiff_t>(at - point - 1, 1000));
    if (at != end) {
        if (*at != 'E' && *at != 'e') return false;
        if (++at != end && *at == '+') ++at;
        int exponent = 0;
        const auto read = std::from_chars(at, end, exponent);
        if (read.ec != std::errc() || read.ptr != end || std::abs(exponent) > 1000) return false;
        decimal.exponent += exponent;
    }
    return std::abs(decimal.exponent) <= largestExactPower;
}

/// The decimal of so many digits that is nearest, when it is the same number but for rounding.
double roundedWithin(double value, int digits) {
    char text[40];
    const auto written =
        std::to_chars(std::begin(text), std::end(text), value, std::chars_format::scientific, digits - 1);
    double rounded = value;
    std::from_chars(text, written.ptr, rounded);
    return rounded != value && isNextTo(value, rounded) ? rounded : value;
}

/// Whether the digits of a real from the 14th on are nearly none, or nearly one more of the 13th.
bool mayBeRounded(std::string_view real) {
    int count = 0;
    int tail = 0;
    int unit = 1;
    for (const char c : real) {
        if (c == 'E') break;
        if (c < '0' || c > '9' || (count == 0 && c == '0')) continue;
        if (++count <= 13) continue;
        tail = tail * 10 + (c - '0');
        unit *= 10;
    }
    return count > 15 && std::min(tail, unit - tail) * 200 <= unit;
}

} // namespace

UnitScale UnitScale::of(double factor, double offset) {
    // A degree has no decimal, however many digits a file gives it.
    constexpr long double degree = std::numbers::pi_v<long double> / 180;
    if (offset == 0 && std::abs(factor / degree - 1) < 1e-14L) return exactly(degree);
    // Nor has a degree Fahrenheit, or where its scale begins.
    constexpr long double fahrenheit = 5.0L / 9;
    constexpr long double fahrenheitZero = 45967 * fahrenheit / 100;
    if (std::abs(factor / fahrenheit - 1) < 1e-14L && std::abs(offset / fahrenheitZero - 1) < 1e-14L)
        return {fahrenheit, 0, fahrenheitZero};
    UnitScale scale{factor, 0, offset};
    char text[40];
    const auto written = std::to_chars(std::begin(text), std::end(text), factor, std::chars_format::scientific, 14);
    double rounded = 0;
    std::from_chars(text, written.ptr, rounded);
    if (!(factor > 0) || !(rounded == factor || isNextTo(factor, rounded))) return scale;
    // One digit, the point, 14 more, "e" and the exponent.
    std::uint64_t digits = 0;
    for (const char* at = text; *at != 'e'; ++at)
        if (*at != '.') digits = digits * 10 + static_cast<unsigned>(*at - '0');
    const char* exponent = std::find(text, written.ptr, 'e') + 1;
    if (*exponent == '+') ++exponent;
    std::from_chars(exponent, written.ptr, scale.exponent);
    scale.exponent -= 14;
    for (; digits % 10 == 0; digits /= 10) ++scale.exponent;
    scale.mantissa = static_cast<long double>(digits);
    return scale;
}

Ratio Ratio::between(const UnitScale& from, const UnitScale& to) {
    Ratio ratio;
    const int exponent = from.exponent - to.exponent;
    ratio._numerator = from.mantissa * (exponent > 0 ? powerOfTen(exponent) : 1);
    ratio._denominator = to.mantissa * (exponent < 0 ? powerOfTen(-exponent) : 1);
    ratio.reduce();
    if (from.offset != to.offset)
        ratio._offset =
            (from.offset - to.offset) / (to.mantissa * std::pow(10.0L, static_cast<long double>(to.exponent)));
    return ratio;
}

void Ratio::reduce() {
    if (_numerator == _denominator) _numerator = _denominator = 1;
    if (!isWhole(_numerator) || !isWhole(_denominator)) return;
    const auto divisor = static_cast<long double>(
        std::gcd(static_cast<std::uint64_t>(_numerator), static_cast<std::uint64_t>(_denominator)));
    _numerator /= divisor;
    _denominator /= divisor;
}

Ratio Ratio::power(int exponent) const {
    Ratio result;
    for (int i = std::abs(exponent); i > 0; --i) result = result * *this;
    if (exponent < 0) std::swap(result._numerator, result._denominator);
    return result;
}

Ratio Ratio::operator*(const Ratio& other) const {
    Ratio result;
    result._numerator = _numerator * other._numerator;
    result._denominator = _denominator * other._denominator;
    result.reduce();
    return result;
}

Ratio Ratio::withoutOffset() const {
    Ratio result = *this;
    result._offset = 0;
    return result;
}

bool Ratio::convert(std::string_view real, double& before, double& after) const {
    long double value = 0;
    Decimal decimal;
    if (readDecimal(real, decimal)) {
        value = static_cast<long double>(decimal.digits) * _numerator;
        value = decimal.exponent < 0 ? value / (_denominator * powersOfTen[static_cast<std::size_t>(-decimal.exponent)])
                                     : value * powersOfTen[static_cast<std::size_t>(decimal.exponent)] / _denominator;
        if (decimal.isNegative) value = -value;
        before = static_cast<double>(decimal.digits);
    } else {
        if (!sdai::decodeReal(real, before) || !std::isfinite(before)) return false;
        value = static_cast<long double>(before) * _numerator / _denominator;
    }
    after = static_cast<double>(value + _offset);
    return std::isfinite(after) && (after != 0 || before == 0 || _offset != 0);
}

Ratio::Outcome Ratio::append(std::string& text, std::string_view real) const {
    double before = 0;
    double after = 0;
    if (!convert(real, before, after)) return Outcome::Unreadable;
    if (isOne() || (before == 0 && _offset == 0)) return Outcome::Same;
    const std::size_t begin = text.size();
    if (!sdai::appendReal(text, after)) return Outcome::Unreadable;
    if (text.size() - begin <= 15 || !mayBeRounded(std::string_view(text).substr(begin))) return Outcome::Converted;
    if (const double rounded = roundedWithin(after, 13); rounded != after) {
        text.resize(begin);
        static_cast<void>(sdai::appendReal(text, rounded));
    }
    return Outcome::Converted;
}

} // namespace velkor::exchange
