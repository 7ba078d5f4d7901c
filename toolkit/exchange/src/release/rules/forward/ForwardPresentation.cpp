// Annotations, symbols and styles.
#include "release/rules/forward/ForwardTables.h"

#include "RecordText.h"

#include "velkor/sdai/Part21Encoding.h"

#include <cmath>

namespace velkor::exchange::forward {

namespace {

constexpr ConversionRule occurrences{"annotation-occurrence", Effect::Rebuilt,
                                     "A styled annotation becomes its curve, text or area where it is used, with a "
                                     "styled item for its styles",
                                     "Since IFC4 representations have the items themselves, and styles refer to them"};
constexpr ConversionRule occurrenceItems{"annotation-item", Effect::Converted,
                                         "The item of a styled annotation stands in its place",
                                         "Since IFC4 representations have the items themselves"};
constexpr ConversionRule symbols{"symbol", Effect::Lost, "Symbols, their styles and relationships are dropped",
                                 "Since IFC4 there are no symbols, and no shapes stand for those that were predefined"};
constexpr ConversionRule callouts{"draughting-callout", Effect::Lost,
                                  "Dimensions and other callouts are dropped; their curves and texts stay where they "
                                  "were",
                                  "Since IFC4 nothing says that items belong together as a dimension"};
constexpr ConversionRule calloutItems{"callout-items", Effect::Converted,
                                      "The curves and texts of a callout stand in its place",
                                      "They are what of it can be seen"};
constexpr ConversionRule surfaces{"annotation-surface", Effect::Lost,
                                  "Texture coordinates of annotation surfaces are dropped; the surfaces stay",
                                  "Since IFC4 textures are mapped to faces and by other coordinates"};
constexpr ConversionRule surfaceItems{"surface-item", Effect::Converted,
                                      "The item of an annotation surface stands in its place",
                                      "Since IFC4 representations have the items themselves"};
constexpr ConversionRule textures{"texture-coordinates", Effect::Lost, "Maps of textures are dropped",
                                  "Since IFC4 a map names its textures and the face it is for, which IFC2X3 leaves "
                                  "open"};
constexpr ConversionRule pixels{"blob-texture", Effect::Lost, "Textures with their pixels in the file are dropped",
                                "IFC2X3 has a truth value where the pixels belong"};
constexpr ConversionRule tiles{"area-tiles", Effect::Lost, "Tiles that fill areas are dropped",
                               "IFC2X3 has symbols for tiles, which the target lacks"};
constexpr ConversionRule boxes{"text-box", Effect::Lost, "Boxes of text styles are dropped",
                               "Since IFC4 texts have no measures of their characters' boxes"};
constexpr ConversionRule repeats{"hatch-distance", Effect::Converted,
                                 "The factor by which hatch lines repeat becomes its vector",
                                 "Since IFC4 the vector stands there itself"};
constexpr ConversionRule ports{"port-geometry", Effect::Lost,
                               "The geometry of a connection of ports becomes the points where they meet; directions "
                               "and profile are dropped",
                               "Since IFC4 connections have points, curves and surfaces alone"};
constexpr ConversionRule stiffness{"infinite-stiffness", Effect::Converted,
                                   "A stiffness of -1 becomes the truth that there is no movement",
                                   "IFC2X3 has the number for what is stiff beyond measure"};
constexpr ConversionRule shapes{"product-shape", Effect::Rebuilt,
                                "A representation of a product in general becomes a product definition shape",
                                "Since IFC4 the general one cannot be instantiated"};

bool isOccurrence(std::string_view entity) {
    constexpr std::string_view names[] = {"IFCANNOTATIONCURVEOCCURRENCE",
                                          "IFCANNOTATIONFILLAREAOCCURRENCE",
                                          "IFCANNOTATIONSURFACEOCCURRENCE",
                                          "IFCANNOTATIONTEXTOCCURRENCE",
                                          "IFCPROJECTIONCURVE",
                                          "IFCDIMENSIONCURVE"};
    for (const std::string_view name : names)
        if (name == entity) return true;
    return false;
}

Successor absorbOccurrence(const Releases& releases, DXSdaiAppInstance& occurrence) {
    if (releases.target.entity(occurrence.entity()->name()) != nullptr) return Successor::notHere();
    return isOccurrence(occurrence.entity()->name()) && occurrence.TestAttr("ITEM") ? Successor::absorbed()
                                                                                    : Successor::notHere();
}

/// What stands for the item of an occurrence; nothing when it is lost, or an occurrence itself.
std::optional<std::string> itemOf(Rebuilding& rebuilding, std::uint64_t occurrence, const sdai::Type& to) {
    const sdai::Model& model = rebuilding.source();
    const std::string_view item = encodedOf(model, occurrence, "ITEM");
    const sdai::EntityDefinition* outer = entityOf(model, occurrence);
    const sdai::EntityDefinition* inner = entityOf(model, item);
    if (outer == nullptr || inner == nullptr || isOccurrence(inner->name())) return std::nullopt;
    // A surface in a surface would have no end.
    if (outer->name() == "IFCANNOTATIONSURFACE" && inner->name() == outer->name()) return std::nullopt;
    if (inner->isKindOf("IFCDRAUGHTINGCALLOUT")) return std::nullopt;
    return rebuilding.translated(item, attributeType(*outer, "ITEM"), to);
}

void addStyledItem(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCSTYLEDITEM"));
    const auto item = itemOf(rebuilding, rebuilding.id(), attributeType(record.entity(), "ITEM"));
    if (!item || isUnset(record.value("STYLES"))) return;
    record.set("ITEM", *item);
    rebuilding.add(record);
}

std::optional<std::vector<std::string>> asItem(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                               const sdai::Type& to) {
    const sdai::EntityDefinition* entity = entityOf(rebuilding.source(), encoded);
    if (entity == nullptr || !isOccurrence(entity->name()) || rebuilding.target().entity(entity->name()) != nullptr)
        return std::nullopt;
    auto item = itemOf(rebuilding, sdai::decodeInstanceName(encoded), to);
    if (!item) return std::nullopt;
    return std::vector{std::move(*item)};
}

std::optional<std::vector<std::string>> asSurface(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                                  const sdai::Type& to) {
    const sdai::EntityDefinition* entity = entityOf(rebuilding.source(), encoded);
    if (entity == nullptr || entity->name() != "IFCANNOTATIONSURFACE" ||
        rebuilding.target().entity("IFCANNOTATIONSURFACE") != nullptr)
        return std::nullopt;
    auto item = itemOf(rebuilding, sdai::decodeInstanceName(encoded), to);
    if (!item) return std::nullopt;
    return std::vector{std::move(*item)};
}

/// Whether so many bytes more may stand where callouts are used: what one of them says once, each of its users says.
bool affords(Rebuilding& rebuilding, std::uint64_t bytes) {
    // What the model as a whole has is remembered under an id that no instance has.
    std::any& known = rebuilding.remembered(~std::uint64_t{1});
    const auto* before = std::any_cast<std::uint64_t>(&known);
    const std::uint64_t sum = (before == nullptr ? 0 : *before) + bytes;
    known = sum;
    constexpr std::uint64_t least = 1 << 22;
    return sum <= least + 8 * rebuilding.source().file().text().size();
}

std::optional<std::vector<std::string>> asContents(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                                   const sdai::Type& to) {
    const sdai::EntityDefinition* entity = entityOf(rebuilding.source(), encoded);
    if (entity == nullptr || !entity->isKindOf("IFCDRAUGHTINGCALLOUT") ||
        rebuilding.target().entity("IFCDRAUGHTINGCALLOUT") != nullptr)
        return std::nullopt;
    std::vector<std::string> items;
    const std::uint64_t callout = sdai::decodeInstanceName(encoded);
    // Finding where they end takes as long as reading them.
    if (!affords(rebuilding, 0)) return std::nullopt;
    const std::string_view contents = encodedOf(rebuilding.source(), callout, "CONTENTS");
    if (!affords(rebuilding, contents.size())) return std::nullopt;
    for (const std::uint64_t id : idsOf(contents)) {
        const sdai::EntityDefinition* content = entityOf(rebuilding.source(), id);
        if (content == nullptr || !isOccurrence(content->name())) continue;
        if (auto item = itemOf(rebuilding, id, to)) items.push_back(std::move(*item));
    }
    if (items.empty()) return std::nullopt;
    return items;
}

std::optional<std::vector<std::string>> asVector(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                                 const sdai::Type& to) {
    const auto* select = to.resolved().asSelect();
    const sdai::EntityDefinition* vector = rebuilding.target().entity("IFCVECTOR");
    if (select == nullptr || vector == nullptr || !select->accepts(*vector)) return std::nullopt;
    const sdai::EntityDefinition* entity = entityOf(rebuilding.source(), encoded);
    if (entity == nullptr || !entity->isKindOf("IFCONEDIRECTIONREPEATFACTOR")) return std::nullopt;
    const std::string_view factor = encodedOf(rebuilding.source(), sdai::decodeInstanceName(encoded), "REPEATFACTOR");
    if (rebuilding.successorOf(sdai::decodeInstanceName(factor)) == nullptr) return std::nullopt;
    return std::vector{std::string(factor)};
}

std::optional<std::vector<std::string>> asTruth(Rebuilding& rebuilding, std::string_view encoded,
                                                const sdai::Type& from, const sdai::Type& to) {
    const auto* select = to.resolved().asSelect();
    const auto* name = from.asDefined();
    if (select == nullptr || name == nullptr) return std::nullopt;
    const std::string_view list = select->definedType().name();
    const bool isStiffness = list.ends_with("STIFFNESSSELECT") || list.ends_with("REACTIONSELECT");
    double value = 0.;
    const auto* truth = rebuilding.target().definition().definedType("IFCBOOLEAN");
    if (!isStiffness || !sdai::decodeReal(encoded, value) || std::abs(value + 1.) > 0. || truth == nullptr ||
        !select->accepts(*truth))
        return std::nullopt;
    return std::vector{typed("IFCBOOLEAN", ".T.")};
}

// Others have what these are made of, so that it must not go with them.
Successor absorbWhereLacking(const Releases& releases, DXSdaiAppInstance& factor) {
    return releases.target.entity(factor.entity()->name()) == nullptr ? Successor::absorbed() : Successor::notHere();
}

/// Where both releases have the entity but not what it is made of.
Successor lostTexture(const Releases& releases, DXSdaiAppInstance& coordinate) {
    const sdai::EntityDefinition* before = coordinate.entity();
    const sdai::EntityDefinition* after = releases.target.entity(before->name());
    const bool isOther = after != nullptr && after->attributeIndex("MAPS") >= 0 && before->attributeIndex("MAPS") < 0;
    return isOther ? Successor::lost() : Successor::notHere();
}

Successor lostPixels(const Releases& releases, DXSdaiAppInstance& texture) {
    const sdai::EntityDefinition* after = releases.target.entity("IFCBLOBTEXTURE");
    const bool isOther = after != nullptr &&
                         attributeType(*texture.entity(), "RASTERCODE").resolved().kind() == sdai::TypeKind::Boolean &&
                         attributeType(*after, "RASTERCODE").resolved().kind() == sdai::TypeKind::Binary;
    return isOther ? Successor::lost() : Successor::notHere();
}

Successor lostTiles(const Releases& releases, DXSdaiAppInstance&) {
    const bool isOther = releases.source.entity("IFCFILLAREASTYLETILESYMBOLWITHSTYLE") != nullptr &&
                         releases.target.entity("IFCFILLAREASTYLETILESYMBOLWITHSTYLE") == nullptr;
    return isOther ? Successor::lost() : Successor::notHere();
}

Successor becomesPoints(const Releases& releases, DXSdaiAppInstance& geometry) {
    return replacedBy(releases, geometry, "IFCCONNECTIONPOINTGEOMETRY");
}

void rebuildPoints(Rebuilding& rebuilding) {
    RecordBuilder record(rebuilding.target(), "IFCCONNECTIONPOINTGEOMETRY");
    constexpr std::pair<std::string_view, std::string_view> points[] = {
        {"LOCATIONATRELATINGELEMENT", "POINTONRELATINGELEMENT"}, {"LOCATIONATRELATEDELEMENT", "POINTONRELATEDELEMENT"}};
    for (const auto& [from, to] : points) {
        const std::uint64_t placement = sdai::decodeInstanceName(rebuilding.encoded(from));
        const std::string_view point = encodedOf(rebuilding.source(), placement, "LOCATION");
        if (rebuilding.successorOf(sdai::decodeInstanceName(point)) != nullptr) record.set(to, std::string(point));
    }
    rebuilding.become(record);
}

Successor becomesShape(const Releases& releases, DXSdaiAppInstance& representation) {
    const sdai::EntityDefinition* same = releases.target.entity("IFCPRODUCTREPRESENTATION");
    const bool isHere =
        representation.entity()->name() == "IFCPRODUCTREPRESENTATION" && same != nullptr && same->isAbstract();
    return isHere ? Successor::of(releases, "IFCPRODUCTDEFINITIONSHAPE") : Successor::notHere();
}

constexpr RebuildRule rebuilds[] = {
    {occurrences, "IFCANNOTATIONOCCURRENCE", absorbOccurrence, nullptr, addStyledItem},
    {symbols, "IFCANNOTATIONSYMBOLOCCURRENCE", lostWhereLacking},
    {symbols, "IFCDEFINEDSYMBOL", lostWhereLacking},
    {symbols, "IFCPREDEFINEDSYMBOL", lostWhereLacking},
    {symbols, "IFCEXTERNALLYDEFINEDSYMBOL", lostWhereLacking},
    {symbols, "IFCSYMBOLSTYLE", lostWhereLacking},
    {callouts, "IFCDRAUGHTINGCALLOUT", absorbWhereLacking},
    {callouts, "IFCDRAUGHTINGCALLOUTRELATIONSHIP", lostWhereLacking},
    {surfaces, "IFCANNOTATIONSURFACE", absorbWhereLacking},
    {textures, "IFCTEXTURECOORDINATE", lostTexture},
    {textures, "IFCVERTEXBASEDTEXTUREMAP", lostWhereLacking},
    {pixels, "IFCBLOBTEXTURE", lostPixels},
    {tiles, "IFCFILLAREASTYLETILES", lostTiles},
    {tiles, "IFCFILLAREASTYLETILESYMBOLWITHSTYLE", lostWhereLacking},
    {boxes, "IFCTEXTSTYLEWITHBOXCHARACTERISTICS", lostWhereLacking},
    {repeats, "IFCONEDIRECTIONREPEATFACTOR", absorbWhereLacking},
    {ports, "IFCCONNECTIONPORTGEOMETRY", becomesPoints, nullptr, rebuildPoints},
    {shapes, "IFCPRODUCTREPRESENTATION", becomesShape},
};

constexpr ValueRule values[] = {{occurrenceItems, asItem},
                                {surfaceItems, asSurface},
                                {calloutItems, asContents},
                                {repeats, asVector},
                                {stiffness, asTruth}};

} // namespace

RuleTable presentationRules() {
    return {.rebuild = rebuilds, .values = values};
}

} // namespace velkor::exchange::forward
