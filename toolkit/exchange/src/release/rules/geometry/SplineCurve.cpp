#include "release/rules/geometry/SplineCurve.h"

#include "release/rules/geometry/GeometryText.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

std::optional<std::vector<double>> knotsOf(const DXSdaiAppInstance& curve, std::size_t degree, std::size_t count) {
    std::optional<std::vector<double>> knots = readNumbers(curve.GetAttr("KNOTS").encoded());
    if (!knots) return std::nullopt;
    KnotVector vector{std::move(*knots), {}};
    for (const sdai::Primitive multiplicity : curve.GetAttr("KNOTMULTIPLICITIES").asAggregate())
        vector.multiplicities.push_back(multiplicity.asInteger().value_or(0));
    return vector.expanded(degree, count);
}

// Coordinates times weights; false when a weight is missing or not positive.
bool takeWeights(SplineCurve& spline, std::string_view encoded) {
    const std::optional<std::vector<double>> weights = readNumbers(encoded);
    if (!weights || weights->size() != spline.points.size()) return false;
    for (std::size_t i = 0; i < weights->size(); ++i) {
        const double weight = (*weights)[i];
        if (!(weight > 0)) return false;
        ControlPoint& point = spline.points[i];
        point = {point[0] * weight, point[1] * weight, point[2] * weight, weight};
    }
    return true;
}

} // namespace

std::size_t splineDegree(const DXSdaiAppInstance& curve) {
    const std::int64_t degree = curve.GetAttr("DEGREE").asInteger().value_or(0);
    return degree >= 1 && degree <= static_cast<std::int64_t>(greatestDegree) ? static_cast<std::size_t>(degree) : 0;
}

std::optional<SplineCurve> SplineCurve::of(const DXSdaiAppInstance& curve) {
    SplineCurve spline;
    spline.degree = splineDegree(curve);
    if (!spline.degree) return std::nullopt;
    for (const sdai::Primitive member : curve.GetAttr("CONTROLPOINTSLIST").asAggregate()) {
        std::size_t dimension = 0;
        const std::optional<Point> point = readPoint(member.asInstance(), dimension);
        if (!point || (spline.dimension && dimension != spline.dimension)) return std::nullopt;
        spline.dimension = dimension;
        spline.points.push_back({(*point)[0], (*point)[1], (*point)[2], 1});
        spline.references.emplace_back(member.encoded());
    }
    std::optional<std::vector<double>> knots = knotsOf(curve, spline.degree, spline.points.size());
    if (!knots) return std::nullopt;
    spline.knots = std::move(*knots);
    spline.isRational = curve.entity()->attributeIndex("WEIGHTSDATA") >= 0;
    if (spline.isRational && !takeWeights(spline, curve.GetAttr("WEIGHTSDATA").encoded())) return std::nullopt;
    return spline;
}

std::vector<double> splineRange(const DXSdaiAppInstance& curve) {
    const std::size_t degree = splineDegree(curve);
    const std::size_t count = curve.GetAttr("CONTROLPOINTSLIST").asAggregate().memberCount();
    const std::optional<std::vector<double>> knots = degree ? knotsOf(curve, degree, count) : std::nullopt;
    std::vector<double> range;
    for (std::size_t i = degree; knots && i <= count; ++i)
        if (range.empty() || (*knots)[i] != range.back()) range.push_back((*knots)[i]);
    return range;
}

} // namespace velkor::exchange
