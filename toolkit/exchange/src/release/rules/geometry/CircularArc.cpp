#include "release/rules/geometry/CircularArc.h"

#include <cmath>
#include <numbers>

namespace velkor::exchange {

namespace {

// Where the points were given to a millionth of a chord, the last digits of a centre far away are lost with doubles.
using Vector = std::array<long double, 3>;

Vector difference(const Point& a, const Point& b) {
    return {static_cast<long double>(a[0]) - b[0], static_cast<long double>(a[1]) - b[1],
            static_cast<long double>(a[2]) - b[2]};
}

long double dot(const Vector& a, const Vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector cross(const Vector& a, const Vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Point unit(const Vector& vector) {
    const long double length = std::sqrt(dot(vector, vector));
    return {static_cast<double>(vector[0] / length), static_cast<double>(vector[1] / length),
            static_cast<double>(vector[2] / length)};
}

} // namespace

std::optional<CircularArc> CircularArc::through(const Point& start, const Point& middle, const Point& end) {
    const Vector toMiddle = difference(middle, start);
    const Vector toEnd = difference(end, start);
    const Vector normal = cross(toMiddle, toEnd);
    const long double middleSquare = dot(toMiddle, toMiddle);
    const long double endSquare = dot(toEnd, toEnd);
    const long double normalSquare = dot(normal, normal);
    // The sine of the angle at the start: below this the arc is no farther from its chord than 1e-10 of its length.
    constexpr long double straight = 1e-10L;
    if (!(normalSquare > straight * straight * middleSquare * endSquare)) return std::nullopt;

    const Vector one = cross(normal, toMiddle);
    const Vector other = cross(toEnd, normal);
    Vector toCentre{};
    for (std::size_t i = 0; i < 3; ++i)
        toCentre[i] = (endSquare * one[i] + middleSquare * other[i]) / (2 * normalSquare);
    const long double radius = std::sqrt(dot(toCentre, toCentre));
    if (!std::isfinite(static_cast<double>(radius))) return std::nullopt;

    CircularArc arc;
    arc.radius = static_cast<double>(radius);
    for (std::size_t i = 0; i < 3; ++i) arc.centre[i] = static_cast<double>(start[i] + toCentre[i]);
    arc.axis = unit(normal);
    arc.direction = unit({-toCentre[0], -toCentre[1], -toCentre[2]});
    // The angle at the circumference over the chord is half of that at the centre.
    const Vector middleToStart = difference(start, middle);
    const Vector middleToEnd = difference(end, middle);
    const long double atMiddle = std::atan2(std::sqrt(normalSquare), dot(middleToStart, middleToEnd));
    arc.angle = static_cast<double>(2 * (std::numbers::pi_v<long double> - atMiddle));
    return arc;
}

} // namespace velkor::exchange
