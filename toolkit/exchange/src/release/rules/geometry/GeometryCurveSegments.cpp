// Segments of alignments that are lines and arcs.
#include "release/rules/geometry/CurveRecords.h"
#include "release/rules/geometry/GeometryTables.h"

#include <cmath>
#include <numbers>

namespace velkor::exchange {

namespace {

Point along(const Point& from, const Point& direction, double length) {
    return {from[0] + length * direction[0], from[1] + length * direction[1], from[2] + length * direction[2]};
}

Point cross(const Point& a, const Point& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

std::optional<Point> unit(const Point& vector) {
    const double length = std::hypot(vector[0], vector[1], vector[2]);
    if (!(length > 0) || !std::isfinite(length)) return std::nullopt;
    return Point{vector[0] / length, vector[1] / length, vector[2] / length};
}

/// An attribute that refers to a direction, or what stands for one that is not given.
std::optional<Point> directionOf(const DXSdaiAppInstance& placement, std::string_view attribute, const Point& unset) {
    if (!placement.TestAttr(attribute)) return unset;
    const DXSdaiAppInstance* direction = placement.GetAttr(attribute).asInstance();
    const std::optional<Point> ratios =
        direction ? readPoint(direction->GetAttr("DIRECTIONRATIOS").encoded()) : std::nullopt;
    return ratios ? unit(*ratios) : std::nullopt;
}

/// A segment as it lies in its plane or in space.
struct PlacedSegment {
    std::size_t dimension = 0;
    std::string startReference;
    Point start{};
    Point end{};
    /// Nothing for a line.
    std::optional<CircularArc> arc;

    /// Nothing for other curves than lines and circles, and where it is not plain how the segment lies.
    static std::optional<PlacedSegment> of(const DXSdaiAppInstance& segment);

private:
    bool take(const DXSdaiAppInstance& placement);
    bool takeLine(double length);
    bool takeArc(double radius, double length);

    // Where it leads at its start, and what is up.
    Point _tangent{};
    Point _axis{};
};

std::optional<PlacedSegment> PlacedSegment::of(const DXSdaiAppInstance& segment) {
    const DXSdaiAppInstance* placement = segment.GetAttr("PLACEMENT").asInstance();
    const DXSdaiAppInstance* parent = segment.GetAttr("PARENTCURVE").asInstance();
    const std::string_view encoded = segment.GetAttr("SEGMENTLENGTH").encoded();
    const std::optional<double> length = segment.GetAttr("SEGMENTLENGTH").asReal();
    // A parameter would be one of the parent's.
    if (!placement || !parent || !length || !std::isfinite(*length) || encoded.starts_with("IFCPARAMETERVALUE"))
        return std::nullopt;
    PlacedSegment placed;
    if (!placed.take(*placement)) return std::nullopt;
    if (parent->IsKindOf("IFCLINE")) return placed.takeLine(*length) ? std::optional(placed) : std::nullopt;
    const std::optional<double> radius =
        parent->IsKindOf("IFCCIRCLE") ? parent->GetAttr("RADIUS").asReal() : std::nullopt;
    return radius && placed.takeArc(*radius, *length) ? std::optional(placed) : std::nullopt;
}

bool PlacedSegment::take(const DXSdaiAppInstance& placement) {
    if (!placement.IsKindOf("IFCAXIS2PLACEMENT2D") && !placement.IsKindOf("IFCAXIS2PLACEMENT3D")) return false;
    const std::optional<Point> location = readPoint(placement.GetAttr("LOCATION").asInstance(), dimension);
    const std::optional<Point> axis = directionOf(placement, "AXIS", {0, 0, 1});
    const std::optional<Point> given = directionOf(placement, "REFDIRECTION", {1, 0, 0});
    if (!location || !axis || !given) return false;
    // What of it is across the axis.
    const double share = (*given)[0] * (*axis)[0] + (*given)[1] * (*axis)[1] + (*given)[2] * (*axis)[2];
    const std::optional<Point> tangent = unit(along(*given, *axis, -share));
    if (!tangent) return false;
    start = *location;
    startReference = placement.GetAttr("LOCATION").encoded();
    _tangent = share == 0 ? *given : *tangent;
    _axis = *axis;
    return true;
}

bool PlacedSegment::takeLine(double length) {
    end = along(start, _tangent, length);
    // Back along the line: where its placement looks is not told.
    return length >= 0;
}

bool PlacedSegment::takeArc(double radius, double length) {
    const double angle = std::abs(length) / radius;
    if (!(radius > 0) || !(angle < 2 * std::numbers::pi)) return false;
    end = start;
    if (angle == 0) return true;
    // To the left of where it leads, or to the right of that.
    const double side = length > 0 ? 1 : -1;
    const Point left = cross(_axis, _tangent);
    CircularArc found;
    found.radius = radius;
    found.angle = angle;
    found.centre = along(start, left, side * radius);
    found.axis = along({}, _axis, side);
    found.direction = along({}, left, -side);
    const Point forward = along(found.centre, found.direction, radius * std::cos(angle));
    end = along(forward, _tangent, radius * std::sin(angle));
    arc = found;
    return true;
}

Successor becomesSegment(const Releases& releases, DXSdaiAppInstance& segment) {
    if (releases.target.entity("IFCCURVESEGMENT") || !PlacedSegment::of(segment)) return Successor::notHere();
    return Successor::of(releases, "IFCCOMPOSITECURVESEGMENT");
}

void rebuildSegment(Rebuilding& rebuilding) {
    const std::optional<PlacedSegment> placed = PlacedSegment::of(rebuilding.instance());
    if (!placed) return;
    const bool isPoint = placed->start == placed->end && !placed->arc;
    const std::string end =
        isPoint ? placed->startReference : reference(addPoint(rebuilding, placed->end, placed->dimension));
    std::uint64_t parent = 0;
    if (placed->arc) {
        parent = addArc(rebuilding, *placed->arc, placed->dimension, placed->startReference, end);
    } else {
        RecordBuilder line(rebuilding.target(), "IFCPOLYLINE");
        line.set("POINTS", listOf({placed->startReference, end}));
        parent = rebuilding.add(line);
    }
    RecordBuilder record(rebuilding.target(), "IFCCOMPOSITECURVESEGMENT");
    record.set("TRANSITION", std::string(rebuilding.encoded("TRANSITION")));
    record.set("SAMESENSE", enumerator("T"));
    record.set("PARENTCURVE", reference(parent));
    rebuilding.become(record);
}

constexpr RebuildRule rules[] = {
    {{"straight-segments", Effect::Rebuilt, "Curve segments of lines and circles become segments of lines and arcs",
      "Where a segment begins, where it leads and how long it is say where it ends; the one without length at the end "
      "of "
      "an alignment stays a point"},
     "IFCCURVESEGMENT",
     becomesSegment,
     nullptr,
     rebuildSegment},
};

} // namespace

std::span<const RebuildRule> curveSegmentRules() {
    return rules;
}

} // namespace velkor::exchange
