/// B-spline curves as models have them.
#pragma once

#include "release/rules/geometry/BezierSegments.h"
#include "velkor/sdai/Model.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velkor::exchange {

/// An IfcBSplineCurveWithKnots as it is read.
struct SplineCurve {
    std::size_t degree = 0;
    std::size_t dimension = 0;
    /// To the control points, as the file has them.
    std::vector<std::string> references;
    std::vector<ControlPoint> points;
    bool isRational = false;
    /// Each as often as its multiplicity says.
    std::vector<double> knots;

    /// Nothing when there is anything in it that was not understood.
    static std::optional<SplineCurve> of(const DXSdaiAppInstance& curve);
};

/// Of any B-spline curve; 0 for one that is not taken apart.
std::size_t splineDegree(const DXSdaiAppInstance& curve);

/// The different knots between which a B-spline curve runs; none when they were not understood.
std::vector<double> splineRange(const DXSdaiAppInstance& curve);

} // namespace velkor::exchange
