/// The parameters that curves have in releases where sweeps along them must state theirs.
#pragma once

#include "release/Rebuilding.h"

#include <optional>
#include <vector>

namespace velkor::exchange {

/// Of a curve of the source as the target has it; its parameters begin at 0.
struct CurveRange {
    /// Nothing for a curve that has no end, or whose end is not known.
    std::optional<double> end;
    /// The knots between which a B-spline runs in the source: in the target those are 0, 1, 2 and so on.
    std::vector<double> knots;

    /// Found once for each curve. `depth` says of how many others it is a part; beyond a few the end is not known.
    static const CurveRange& of(Rebuilding& rebuilding, const DXSdaiAppInstance& curve, int depth = 0);

    /// A parameter of the source in the target.
    std::optional<double> converted(double parameter) const;
};

/// Radians in one unit of plane angles of the source.
double radiansPerAngle(Rebuilding& rebuilding);

} // namespace velkor::exchange
