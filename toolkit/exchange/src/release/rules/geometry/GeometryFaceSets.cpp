// Tessellated face sets as faces bounded by loops of points.
#include "release/rules/geometry/FaceLoops.h"
#include "release/rules/geometry/GeometryTables.h"
#include "release/rules/geometry/GeometryText.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

namespace velkor::exchange {

namespace {

bool isCalledClosed(const DXSdaiAppInstance& faceSet) {
    return faceSet.GetAttr("CLOSED").asBoolean().value_or(false);
}

/// The loops of a set that is called closed and is; where it is not over its own points, over one for each place.
std::optional<FaceLoops> closedLoops(const DXSdaiAppInstance& faceSet) {
    if (!isCalledClosed(faceSet)) return std::nullopt;
    std::optional<FaceLoops> loops = FaceLoops::of(faceSet.model(), faceSet);
    if (!loops || loops->isClosed()) return loops;
    const std::optional<PointList> points = PointList::of(faceSet, "COORDINATES");
    loops = points && points->dimension() == 3 ? loops->welded(*points) : std::nullopt;
    return loops && loops->isClosed() ? std::move(loops) : std::nullopt;
}

Successor becomesFaces(const Releases& releases, DXSdaiAppInstance& faceSet) {
    if (releases.target.entity("IFCTESSELLATEDFACESET")) return Successor::notHere();
    return Successor::of(releases, closedLoops(faceSet) ? "IFCFACETEDBREP" : "IFCSHELLBASEDSURFACEMODEL");
}

bool planFaces(Planning& planning, DXSdaiAppInstance& faceSet) {
    const std::optional<PointList> points = PointList::of(faceSet, "COORDINATES");
    if (!points || points->dimension() != 3) return false;
    const std::optional<std::uint64_t> count = points->count(planning);
    if (!count || !planning.affords(FaceLoops::sharedSize(planning.source(), faceSet))) return false;
    const std::optional<FaceLoops> loops = FaceLoops::of(planning.source(), faceSet);
    if (!loops || loops->faceCount() == 0 || loops->pointBound() > *count) return false;
    return planning.reserve(points->id(), *count) != 0;
}

/// Writes faces, one after the other.
class FaceWriter {
public:
    FaceWriter(Rebuilding& rebuilding, const PointList& points)
        : _rebuilding(rebuilding), _points(points), _first(rebuilding.reserved(points.id())) {}

    std::uint64_t face(const FaceLoops& loops, std::size_t face) {
        _bounds.assign("IFCFACE((");
        loops.eachLoop(face, [this](std::span<const std::uint32_t> loop, bool isOuter) {
            if (!isOuter) _bounds += ',';
            _bounds += reference(bound(loop, isOuter));
        });
        return _rebuilding.add(std::string_view(_bounds += "))"));
    }

private:
    std::uint64_t bound(std::span<const std::uint32_t> loop, bool isOuter) {
        _record.assign("IFCPOLYLOOP((");
        if (passesTwice(loop)) {
            appendWithTwins(loop);
        } else {
            for (const std::uint32_t point : loop) append(_first + point);
        }
        _record.back() = ')';
        const std::uint64_t polygon = _rebuilding.add(std::string_view(_record += ')'));
        _record.assign(isOuter ? "IFCFACEOUTERBOUND(" : "IFCFACEBOUND(");
        (_record += reference(polygon)) += ",.T.)";
        return _rebuilding.add(std::string_view(_record));
    }

    void append(std::uint64_t point) { (_record += reference(point)) += ','; }

    bool passesTwice(std::span<const std::uint32_t> loop) {
        if (loop.size() == 3) return false;
        _sorted.assign(loop.begin(), loop.end());
        std::ranges::sort(_sorted);
        return std::ranges::adjacent_find(_sorted) != _sorted.end();
    }

    // A loop that leads to its inner parts and back passes points more than once, but a polygon names a point only
    // once: what it passes again gets another point at the same place.
    void appendWithTwins(std::span<const std::uint32_t> loop) {
        std::unordered_set<std::uint32_t> passed;
        for (const std::uint32_t point : loop) append(passed.insert(point).second ? _first + point : twin(point));
    }

    std::uint64_t twin(std::uint32_t point) {
        std::string record("IFCCARTESIANPOINT(");
        (record += _points.tuple(_rebuilding, point)) += ')';
        return _rebuilding.add(std::string_view(record));
    }

    Rebuilding& _rebuilding;
    PointList _points;
    std::uint64_t _first;
    std::string _bounds;
    std::string _record;
    std::vector<std::uint32_t> _sorted;
};

void rebuildFaces(Rebuilding& rebuilding) {
    const DXSdaiAppInstance& faceSet = rebuilding.instance();
    const std::optional<PointList> points = PointList::of(faceSet, "COORDINATES");
    const bool isSolid = rebuilding.successorOf(rebuilding.id())->isKindOf("IFCFACETEDBREP");
    const std::optional<FaceLoops> loops = isSolid ? closedLoops(faceSet) : FaceLoops::of(rebuilding.source(), faceSet);
    if (!points || !loops) return;
    std::string shell(isSolid ? "IFCCLOSEDSHELL((" : "IFCOPENSHELL((");
    FaceWriter writer(rebuilding, *points);
    for (std::size_t face = 0; face < loops->faceCount(); ++face) {
        if (face) shell += ',';
        shell += reference(writer.face(*loops, face));
    }
    const std::uint64_t shellId = rebuilding.add(std::string_view(shell += "))"));
    RecordBuilder record(rebuilding.target(), isSolid ? "IFCFACETEDBREP" : "IFCSHELLBASEDSURFACEMODEL");
    record.set(isSolid ? "OUTER" : "SBSMBOUNDARY", isSolid ? reference(shellId) : listOf({reference(shellId)}));
    rebuilding.become(record);

    if (rebuilding.encoded("NORMALS") != sdai::omittedValue)
        rebuilding.note(geometryRule("facet-normals"), "Normals are left out");
    if (loops->degenerateCount())
        rebuilding.note(geometryRule("degenerate-facets"), text::counted(loops->degenerateCount(), "loop", "loops") +
                                                               " of fewer than three different points");
    if (isCalledClosed(faceSet) && !isSolid)
        rebuilding.note(geometryRule("closed-face-sets"), "Its edges are not passed once in each direction");
}

Successor becomesPoints(const Releases& releases, DXSdaiAppInstance&) {
    return releases.target.entity("IFCCARTESIANPOINTLIST") ? Successor::notHere() : Successor::absorbed();
}

void rebuildPoints(Rebuilding& rebuilding) {
    const std::optional<PointList> points = PointList::of(rebuilding.instance());
    std::uint64_t id = rebuilding.reserved(rebuilding.id());
    if (!points || !id) return;
    std::string record;
    points->eachTuple([&](std::string_view tuple) {
        ((record.assign("IFCCARTESIANPOINT(")) += tuple) += ')';
        rebuilding.add(id++, std::string_view(record));
    });
}

Successor becomesPartOfSet(const Releases& releases, DXSdaiAppInstance&) {
    return releases.target.entity("IFCTESSELLATEDITEM") ? Successor::notHere() : Successor::absorbed();
}

constexpr RebuildRule rules[] = {
    {{"face-sets", Effect::Rebuilt, "Tessellated face sets become faces bounded by polygons",
      "Every facet is a face over the same points; where each edge is passed once in each direction and the set is "
      "called closed they bound a solid, IfcFacetedBrep, else they are a surface, IfcShellBasedSurfaceModel"},
     "IFCTESSELLATEDFACESET",
     becomesFaces,
     planFaces,
     rebuildFaces},
    {{"facet-loops", Effect::Rebuilt, "Indexed polygonal faces become faces bounded by polygons",
      "What they said stands in the face that is made with their face set"},
     "IFCINDEXEDPOLYGONALFACE",
     becomesPartOfSet},
    {{"point-lists", Effect::Rebuilt, "Lists of points become points",
      "There is one IfcCartesianPoint for each, which faces and curves share as they shared its index"},
     "IFCCARTESIANPOINTLIST",
     becomesPoints,
     nullptr,
     rebuildPoints},
    {{"facet-normals", Effect::Lost, "Normals of facets are left out",
      "Faces bounded by polygons have none but their own"},
     "IFCTESSELLATEDFACESET",
     notHere},
    {{"degenerate-facets", Effect::Rebuilt, "Facets without area are left out",
      "Fewer than three different points bound no face, and nothing is missed where there was no area"},
     "IFCTESSELLATEDFACESET",
     notHere},
    {{"closed-face-sets", Effect::Lost, "Face sets that are called closed and are not become surfaces",
      "What their faces leave open bounds no solid"},
     "IFCTESSELLATEDFACESET",
     notHere},
};

} // namespace

std::span<const RebuildRule> faceSetRules() {
    return rules;
}

} // namespace velkor::exchange
