#include "release/rules/geometry/BezierSegments.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace velkor::exchange {

namespace {

// What is at the end of a range stays exactly what it is.
ControlPoint between(const ControlPoint& from, const ControlPoint& to, double part) {
    if (part == 0) return from;
    if (part == 1) return to;
    ControlPoint result;
    for (std::size_t i = 0; i < result.size(); ++i) result[i] = from[i] + part * (to[i] - from[i]);
    return result;
}

/// One segment, over the range from v[degree - 1] to v[degree], of the 2 * degree knots v around it: knots are put in
/// at both ends until the segment has them alone.
void takeApart(std::span<ControlPoint> points, std::span<const double> v) {
    const std::size_t degree = points.size() - 1;
    const double start = v[degree - 1];
    const double end = v[degree];
    // Behind each level one more point from the right is the one that the start alone comes before.
    for (std::size_t level = 1; level <= degree; ++level) {
        for (std::size_t j = 0; j <= degree - level; ++j) {
            const double low = v[j + level - 1];
            const double high = v[j + degree];
            points[j] = between(points[j], points[j + 1], (start - low) / (high - low));
        }
    }
    for (std::size_t level = 2; level <= degree; ++level) {
        for (std::size_t j = degree; j >= level; --j) {
            const double high = v[degree + j - level + 1];
            points[j] = between(points[j - 1], points[j], (end - start) / (high - start));
        }
    }
}

} // namespace

std::optional<std::vector<double>> KnotVector::expanded(std::size_t degree, std::size_t pointCount) const {
    if (degree < 1 || pointCount <= degree || knots.size() < 2 || knots.size() != multiplicities.size())
        return std::nullopt;
    const std::size_t total = pointCount + degree + 1;
    std::vector<double> result;
    for (std::size_t i = 0; i < knots.size(); ++i) {
        const std::int64_t count = multiplicities[i];
        const bool isEnd = i == 0 || i + 1 == knots.size();
        if (count < 1 || static_cast<std::uint64_t>(count) > degree + (isEnd ? 1 : 0)) return std::nullopt;
        if (!std::isfinite(knots[i]) || (i && !(knots[i] > knots[i - 1]))) return std::nullopt;
        if (result.size() + static_cast<std::size_t>(count) > total) return std::nullopt;
        result.insert(result.end(), static_cast<std::size_t>(count), knots[i]);
    }
    if (result.size() != total) return std::nullopt;
    return result;
}

bool areBezierKnots(const std::vector<double>& knots, std::size_t degree) {
    const std::size_t pointCount = knots.size() - degree - 1;
    if ((pointCount - 1) % degree || knots.front() != knots[degree] || knots.back() != knots[pointCount]) return false;
    for (std::size_t i = degree; i < pointCount; i += degree)
        if (knots[i + 1 - degree] != knots[i] || knots[i + 1] == knots[i]) return false;
    return true;
}

std::vector<ControlPoint> bezierPoints(const std::vector<ControlPoint>& points, const std::vector<double>& knots,
                                       std::size_t degree) {
    std::vector<ControlPoint> result;
    std::vector<ControlPoint> segment(degree + 1);
    for (std::size_t i = degree; i < points.size(); ++i) {
        if (knots[i] == knots[i + 1]) continue;
        std::copy_n(points.begin() + static_cast<std::ptrdiff_t>(i - degree), degree + 1, segment.begin());
        takeApart(segment, std::span(knots).subspan(i - degree + 1, 2 * degree));
        result.insert(result.end(), segment.begin() + (result.empty() ? 0 : 1), segment.end());
    }
    return result;
}

} // namespace velkor::exchange
