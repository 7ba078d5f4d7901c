// What a shape representation is called, by what stands in it.
#include "release/rules/geometry/GeometryTables.h"
#include "release/rules/geometry/GeometryText.h"

#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace velkor::exchange {

namespace {

/// A type of representations and what may stand in one: of releases with tessellated items, and of those before. A type
/// without items is not known there.
struct RepresentationType {
    std::string_view name;
    std::vector<std::string_view> before;
    std::vector<std::string_view> after;
};

// In the order in which they are taken where several fit. Curve2D and the other types of a plane are given to nothing
// that was not called so.
const std::vector<RepresentationType>& representationTypes() {
    static const std::vector<RepresentationType> types = {
        {"Brep", {"IFCFACETEDBREP", "IFCFACETEDBREPWITHVOIDS"}, {"IFCFACETEDBREP"}},
        {"AdvancedBrep", {}, {"IFCMANIFOLDSOLIDBREP"}},
        {"SweptSolid", {"IFCSWEPTAREASOLID"}, {"IFCEXTRUDEDAREASOLID", "IFCREVOLVEDAREASOLID"}},
        {"AdvancedSweptSolid",
         {"IFCSURFACECURVESWEPTAREASOLID", "IFCSWEPTDISKSOLID"},
         {"IFCSWEPTAREASOLID", "IFCSWEPTDISKSOLID", "IFCSECTIONEDSOLIDHORIZONTAL"}},
        {"Clipping", {"IFCBOOLEANCLIPPINGRESULT"}, {"IFCCSGSOLID", "IFCBOOLEANCLIPPINGRESULT"}},
        {"CSG", {"IFCBOOLEANRESULT"}, {"IFCBOOLEANRESULT", "IFCCSGPRIMITIVE3D", "IFCCSGSOLID"}},
        {"Tessellation", {}, {"IFCTESSELLATEDITEM"}},
        {"SurfaceModel",
         {"IFCSHELLBASEDSURFACEMODEL", "IFCFACEBASEDSURFACEMODEL", "IFCFACETEDBREP", "IFCFACETEDBREPWITHVOIDS"},
         {"IFCTESSELLATEDITEM", "IFCSHELLBASEDSURFACEMODEL", "IFCFACEBASEDSURFACEMODEL"}},
        {"SolidModel", {"IFCSOLIDMODEL"}, {"IFCSOLIDMODEL"}},
        {"SurfaceOrSolidModel",
         {},
         {"IFCTESSELLATEDITEM", "IFCSHELLBASEDSURFACEMODEL", "IFCFACEBASEDSURFACEMODEL", "IFCSOLIDMODEL"}},
        {"BoundingBox", {"IFCBOUNDINGBOX"}, {"IFCBOUNDINGBOX"}},
        {"SectionedSpine", {"IFCSECTIONEDSPINE"}, {"IFCSECTIONEDSPINE"}},
        {"MappedRepresentation", {"IFCMAPPEDITEM"}, {"IFCMAPPEDITEM"}},
        {"GeometricCurveSet", {"IFCGEOMETRICSET", "IFCPOINT", "IFCCURVE"}, {"IFCGEOMETRICSET", "IFCPOINT", "IFCCURVE"}},
        {"GeometricSet",
         {"IFCGEOMETRICSET", "IFCPOINT", "IFCCURVE", "IFCSURFACE"},
         {"IFCGEOMETRICSET", "IFCPOINT", "IFCCURVE", "IFCSURFACE"}},
        {"Annotation2D",
         {"IFCPOINT", "IFCCURVE", "IFCGEOMETRICCURVESET", "IFCANNOTATIONFILLAREA", "IFCDEFINEDSYMBOL", "IFCTEXTLITERAL",
          "IFCDRAUGHTINGCALLOUT"},
         {"IFCPOINT", "IFCCURVE", "IFCGEOMETRICCURVESET", "IFCANNOTATIONFILLAREA", "IFCTEXTLITERAL"}},
        {"Curve2D", {"IFCCURVE"}, {"IFCCURVE"}},
        {"Curve3D", {}, {"IFCCURVE"}},
        {"Curve", {}, {"IFCCURVE"}},
        {"Point", {}, {"IFCPOINT", "IFCCARTESIANPOINTLIST"}},
        {"PointCloud", {}, {"IFCCARTESIANPOINTLIST3D"}},
        {"Surface", {}, {"IFCSURFACE"}},
        {"Surface2D", {}, {"IFCSURFACE"}},
        {"Surface3D", {}, {"IFCSURFACE"}},
        {"AdvancedSurface", {}, {"IFCBSPLINESURFACE"}},
        {"SectionedSurface", {}, {"IFCSECTIONEDSURFACE"}},
        {"FillArea", {}, {"IFCANNOTATIONFILLAREA"}},
        {"Text", {}, {"IFCTEXTLITERAL"}},
        {"LightSource", {}, {"IFCLIGHTSOURCE"}},
    };
    return types;
}

bool hasTessellation(const ReleaseSchema& release) {
    return release.entity("IFCTESSELLATEDITEM") != nullptr;
}

const std::vector<std::string_view>& acceptedIn(const RepresentationType& type, const ReleaseSchema& release) {
    return hasTessellation(release) ? type.after : type.before;
}

const RepresentationType* typeNamed(std::string_view name) {
    const std::vector<RepresentationType>& types = representationTypes();
    const auto found = std::ranges::find(types, name, &RepresentationType::name);
    return found == types.end() ? nullptr : &*found;
}

using Items = std::vector<const sdai::EntityDefinition*>;

bool fits(const RepresentationType& type, const ReleaseSchema& release, const Items& items) {
    return std::ranges::all_of(items, [&](const sdai::EntityDefinition* item) {
        return std::ranges::any_of(acceptedIn(type, release),
                                   [&](std::string_view entity) { return item->isKindOf(entity); });
    });
}

const RepresentationType* typeOf(const DXSdaiAppInstance& representation) {
    return typeNamed(representation.GetAttr("REPRESENTATIONTYPE").asString());
}

// The ids of what stands in a representation.
std::vector<std::uint64_t> itemsOf(const DXSdaiAppInstance& representation) {
    std::vector<std::uint64_t> ids;
    for (const sdai::Primitive item : representation.GetAttr("ITEMS").asAggregate())
        ids.push_back(sdai::decodeInstanceName(item.encoded()));
    return ids;
}

Successor becomesCalledSo(const Releases& releases, DXSdaiAppInstance& representation) {
    if (hasTessellation(releases.source) == hasTessellation(releases.target)) return Successor::notHere();
    const RepresentationType* type = typeOf(representation);
    if (!type || acceptedIn(*type, releases.source).empty()) return Successor::notHere();
    Items items;
    bool areKnown = true;
    for (const std::uint64_t id : itemsOf(representation)) {
        const auto number = representation.model().file().find(id);
        const sdai::EntityDefinition* entity = number ? representation.model().entityAt(*number) : nullptr;
        const sdai::EntityDefinition* after = entity ? releases.target.entity(entity->name()) : nullptr;
        areKnown = areKnown && after;
        if (after) items.push_back(after);
    }
    const bool isRight = areKnown && !acceptedIn(*type, releases.target).empty() && fits(*type, releases.target, items);
    return isRight ? Successor::notHere() : Successor::of(releases, representation.entity()->name());
}

// A list of points that is shown as such becomes its points.
bool planPoints(Planning& planning, DXSdaiAppInstance& representation) {
    if (planning.releases().target.entity("IFCCARTESIANPOINTLIST")) return true;
    for (const sdai::Primitive item : representation.GetAttr("ITEMS").asAggregate()) {
        const DXSdaiAppInstance* instance = item.asInstance();
        const std::optional<PointList> points = instance ? PointList::of(*instance) : std::nullopt;
        const std::optional<std::uint64_t> count = points ? points->count(planning) : std::nullopt;
        if (count && planning.affords(10 * *count)) planning.reserve(points->id(), *count);
    }
    return true;
}

void rebuildCalledSo(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity(rebuilding.entity().name()));
    Items items;
    for (const std::uint64_t id : itemsOf(rebuilding.instance())) {
        if (const sdai::EntityDefinition* entity = rebuilding.successorOf(id)) {
            items.push_back(entity);
        } else if (rebuilding.reserved(id)) {
            items.push_back(rebuilding.target().entity("IFCCARTESIANPOINT"));
        }
    }
    const RepresentationType* before = typeOf(rebuilding.instance());
    const auto isRight = [&](const RepresentationType& type) {
        return !acceptedIn(type, rebuilding.target()).empty() && fits(type, rebuilding.target(), items);
    };
    if (!items.empty() && before && !isRight(*before)) {
        const auto after = std::ranges::find_if(representationTypes(), isRight);
        if (after != representationTypes().end()) record.set("REPRESENTATIONTYPE", literal(after->name));
    }
    rebuilding.become(record);
}

const RebuildRule rules[] = {
    {{"representation-types", Effect::Converted, "Representations are called by what stands in them",
      "The types of representations are not the same in all releases, and each allows items of its own alone"},
     "IFCSHAPEREPRESENTATION",
     becomesCalledSo,
     planPoints,
     rebuildCalledSo},
};

std::optional<std::vector<std::string>> asPoints(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                                 const sdai::Type& to) {
    const std::uint64_t id = sdai::decodeInstanceName(encoded);
    const std::uint64_t first = rebuilding.reserved(id);
    const sdai::EntityDefinition* item = to.resolved().asEntity();
    const sdai::EntityDefinition* point = rebuilding.target().entity("IFCCARTESIANPOINT");
    if (!first || !item || !point->isKindOf(*item)) return std::nullopt;
    const DXSdaiAppInstance* list = rebuilding.source().instance(id);
    const std::optional<PointList> points = list ? PointList::of(*list) : std::nullopt;
    if (!points) return std::nullopt;
    std::vector<std::string> members;
    const std::uint64_t count = points->count(rebuilding).value_or(0);
    for (std::uint64_t i = 0; i < count; ++i) members.push_back(reference(first + i));
    return members;
}

// Where along a curve, in a release whose lengths there are never negative.
std::optional<std::vector<std::string>> asNonNegative(Rebuilding& rebuilding, std::string_view encoded,
                                                      const sdai::Type&, const sdai::Type& to) {
    constexpr std::string_view before = "IFCLENGTHMEASURE";
    constexpr std::string_view after = "IFCNONNEGATIVELENGTHMEASURE";
    const sdai::SelectType* select = to.resolved().asSelect();
    const sdai::DefinedType* type = rebuilding.target().definition().definedType(after);
    if (!select || !type || !select->accepts(*type) || !encoded.starts_with(before)) return std::nullopt;
    const std::string_view value = encoded.substr(before.size());
    const std::optional<std::vector<double>> length = readNumbers(value);
    if (!length || length->size() != 1 || length->front() < 0) return std::nullopt;
    std::string text(after);
    return std::vector{text += value};
}

const ValueRule values[] = {
    {{"shown-points", Effect::Rebuilt, "A list of points that is shown becomes its points",
      "A representation may show points as it may show the list"},
     asPoints},
    {{"lengths-from-zero", Effect::Converted, "Lengths along a curve that are not negative are said to be so",
      "The release allows no others there"},
     asNonNegative},
};

} // namespace

std::span<const ValueRule> geometryValues() {
    return values;
}

std::span<const RebuildRule> representationTypeRules() {
    return rules;
}

} // namespace velkor::exchange
