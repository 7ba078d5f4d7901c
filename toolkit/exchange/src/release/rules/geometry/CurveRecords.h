/// Points, lines and arcs as records.
#pragma once

#include "release/Rebuilding.h"
#include "release/rules/geometry/CircularArc.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::exchange {

/// An IfcCartesianPoint or IfcDirection of so many numbers.
std::uint64_t addPoint(Rebuilding& rebuilding, const Point& place, std::size_t dimension);
std::uint64_t addDirection(Rebuilding& rebuilding, const Point& ratios, std::size_t dimension);

/// An IfcTrimmedCurve over a circle, between two points that are given as references and lie on it. Of a plane where
/// `dimension` is 2: then the axis is upright.
std::uint64_t addArc(Rebuilding& rebuilding, const CircularArc& arc, std::size_t dimension, const std::string& start,
                     const std::string& end);

} // namespace velkor::exchange
