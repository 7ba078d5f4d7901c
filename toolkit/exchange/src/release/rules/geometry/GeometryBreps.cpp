// Advanced boundary representations without a curve in them.
#include "release/rules/geometry/GeometryTables.h"

#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace velkor::exchange {

namespace {

struct Polygon {
    /// Points by their ids, in the order of the loop.
    std::vector<std::uint64_t> points;
    bool isOuter = false;
    bool isForward = true;
};
using Face = std::vector<Polygon>;
using Shell = std::vector<Face>;

bool isStraight(const DXSdaiAppInstance& curve) {
    if (curve.IsKindOf("IFCLINE")) return true;
    return curve.IsKindOf("IFCPOLYLINE") && curve.GetAttr("POINTS").asAggregate().memberCount() == 2;
}

// The point of a vertex; 0 for none.
std::uint64_t pointOf(const DXSdaiAppInstance* vertex) {
    const DXSdaiAppInstance* point = vertex ? vertex->GetAttr("VERTEXGEOMETRY").asInstance() : nullptr;
    return point && point->IsKindOf("IFCCARTESIANPOINT") ? point->id() : 0;
}

std::optional<std::vector<std::uint64_t>> pointsOfEdges(const DXSdaiAppInstance& loop) {
    std::vector<std::uint64_t> points;
    std::uint64_t last = 0;
    for (const sdai::Primitive member : loop.GetAttr("EDGELIST").asAggregate()) {
        const DXSdaiAppInstance* oriented = member.asInstance();
        const DXSdaiAppInstance* edge = oriented ? oriented->GetAttr("EDGEELEMENT").asInstance() : nullptr;
        const DXSdaiAppInstance* curve = edge ? edge->GetAttr("EDGEGEOMETRY").asInstance() : nullptr;
        if (!curve || !isStraight(*curve)) return std::nullopt;
        const bool isForward = oriented->GetAttr("ORIENTATION").asBoolean().value_or(true);
        const std::uint64_t start = pointOf(edge->GetAttr(isForward ? "EDGESTART" : "EDGEEND").asInstance());
        if (!start || (last && start != last)) return std::nullopt;
        last = pointOf(edge->GetAttr(isForward ? "EDGEEND" : "EDGESTART").asInstance());
        points.push_back(start);
    }
    if (points.empty() || last != points.front()) return std::nullopt;
    return points;
}

std::optional<Polygon> polygonOf(const DXSdaiAppInstance& bound) {
    const DXSdaiAppInstance* loop = bound.GetAttr("BOUND").asInstance();
    if (!loop || !loop->IsKindOf("IFCEDGELOOP")) return std::nullopt;
    std::optional<std::vector<std::uint64_t>> points = pointsOfEdges(*loop);
    if (!points || points->size() < 3) return std::nullopt;
    std::vector<std::uint64_t> sorted = *points;
    std::ranges::sort(sorted);
    if (std::ranges::adjacent_find(sorted) != sorted.end()) return std::nullopt;
    return Polygon{std::move(*points), bound.IsKindOf("IFCFACEOUTERBOUND"),
                   bound.GetAttr("ORIENTATION").asBoolean().value_or(true)};
}

std::optional<Face> faceOf(const DXSdaiAppInstance& face) {
    const DXSdaiAppInstance* surface = face.GetAttr("FACESURFACE").asInstance();
    if (!surface || !surface->IsKindOf("IFCPLANE")) return std::nullopt;
    Face polygons;
    for (const sdai::Primitive member : face.GetAttr("BOUNDS").asAggregate()) {
        const DXSdaiAppInstance* bound = member.asInstance();
        std::optional<Polygon> polygon = bound ? polygonOf(*bound) : std::nullopt;
        if (!polygon) return std::nullopt;
        polygons.push_back(std::move(*polygon));
    }
    return polygons.empty() ? std::nullopt : std::optional(std::move(polygons));
}

/// The faces of a shell; nothing when one of them is not bounded by straight edges in a plane.
std::optional<Shell> shellOf(const DXSdaiAppInstance* shell) {
    if (!shell || !shell->IsKindOf("IFCCONNECTEDFACESET")) return std::nullopt;
    Shell faces;
    for (const sdai::Primitive member : shell->GetAttr("CFSFACES").asAggregate()) {
        const DXSdaiAppInstance* face = member.asInstance();
        std::optional<Face> polygons = face ? faceOf(*face) : std::nullopt;
        if (!polygons) return std::nullopt;
        faces.push_back(std::move(*polygons));
    }
    return faces.empty() ? std::nullopt : std::optional(std::move(faces));
}

/// The outer shell, then those of the voids; nothing when any is not one of polygons.
std::optional<std::vector<Shell>> shellsOf(const DXSdaiAppInstance& brep) {
    std::vector<Shell> shells;
    const auto take = [&](const DXSdaiAppInstance* instance) {
        std::optional<Shell> shell = shellOf(instance);
        if (shell) shells.push_back(std::move(*shell));
        return shell.has_value();
    };
    if (!take(brep.GetAttr("OUTER").asInstance())) return std::nullopt;
    for (const sdai::Primitive hole : brep.GetAttr("VOIDS").asAggregate())
        if (!take(hole.asInstance())) return std::nullopt;
    return shells;
}

bool hasVoids(const DXSdaiAppInstance& brep) {
    return brep.entity()->attributeIndex("VOIDS") >= 0;
}

/// The parts that only a solid has go with it, but for the points of its polygons.
void absorbParts(Planning& planning, std::uint64_t brep, const std::vector<Shell>& shells) {
    constexpr std::string_view parts[] = {"IFCTOPOLOGICALREPRESENTATIONITEM", "IFCPLANE", "IFCLINE"};
    const sdai::Model& model = planning.source();
    std::unordered_set<std::uint64_t> kept;
    for (const Shell& shell : shells)
        for (const Face& face : shell)
            for (const Polygon& polygon : face) kept.insert(polygon.points.begin(), polygon.points.end());
    std::unordered_map<std::uint64_t, std::size_t> absorbedUsers;
    std::vector<std::uint64_t> absorbed{brep};
    while (!absorbed.empty()) {
        const auto number = model.file().find(absorbed.back());
        absorbed.pop_back();
        std::unordered_set<std::uint64_t> used;
        sdai::Part21Lexer lexer(number ? model.file().instanceText(*number) : std::string_view());
        for (sdai::Token token = lexer.next(); token.kind != sdai::TokenKind::End; token = lexer.next())
            if (token.kind == sdai::TokenKind::InstanceName) used.insert(sdai::decodeInstanceName(token.text));
        for (const std::uint64_t id : used) {
            const auto part = model.file().find(id);
            const sdai::EntityDefinition* entity = part ? model.entityAt(*part) : nullptr;
            if (!entity || kept.contains(id) ||
                std::ranges::none_of(parts, [&](std::string_view name) { return entity->isKindOf(name); }))
                continue;
            if (++absorbedUsers[id] < planning.userCount(id)) continue;
            planning.decide(id, Successor::absorbed());
            absorbed.push_back(id);
        }
    }
}

Successor becomesPolygons(const Releases& releases, DXSdaiAppInstance& brep) {
    return replacedBy(releases, brep, hasVoids(brep) ? "IFCFACETEDBREPWITHVOIDS" : "IFCFACETEDBREP");
}

bool planPolygons(Planning& planning, DXSdaiAppInstance& brep) {
    // A shell of several solids is said by each of them.
    std::uint64_t size = 0;
    const DXSdaiAppInstance* outer = brep.GetAttr("OUTER").asInstance();
    if (!outer || !outer->IsKindOf("IFCCONNECTEDFACESET")) return false;
    std::any& remembered = planning.remembered(outer->id());
    if (const auto* before = std::any_cast<std::uint64_t>(&remembered))
        if (*before == 0 || !planning.affords(*before)) return false;
    const std::optional<std::vector<Shell>> shells = shellsOf(brep);
    constexpr std::uint64_t bytesPerPolygon = 128;
    if (shells)
        for (const Shell& shell : *shells)
            for (const Face& face : shell) size += bytesPerPolygon * face.size();
    remembered = size;
    if (!shells) return false;
    absorbParts(planning, brep.id(), *shells);
    return true;
}

std::uint64_t addFace(Rebuilding& rebuilding, const Face& face) {
    std::string bounds("IFCFACE((");
    for (const Polygon& polygon : face) {
        std::string record("IFCPOLYLOOP((");
        for (const std::uint64_t point : polygon.points) (record += reference(point)) += ',';
        record.back() = ')';
        const std::uint64_t loop = rebuilding.add(std::string_view(record += ')'));
        record.assign(polygon.isOuter ? "IFCFACEOUTERBOUND(" : "IFCFACEBOUND(");
        (record += reference(loop)) += polygon.isForward ? ",.T.)" : ",.F.)";
        (bounds += reference(rebuilding.add(std::string_view(record)))) += ',';
    }
    bounds.back() = ')';
    return rebuilding.add(std::string_view(bounds += ')'));
}

void rebuildPolygons(Rebuilding& rebuilding) {
    const std::optional<std::vector<Shell>> shells = shellsOf(rebuilding.instance());
    if (!shells) return;
    std::vector<std::string> members;
    for (const Shell& shell : *shells) {
        std::string record("IFCCLOSEDSHELL((");
        for (const Face& face : shell) (record += reference(addFace(rebuilding, face))) += ',';
        record.back() = ')';
        members.push_back(reference(rebuilding.add(std::string_view(record += ')'))));
    }
    RecordBuilder record(rebuilding.target(), *rebuilding.successorOf(rebuilding.id()));
    record.set("OUTER", members.front());
    record.set("VOIDS", listOf({members.begin() + 1, members.end()}));
    rebuilding.become(record);
}

constexpr RebuildRule rules[] = {
    {{"plane-breps", Effect::Rebuilt, "Advanced boundary representations of planes and straight edges become faceted",
      "A face in a plane whose edges are straight is the polygon of its vertices"},
     "IFCADVANCEDBREP",
     becomesPolygons,
     planPolygons,
     rebuildPolygons},
};

} // namespace

std::span<const RebuildRule> brepRules() {
    return rules;
}

} // namespace velkor::exchange
