/// Circles through three points.
#pragma once

#include "release/rules/geometry/GeometryText.h"

#include <optional>

namespace velkor::exchange {

struct CircularArc {
    Point centre{};
    double radius = 0;
    /// Of the plane of the three points, so that the arc runs counterclockwise around it; a unit vector.
    Point axis{};
    /// From the centre to the start, a unit vector.
    Point direction{};
    /// The angle that the arc passes, in radians, between 0 and two pi.
    double angle = 0;

    /// The arc from the first point through the second to the third. Nothing when they lie in a line as far as doubles
    /// can tell, or the last is the first.
    static std::optional<CircularArc> through(const Point& start, const Point& middle, const Point& end);
};

} // namespace velkor::exchange
