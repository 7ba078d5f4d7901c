/// What a number is multiplied by when its unit is exchanged for another, without rounding on the way.
///
///     const Ratio inches = Ratio::between(UnitScale::of(0.001), UnitScale::of(0.0254)); // 5/127
///     inches.append(text, "1000."); // "39.37007874015748"
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::exchange {

/// How a unit counts in SI: value · factor + offset.
struct UnitScale {
    /// Integer · 10^exponent where the factor is a decimal of 15 digits or fewer, which most are by definition.
    long double mantissa = 1;
    int exponent = 0;
    long double offset = 0;

    /// The decimal that a factor was computed from when one of 15 digits is as near as doubles go, the factor itself
    /// when there is none.
    static UnitScale of(double factor, double offset = 0);
    /// The factor as it is, where it may be more exact than a double.
    static UnitScale exactly(long double factor) { return {factor, 0, 0}; }
    bool operator==(const UnitScale&) const = default;
};

class Ratio {
public:
    enum class Outcome : std::uint8_t {
        Same,       ///< the number is what it was
        Converted,  ///< another one was appended
        Unreadable, ///< no number, or one that no double holds before or after
    };

    /// Of the same number.
    Ratio() = default;
    /// Of values in one unit for those in another.
    static Ratio between(const UnitScale& from, const UnitScale& to);

    bool isOne() const noexcept { return _numerator == _denominator && _offset == 0; }
    /// Of measures that contain the unit with an exponent, differences included: offsets do not count in them.
    Ratio power(int exponent) const;
    Ratio operator*(const Ratio& other) const;
    /// Of differences of values.
    Ratio withoutOffset() const;
    bool operator==(const Ratio&) const = default;

    /// A real in the file's text, converted. A result that a decimal of 13 digits names within one unit in the last
    /// place is that decimal: what went there comes back as it was. Nothing is appended unless it is another number.
    Outcome append(std::string& text, std::string_view real) const;

private:
    long double _numerator = 1;
    long double _denominator = 1;
    // Behind the multiplication.
    long double _offset = 0;

    bool convert(std::string_view real, double& before, double& after) const;
    void reduce();
};

} // namespace velkor::exchange
