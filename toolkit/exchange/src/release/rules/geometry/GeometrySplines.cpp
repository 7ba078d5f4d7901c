// B-spline and Bezier curves as one another.
#include "release/rules/geometry/BezierSegments.h"
#include "release/rules/geometry/GeometryTables.h"
#include "release/rules/geometry/GeometryText.h"
#include "release/rules/geometry/SplineCurve.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace velkor::exchange {

namespace {

Successor becomesBezier(const Releases& releases, DXSdaiAppInstance& curve) {
    if (releases.target.entity("IFCBSPLINECURVEWITHKNOTS")) return Successor::notHere();
    const bool isRational = curve.entity()->attributeIndex("WEIGHTSDATA") >= 0;
    return Successor::of(releases, isRational ? "IFCRATIONALBEZIERCURVE" : "IFCBEZIERCURVE");
}

bool planBezier(Planning&, DXSdaiAppInstance& curve) {
    const std::optional<SplineCurve> spline = SplineCurve::of(curve);
    // Knots may leave no room for any segment.
    return spline && (areBezierKnots(spline->knots, spline->degree) ||
                      bezierPoints(spline->points, spline->knots, spline->degree).size() > spline->degree);
}

// The curve's own point where a segment begins or ends at it, else a new one.
std::vector<std::string> pointReferences(Rebuilding& rebuilding, const SplineCurve& spline,
                                         const std::vector<ControlPoint>& points) {
    std::vector<std::string> members;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const ControlPoint& point = points[i];
        if (i == 0 && point == spline.points.front()) {
            members.push_back(spline.references.front());
        } else if (i + 1 == points.size() && point == spline.points.back()) {
            members.push_back(spline.references.back());
        } else {
            RecordBuilder record(rebuilding.target(), "IFCCARTESIANPOINT");
            const Point place{point[0] / point[3], point[1] / point[3], point[2] / point[3]};
            record.set("COORDINATES", encodedTuple(place, spline.dimension));
            members.push_back(reference(rebuilding.add(record)));
        }
    }
    return members;
}

void rebuildBezier(Rebuilding& rebuilding) {
    const std::optional<SplineCurve> spline = SplineCurve::of(rebuilding.instance());
    if (!spline) return;
    RecordBuilder record(rebuilding.target(), spline->isRational ? "IFCRATIONALBEZIERCURVE" : "IFCBEZIERCURVE");
    for (const std::string_view attribute : {"DEGREE", "CURVEFORM", "CLOSEDCURVE", "SELFINTERSECT"})
        record.set(attribute, std::string(rebuilding.encoded(attribute)));
    if (areBezierKnots(spline->knots, spline->degree)) {
        record.set("CONTROLPOINTSLIST", std::string(rebuilding.encoded("CONTROLPOINTSLIST")));
        record.set("WEIGHTSDATA", std::string(rebuilding.encoded("WEIGHTSDATA")));
        return rebuilding.become(record);
    }
    const std::vector<ControlPoint> points = bezierPoints(spline->points, spline->knots, spline->degree);
    record.set("CONTROLPOINTSLIST", listOf(pointReferences(rebuilding, *spline, points)));
    std::vector<std::string> weights;
    for (const ControlPoint& point : points) weights.push_back(real(point[3]));
    record.set("WEIGHTSDATA", listOf(weights));
    rebuilding.become(record);
}

/// How many segments a Bezier curve has; 0 when its points do not make up whole ones.
std::size_t segmentCount(const DXSdaiAppInstance& curve) {
    const std::size_t degree = splineDegree(curve);
    const std::size_t points = curve.GetAttr("CONTROLPOINTSLIST").asAggregate().memberCount();
    return degree && points > degree && (points - 1) % degree == 0 ? (points - 1) / degree : 0;
}

Successor becomesKnotted(const Releases& releases, DXSdaiAppInstance& curve) {
    if (releases.target.entity(curve.entity()->name())) return Successor::notHere();
    const bool isRational = curve.entity()->attributeIndex("WEIGHTSDATA") >= 0;
    return Successor::of(releases, isRational ? "IFCRATIONALBSPLINECURVEWITHKNOTS" : "IFCBSPLINECURVEWITHKNOTS");
}

bool planBezierKnots(Planning&, DXSdaiAppInstance& curve) {
    return segmentCount(curve) > 0;
}

void become(Rebuilding& rebuilding, const std::vector<double>& knots, const std::vector<std::int64_t>& multiplicities,
            std::string_view type) {
    const bool isRational = rebuilding.entity().attributeIndex("WEIGHTSDATA") >= 0;
    RecordBuilder record(rebuilding.target(),
                         isRational ? "IFCRATIONALBSPLINECURVEWITHKNOTS" : "IFCBSPLINECURVEWITHKNOTS");
    for (const std::string_view attribute :
         {"DEGREE", "CONTROLPOINTSLIST", "CURVEFORM", "CLOSEDCURVE", "SELFINTERSECT", "WEIGHTSDATA"})
        record.set(attribute, std::string(rebuilding.encoded(attribute)));
    std::vector<std::string> places;
    std::vector<std::string> counts;
    for (const double knot : knots) places.push_back(real(knot));
    for (const std::int64_t count : multiplicities) counts.push_back(integer(count));
    record.set("KNOTS", listOf(places));
    record.set("KNOTMULTIPLICITIES", listOf(counts));
    record.set("KNOTSPEC", enumerator(type));
    rebuilding.become(record);
}

void rebuildBezierKnots(Rebuilding& rebuilding) {
    const std::size_t segments = segmentCount(rebuilding.instance());
    const auto degree = static_cast<std::int64_t>(splineDegree(rebuilding.instance()));
    std::vector<double> knots;
    for (std::size_t i = 0; i <= segments; ++i) knots.push_back(static_cast<double>(i));
    std::vector<std::int64_t> multiplicities(segments + 1, degree);
    multiplicities.front() = multiplicities.back() = degree + 1;
    become(rebuilding, knots, multiplicities, "PIECEWISE_BEZIER_KNOTS");
}

bool planUniformKnots(Planning&, DXSdaiAppInstance& curve) {
    const std::size_t degree = splineDegree(curve);
    return degree && curve.GetAttr("CONTROLPOINTSLIST").asAggregate().memberCount() > degree;
}

void rebuildUniformKnots(Rebuilding& rebuilding) {
    const auto degree = static_cast<std::int64_t>(splineDegree(rebuilding.instance()));
    const auto points =
        static_cast<std::int64_t>(rebuilding.instance().GetAttr("CONTROLPOINTSLIST").asAggregate().memberCount());
    std::vector<double> knots;
    for (std::int64_t knot = -degree; knot <= points; ++knot) knots.push_back(static_cast<double>(knot));
    become(rebuilding, knots, std::vector<std::int64_t>(knots.size(), 1), "UNIFORM_KNOTS");
}

constexpr RebuildRule rules[] = {
    {{"splines-to-bezier", Effect::Rebuilt, "B-spline curves with knots become chains of Bezier curves",
      "Knots put in until each segment has its own change nothing of the shape; the parameters of the segments follow "
      "each other at a distance of one then"},
     "IFCBSPLINECURVEWITHKNOTS",
     becomesBezier,
     planBezier,
     rebuildBezier},
    {{"bezier-to-splines", Effect::Rebuilt, "Bezier curves become B-spline curves with knots",
      "A chain of Bezier curves is the B-spline whose knots lie one from each other, as often as its degree says"},
     "IFCBEZIERCURVE",
     becomesKnotted,
     planBezierKnots,
     rebuildBezierKnots},
    {{"uniform-curves", Effect::Rebuilt, "Uniform B-spline curves get the knots that they go without",
      "They lie one from each other, from minus the degree on"},
     "IFCUNIFORMCURVE",
     becomesKnotted,
     planUniformKnots,
     rebuildUniformKnots},
};

} // namespace

std::span<const RebuildRule> splineRules() {
    return rules;
}

} // namespace velkor::exchange
