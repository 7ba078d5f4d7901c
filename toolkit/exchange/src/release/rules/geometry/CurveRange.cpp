#include "release/rules/geometry/CurveRange.h"

#include "release/rules/geometry/CircularArc.h"
#include "release/rules/geometry/GeometryText.h"
#include "release/rules/geometry/IndexedSegments.h"
#include "release/rules/geometry/SplineCurve.h"
#include "velkor/units/UnitReport.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velkor::exchange {

namespace {

std::optional<double> endOfIndexed(Rebuilding& rebuilding, const DXSdaiAppInstance& curve) {
    const std::optional<PointList> points = PointList::of(curve, "POINTS");
    const std::optional<std::vector<IndexedSegment>> segments = IndexedSegment::of(curve);
    const std::optional<std::uint64_t> count = points ? points->count(rebuilding) : std::nullopt;
    if (!segments || !count) return std::nullopt;
    if (segments->empty()) return static_cast<double>(*count) - 1;
    double end = 0;
    for (const IndexedSegment& segment : *segments) {
        if (std::ranges::max(segment.points) >= *count) return std::nullopt;
        std::optional<CircularArc> arc;
        if (segment.isArc) {
            std::array<Point, 3> through{};
            for (std::size_t i = 0; i < 3; ++i) {
                const std::optional<Point> point = readPoint(points->tuple(rebuilding, segment.points[i]));
                if (!point) return std::nullopt;
                through[i] = *point;
            }
            arc = CircularArc::through(through[0], through[1], through[2]);
        }
        end += arc ? arc->angle / radiansPerAngle(rebuilding) : static_cast<double>(segment.points.size()) - 1;
    }
    return end;
}

std::optional<double> endOfComposite(Rebuilding& rebuilding, const DXSdaiAppInstance& curve, int depth) {
    double end = 0;
    for (const sdai::Primitive member : curve.GetAttr("SEGMENTS").asAggregate()) {
        const DXSdaiAppInstance* segment = member.asInstance();
        const DXSdaiAppInstance* parent = segment ? segment->GetAttr("PARENTCURVE").asInstance() : nullptr;
        if (!parent) return std::nullopt;
        const std::optional<double> part = CurveRange::of(rebuilding, *parent, depth + 1).end;
        if (!part) return std::nullopt;
        end += *part;
    }
    return end > 0 ? std::optional(end) : std::nullopt;
}

std::optional<double> trimOf(const DXSdaiAppInstance& curve, std::string_view attribute) {
    for (const sdai::Primitive trim : curve.GetAttr(attribute).asAggregate())
        if (!trim.asInstance())
            if (const std::optional<double> parameter = trim.asReal(); parameter && std::isfinite(*parameter))
                return parameter;
    return std::nullopt;
}

std::optional<double> endOfTrimmed(Rebuilding& rebuilding, const DXSdaiAppInstance& curve) {
    const DXSdaiAppInstance* basis = curve.GetAttr("BASISCURVE").asInstance();
    const std::optional<double> first = trimOf(curve, "TRIM1");
    const std::optional<double> second = trimOf(curve, "TRIM2");
    if (!basis || !first || !second) return std::nullopt;
    const bool isForward = curve.GetAttr("SENSEAGREEMENT").asBoolean().value_or(true);
    double length = isForward ? *second - *first : *first - *second;
    if (basis->IsKindOf("IFCCIRCLE") || basis->IsKindOf("IFCELLIPSE")) {
        const double turn = 2 * std::numbers::pi / radiansPerAngle(rebuilding);
        length = std::fmod(length, turn);
        if (length <= 0) length += turn;
    } else if (!basis->IsKindOf("IFCLINE")) {
        return std::nullopt;
    }
    return length > 0 ? std::optional(length) : std::nullopt;
}

CurveRange find(Rebuilding& rebuilding, const DXSdaiAppInstance& curve, int depth) {
    if (curve.IsKindOf("IFCPOLYLINE")) {
        const std::size_t count = curve.GetAttr("POINTS").asAggregate().memberCount();
        return {count > 1 ? std::optional(static_cast<double>(count) - 1) : std::nullopt, {}};
    }
    if (curve.IsKindOf("IFCINDEXEDPOLYCURVE")) return {endOfIndexed(rebuilding, curve), {}};
    if (curve.IsKindOf("IFCCOMPOSITECURVE")) return {endOfComposite(rebuilding, curve, depth), {}};
    if (curve.IsKindOf("IFCTRIMMEDCURVE")) return {endOfTrimmed(rebuilding, curve), {}};
    if (curve.IsKindOf("IFCCIRCLE") || curve.IsKindOf("IFCELLIPSE"))
        return {2 * std::numbers::pi / radiansPerAngle(rebuilding), {}};
    if (curve.IsKindOf("IFCBSPLINECURVEWITHKNOTS")) {
        const std::vector<double> knots = splineRange(curve);
        if (knots.size() > 1) return {static_cast<double>(knots.size()) - 1, knots};
    }
    return {};
}

} // namespace

double radiansPerAngle(Rebuilding& rebuilding) {
    // No instance has this number: what is remembered is the model's.
    std::any& remembered = rebuilding.remembered(0);
    if (!remembered.has_value()) {
        const double factor = unitReport(rebuilding.source()).angleFactor;
        remembered = factor > 0 ? factor : 1.0;
    }
    return std::any_cast<double>(remembered);
}

const CurveRange& CurveRange::of(Rebuilding& rebuilding, const DXSdaiAppInstance& curve, int depth) {
    static const CurveRange unknown;
    // What is remembered of others is not a range.
    constexpr int deepest = 32;
    if (!curve.IsKindOf("IFCCURVE") || depth > deepest) return unknown;
    if (std::any& remembered = rebuilding.remembered(curve.id()); remembered.has_value())
        return std::any_cast<const CurveRange&>(remembered);
    // A curve that is a part of itself has no end.
    rebuilding.remembered(curve.id()) = unknown;
    CurveRange found = find(rebuilding, curve, depth);
    std::any& remembered = rebuilding.remembered(curve.id());
    remembered = std::move(found);
    return std::any_cast<const CurveRange&>(remembered);
}

std::optional<double> CurveRange::converted(double parameter) const {
    if (knots.empty()) return parameter;
    if (!(parameter >= knots.front() && parameter <= knots.back())) return std::nullopt;
    const auto after = std::ranges::upper_bound(knots.begin() + 1, knots.end() - 1, parameter);
    const auto span = static_cast<double>(after - knots.begin()) - 1;
    return span + (parameter - after[-1]) / (after[0] - after[-1]);
}

} // namespace velkor::exchange
