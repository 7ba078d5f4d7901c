/// B-spline curves as chains of Bezier segments.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace velkor::exchange {

/// Three coordinates, those of a rational curve times the weight, and the weight.
using ControlPoint = std::array<double, 4>;

struct KnotVector {
    std::vector<double> knots;
    std::vector<std::int64_t> multiplicities;

    /// Each knot as often as its multiplicity says; nothing when they are not those of a B-spline of the degree with so
    /// many control points: increasing, none more often than the degree inside.
    std::optional<std::vector<double>> expanded(std::size_t degree, std::size_t pointCount) const;
};

/// The greatest degree that is taken apart: beyond it doubles say nothing exactly.
inline constexpr std::size_t greatestDegree = 32;

/// Whether control points between these knots are those of Bezier segments already, `degree` of them for each and one
/// more.
bool areBezierKnots(const std::vector<double>& knots, std::size_t degree);

/// The control points of the Bezier segments, `degree` of them for each and one more; the last of one is the first of
/// the next. Knots are as KnotVector::expanded() gives them. The shape is that of the B-spline between its first and
/// last parameter.
std::vector<ControlPoint> bezierPoints(const std::vector<ControlPoint>& points, const std::vector<double>& knots,
                                       std::size_t degree);

} // namespace velkor::exchange
