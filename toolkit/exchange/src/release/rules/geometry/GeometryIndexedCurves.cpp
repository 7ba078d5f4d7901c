// Indexed polygonal curves as polylines and arcs.
#include "release/rules/geometry/CurveRecords.h"
#include "release/rules/geometry/GeometryTables.h"
#include "release/rules/geometry/GeometryText.h"
#include "release/rules/geometry/IndexedSegments.h"

#include "velkor/sdai/Part21Encoding.h"

#include <algorithm>
#include <string>
#include <vector>

namespace velkor::exchange {

namespace {

using Segment = IndexedSegment;

Successor becomesCurve(const Releases& releases, DXSdaiAppInstance& curve) {
    if (releases.target.entity("IFCINDEXEDPOLYCURVE")) return Successor::notHere();
    const std::optional<std::vector<Segment>> segments = Segment::of(curve);
    return Successor::of(releases, segments && hasArcs(*segments) ? "IFCCOMPOSITECURVE" : "IFCPOLYLINE");
}

bool planCurve(Planning& planning, DXSdaiAppInstance& curve) {
    const std::optional<PointList> points = PointList::of(curve, "POINTS");
    const std::optional<std::vector<Segment>> segments = Segment::of(curve);
    const std::optional<std::uint64_t> count = points ? points->count(planning) : std::nullopt;
    if (!segments || !count) return false;
    // A reference to each point, of ten bytes or so.
    if (segments->empty() && (*count < 2 || !planning.affords(10 * *count))) return false;
    for (const Segment& segment : *segments) {
        if (std::ranges::max(segment.points) >= *count) return false;
        // Two points say nothing of the circle that leads back to the first.
        if (segment.isArc && segment.points.front() == segment.points.back()) return false;
    }
    return planning.reserve(points->id(), *count) != 0;
}

/// Writes the segments of a curve, one after the other.
class SegmentWriter {
public:
    SegmentWriter(Rebuilding& rebuilding, const PointList& points)
        : _rebuilding(rebuilding), _points(points), _first(rebuilding.reserved(points.id())) {}

    std::uint64_t add(const Segment& segment, bool isLast) {
        RecordBuilder record(_rebuilding.target(), "IFCCOMPOSITECURVESEGMENT");
        record.set("TRANSITION", enumerator(isLast ? "DISCONTINUOUS" : "CONTINUOUS"));
        record.set("SAMESENSE", enumerator("T"));
        record.set("PARENTCURVE", reference(segment.isArc ? arc(segment.points) : line(segment.points)));
        return _rebuilding.add(record);
    }
    bool areSame(std::uint32_t one, std::uint32_t other) const { return one == other || point(one) == point(other); }

private:
    std::optional<Point> point(std::uint32_t place) const { return readPoint(_points.tuple(_rebuilding, place)); }
    std::string pointReference(std::uint32_t place) const { return reference(_first + place); }

    std::uint64_t line(const std::vector<std::uint32_t>& points) {
        std::vector<std::string> members;
        for (const std::uint32_t place : points) members.push_back(pointReference(place));
        RecordBuilder record(_rebuilding.target(), "IFCPOLYLINE");
        record.set("POINTS", listOf(members));
        return _rebuilding.add(record);
    }

    std::uint64_t arc(const std::vector<std::uint32_t>& points) {
        const std::optional<Point> start = point(points[0]);
        const std::optional<Point> middle = point(points[1]);
        const std::optional<Point> end = point(points[2]);
        const auto found = start && middle && end ? CircularArc::through(*start, *middle, *end) : std::nullopt;
        if (!found) return line(points);
        return addArc(_rebuilding, *found, _points.dimension(), pointReference(points[0]), pointReference(points[2]));
    }

    Rebuilding& _rebuilding;
    PointList _points;
    std::uint64_t _first;
};

// Through all points of the list when there are no segments.
RecordBuilder polyline(Rebuilding& rebuilding, const PointList& points, const std::vector<Segment>& segments) {
    const std::uint64_t first = rebuilding.reserved(points.id());
    std::vector<std::string> members;
    if (segments.empty()) {
        const std::uint64_t count = points.count(rebuilding).value_or(0);
        for (std::uint64_t i = 0; i < count; ++i) members.push_back(reference(first + i));
    } else {
        members.push_back(reference(first + segments.front().points.front()));
    }
    for (const Segment& segment : segments)
        for (std::size_t i = 1; i < segment.points.size(); ++i) members.push_back(reference(first + segment.points[i]));
    RecordBuilder record(rebuilding.target(), "IFCPOLYLINE");
    record.set("POINTS", listOf(members));
    return record;
}

RecordBuilder compositeCurve(Rebuilding& rebuilding, const PointList& points, const std::vector<Segment>& segments) {
    SegmentWriter writer(rebuilding, points);
    const bool isClosed = writer.areSame(segments.front().points.front(), segments.back().points.back());
    std::vector<std::string> members;
    for (const Segment& segment : segments)
        members.push_back(reference(writer.add(segment, !isClosed && &segment == &segments.back())));
    RecordBuilder record(rebuilding.target(), "IFCCOMPOSITECURVE");
    record.set("SEGMENTS", listOf(members));
    const std::string_view selfIntersect = rebuilding.encoded("SELFINTERSECT");
    record.set("SELFINTERSECT", selfIntersect == sdai::omittedValue ? enumerator("U") : std::string(selfIntersect));
    return record;
}

void rebuildCurve(Rebuilding& rebuilding) {
    const std::optional<PointList> points = PointList::of(rebuilding.instance(), "POINTS");
    const std::optional<std::vector<Segment>> segments = Segment::of(rebuilding.instance());
    if (!points || !segments) return;
    rebuilding.become(hasArcs(*segments) ? compositeCurve(rebuilding, *points, *segments)
                                         : polyline(rebuilding, *points, *segments));
}

constexpr RebuildRule rules[] = {
    {{"indexed-curves", Effect::Rebuilt, "Indexed polygonal curves become polylines, with arcs composite curves",
      "Lines go through the same points; an arc is the circle through its three points, trimmed at the first and the "
      "last of them, which no unit of angles can change"},
     "IFCINDEXEDPOLYCURVE",
     becomesCurve,
     planCurve,
     rebuildCurve},
};

} // namespace

std::span<const RebuildRule> indexedCurveRules() {
    return rules;
}

} // namespace velkor::exchange
