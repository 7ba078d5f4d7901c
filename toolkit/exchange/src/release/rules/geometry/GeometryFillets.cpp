// Disks swept along polygons whose corners are rounded.
#include "release/rules/geometry/CurveRange.h"
#include "release/rules/geometry/CurveRecords.h"
#include "release/rules/geometry/GeometryTables.h"

#include <cmath>
#include <vector>

namespace velkor::exchange {

namespace {

Point between(const Point& from, const Point& to, double part) {
    return {from[0] + part * (to[0] - from[0]), from[1] + part * (to[1] - from[1]), from[2] + part * (to[2] - from[2])};
}

double distance(const Point& a, const Point& b) {
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

/// One part of the rounded curve; a line when it has no arc.
struct Part {
    Point start{};
    Point end{};
    std::optional<CircularArc> arc;
};

// The corners of a polyline in space.
std::vector<Point> cornersOf(const DXSdaiAppInstance& curve) {
    std::vector<Point> corners;
    if (curve.IsKindOf("IFCPOLYLINE")) {
        for (const sdai::Primitive member : curve.GetAttr("POINTS").asAggregate()) {
            std::size_t dimension = 0;
            const std::optional<Point> corner = readPoint(member.asInstance(), dimension);
            if (!corner || dimension != 3) return {};
            corners.push_back(*corner);
        }
    } else if (curve.IsKindOf("IFCINDEXEDPOLYCURVE") && !curve.TestAttr("SEGMENTS")) {
        const std::optional<PointList> points = PointList::of(curve, "POINTS");
        if (!points || points->dimension() != 3) return {};
        bool isSound = true;
        points->eachTuple([&](std::string_view tuple) {
            const std::optional<Point> corner = readPoint(tuple);
            isSound = isSound && corner;
            corners.push_back(corner.value_or(Point{}));
        });
        if (!isSound) return {};
    }
    return corners;
}

/// The arc at a corner: where it begins and ends, and the circle between. False where no circle of the radius touches
/// both sides.
bool round(const Point& before, const Point& corner, const Point& after, double radius, Part& part) {
    const double first = distance(before, corner);
    const double second = distance(corner, after);
    if (!(first > 0) || !(second > 0)) return false;
    const Point toBefore = between(corner, before, 1 / first);
    const Point toAfter = between(corner, after, 1 / second);
    // Half the angle between the two sides.
    const double half = std::atan2(distance(toBefore, toAfter) / 2, distance(between(toBefore, toAfter, 0.5), corner));
    constexpr double least = 1e-6;
    if (half < least) return false;
    const double reach = radius / std::tan(half);
    part.start = between(corner, before, reach / first);
    part.end = between(corner, after, reach / second);
    const Point inward = between(toBefore, toAfter, 0.5);
    const double depth = distance(inward, corner);
    if (!(depth > least)) return reach < least * std::min(first, second);
    const Point middle = between(corner, inward, (radius / std::sin(half) - radius) / depth);
    part.arc = CircularArc::through(part.start, middle, part.end);
    return part.arc.has_value();
}

/// The whole curve; nothing when the corners leave no room for their arcs.
std::vector<Part> rounded(const std::vector<Point>& corners, double radius) {
    std::vector<Part> parts;
    if (corners.size() < 2 || !(radius > 0) || !std::isfinite(radius)) return {};
    Point at = corners.front();
    double used = 0;
    constexpr double close = 1 + 1e-9;
    for (std::size_t i = 1; i < corners.size(); ++i) {
        const double length = distance(corners[i - 1], corners[i]);
        Part arc{corners[i], corners[i], {}};
        if (i + 1 < corners.size() && !round(corners[i - 1], corners[i], corners[i + 1], radius, arc)) return {};
        const double needed = distance(corners[i], arc.start);
        if (used + needed > length * close) return {};
        if (used + needed < length / close) parts.push_back({at, arc.start, {}});
        if (arc.arc) parts.push_back(arc);
        at = arc.end;
        used = distance(corners[i], arc.end);
    }
    return parts;
}

std::vector<Part> curveOf(const DXSdaiAppInstance& solid) {
    const DXSdaiAppInstance* directrix = solid.GetAttr("DIRECTRIX").asInstance();
    if (!directrix) return {};
    const std::vector<Point> corners = cornersOf(*directrix);
    // Parameters are those of the polygon: only the whole of it is said by the whole of another curve.
    const double start = solid.GetAttr("STARTPARAM").asReal().value_or(0);
    const double end = solid.GetAttr("ENDPARAM").asReal().value_or(static_cast<double>(corners.size()) - 1);
    if (start != 0 || end != static_cast<double>(corners.size()) - 1) return {};
    return rounded(corners, solid.GetAttr("FILLETRADIUS").asReal().value_or(0));
}

Successor becomesRounded(const Releases& releases, DXSdaiAppInstance& solid) {
    return replacedBy(releases, solid, "IFCSWEPTDISKSOLID");
}

bool planRounded(Planning& planning, DXSdaiAppInstance& solid) {
    const DXSdaiAppInstance* polygon = solid.GetAttr("DIRECTRIX").asInstance();
    if (!polygon) return false;
    // A polygon that several are swept along is read and said by each of them.
    const auto number = planning.source().file().find(polygon->id());
    std::uint64_t size = number ? planning.source().file().instanceText(*number).size() : 0;
    if (const std::optional<PointList> points = PointList::of(*polygon, "POINTS")) size += points->size();
    constexpr std::uint64_t growth = 16;
    if (!planning.affords(growth * size) || curveOf(solid).empty()) return false;
    if (planning.userCount(polygon->id()) == 1) planning.decide(polygon->id(), Successor::absorbed());
    return true;
}

void rebuildRounded(Rebuilding& rebuilding) {
    const std::vector<Part> parts = curveOf(rebuilding.instance());
    std::vector<std::string> segments;
    double end = 0;
    std::string at;
    for (const Part& part : parts) {
        if (at.empty()) at = reference(addPoint(rebuilding, part.start, 3));
        const std::string next = reference(addPoint(rebuilding, part.end, 3));
        std::uint64_t curve = 0;
        if (part.arc) {
            curve = addArc(rebuilding, *part.arc, 3, at, next);
            end += part.arc->angle / radiansPerAngle(rebuilding);
        } else {
            RecordBuilder line(rebuilding.target(), "IFCPOLYLINE");
            line.set("POINTS", listOf({at, next}));
            curve = rebuilding.add(line);
            end += 1;
        }
        RecordBuilder segment(rebuilding.target(), "IFCCOMPOSITECURVESEGMENT");
        segment.set("TRANSITION", enumerator(&part == &parts.back() ? "DISCONTINUOUS" : "CONTINUOUS"));
        segment.set("SAMESENSE", enumerator("T"));
        segment.set("PARENTCURVE", reference(curve));
        segments.push_back(reference(rebuilding.add(segment)));
        at = next;
    }
    RecordBuilder directrix(rebuilding.target(), "IFCCOMPOSITECURVE");
    directrix.set("SEGMENTS", listOf(segments));
    directrix.set("SELFINTERSECT", enumerator("U"));
    RecordBuilder record(rebuilding.target(), "IFCSWEPTDISKSOLID");
    record.set("DIRECTRIX", reference(rebuilding.add(directrix)));
    for (const std::string_view attribute : {"RADIUS", "INNERRADIUS"})
        record.set(attribute, std::string(rebuilding.encoded(attribute)));
    record.set("STARTPARAM", real(0));
    record.set("ENDPARAM", real(end));
    rebuilding.become(record);
}

constexpr RebuildRule rules[] = {
    {{"rounded-disks", Effect::Rebuilt,
      "Disks swept along a polygon with fillets become disks swept along lines and arcs",
      "A fillet is the arc of its radius that touches both sides of a corner"},
     "IFCSWEPTDISKSOLIDPOLYGONAL",
     becomesRounded,
     planRounded,
     rebuildRounded},
};

} // namespace

std::span<const RebuildRule> filletRules() {
    return rules;
}

} // namespace velkor::exchange
