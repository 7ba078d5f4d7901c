#include "release/rules/geometry/CurveRecords.h"

namespace velkor::exchange {

namespace {

std::uint64_t add(Rebuilding& rebuilding, std::string_view entity, std::string_view attribute, const Point& numbers,
                  std::size_t dimension) {
    RecordBuilder record(rebuilding.target(), entity);
    record.set(attribute, encodedTuple(numbers, dimension));
    return rebuilding.add(record);
}

std::uint64_t addCircle(Rebuilding& rebuilding, const CircularArc& arc, std::size_t dimension) {
    const bool isInSpace = dimension == 3;
    RecordBuilder placement(rebuilding.target(), isInSpace ? "IFCAXIS2PLACEMENT3D" : "IFCAXIS2PLACEMENT2D");
    placement.set("LOCATION", reference(addPoint(rebuilding, arc.centre, dimension)));
    if (isInSpace) placement.set("AXIS", reference(addDirection(rebuilding, arc.axis, dimension)));
    placement.set("REFDIRECTION", reference(addDirection(rebuilding, arc.direction, dimension)));
    RecordBuilder record(rebuilding.target(), "IFCCIRCLE");
    record.set("POSITION", reference(rebuilding.add(placement)));
    record.set("RADIUS", real(arc.radius));
    return rebuilding.add(record);
}

} // namespace

std::uint64_t addPoint(Rebuilding& rebuilding, const Point& place, std::size_t dimension) {
    return add(rebuilding, "IFCCARTESIANPOINT", "COORDINATES", place, dimension);
}

std::uint64_t addDirection(Rebuilding& rebuilding, const Point& ratios, std::size_t dimension) {
    return add(rebuilding, "IFCDIRECTION", "DIRECTIONRATIOS", ratios, dimension);
}

std::uint64_t addArc(Rebuilding& rebuilding, const CircularArc& arc, std::size_t dimension, const std::string& start,
                     const std::string& end) {
    RecordBuilder record(rebuilding.target(), "IFCTRIMMEDCURVE");
    record.set("BASISCURVE", reference(addCircle(rebuilding, arc, dimension)));
    record.set("TRIM1", listOf({start}));
    record.set("TRIM2", listOf({end}));
    // In space the axis is put so that the arc runs with its circle.
    record.set("SENSEAGREEMENT", enumerator(dimension == 3 || arc.axis[2] > 0 ? "T" : "F"));
    record.set("MASTERREPRESENTATION", enumerator("CARTESIAN"));
    return rebuilding.add(record);
}

} // namespace velkor::exchange
