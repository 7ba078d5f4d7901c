// Shapes that are said exactly by a plainer entity.
#include "release/rules/geometry/CurveRecords.h"
#include "release/rules/geometry/GeometryTables.h"
#include "release/rules/geometry/GeometryText.h"

#include "velkor/sdai/Part21Encoding.h"

namespace velkor::exchange {

namespace {

Successor becomesCompositeCurve(const Releases& releases, DXSdaiAppInstance& curve) {
    return replacedBy(releases, curve, "IFCCOMPOSITECURVE");
}

Successor becomesSegment(const Releases& releases, DXSdaiAppInstance& segment) {
    return replacedBy(releases, segment, "IFCCOMPOSITECURVESEGMENT");
}

Successor becomesTriangles(const Releases& releases, DXSdaiAppInstance& network) {
    return replacedBy(releases, network, "IFCTRIANGULATEDFACESET");
}

Successor becomesFaceSurface(const Releases& releases, DXSdaiAppInstance& face) {
    return replacedBy(releases, face, "IFCFACESURFACE");
}

Successor becomesFace(const Releases& releases, DXSdaiAppInstance& face) {
    return replacedBy(releases, face, "IFCFACE");
}

Successor becomesDerivedProfile(const Releases& releases, DXSdaiAppInstance& profile) {
    return replacedBy(releases, profile, "IFCDERIVEDPROFILEDEF");
}

bool isZero(std::string_view encoded) {
    double value = 1;
    return sdai::decodeReal(encoded, value) && value == 0;
}

bool keepsItsProfile(const DXSdaiAppInstance& solid) {
    const DXSdaiAppInstance* start = solid.GetAttr("SWEPTAREA").asInstance();
    return start && start == solid.GetAttr("ENDSWEPTAREA").asInstance();
}

Successor becomesExtrusion(const Releases& releases, DXSdaiAppInstance& solid) {
    return keepsItsProfile(solid) ? replacedBy(releases, solid, "IFCEXTRUDEDAREASOLID") : Successor::notHere();
}

Successor becomesRevolution(const Releases& releases, DXSdaiAppInstance& solid) {
    return keepsItsProfile(solid) ? replacedBy(releases, solid, "IFCREVOLVEDAREASOLID") : Successor::notHere();
}

// Of releases that know lengths of nothing those that do not have positive ones alone.
Successor becomesSharp(const Releases& releases, DXSdaiAppInstance& shape) {
    if (releases.target.definition().definedType("IFCNONNEGATIVELENGTHMEASURE")) return Successor::notHere();
    const std::span<const sdai::AttributeSlot> slots = shape.entity()->attributes();
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const sdai::DefinedType* type = slots[i].attribute->type().asDefined();
        if (type && type->name() == "IFCNONNEGATIVELENGTHMEASURE" && isZero(shape.attribute(i).encoded()))
            return Successor::of(releases, shape.entity()->name());
    }
    return Successor::notHere();
}

void rebuildSharp(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity(rebuilding.entity().name()));
    for (const sdai::AttributeSlot& slot : record.entity().attributes())
        if (slot.attribute->isOptional() && isZero(record.value(slot.attribute->name())))
            record.set(slot.attribute->name(), std::string(sdai::omittedValue));
    rebuilding.become(record);
}

// What is more of the instance than the other entity says is said already.
void carry(Rebuilding& rebuilding) {
    rebuilding.become(rebuilding.carried(*rebuilding.successorOf(rebuilding.id())));
}

std::uint64_t makeMirror(Rebuilding& rebuilding) {
    RecordBuilder record(rebuilding.target(), "IFCCARTESIANTRANSFORMATIONOPERATOR2D");
    record.set("AXIS1", reference(addDirection(rebuilding, {-1, 0, 0}, 2)));
    record.set("AXIS2", reference(addDirection(rebuilding, {0, 1, 0}, 2)));
    record.set("LOCALORIGIN", reference(addPoint(rebuilding, {0, 0, 0}, 2)));
    record.set("SCALE", real(1));
    return rebuilding.add(record);
}

void rebuildMirrored(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCDERIVEDPROFILEDEF"));
    record.set("OPERATOR", reference(rebuilding.shared("mirror", makeMirror)));
    rebuilding.become(record);
}

Successor becomesRenamedSpiral(const Releases& releases, DXSdaiAppInstance& spiral) {
    const sdai::EntityDefinition* after = releases.target.entity(spiral.entity()->name());
    const auto has = [](const sdai::EntityDefinition& entity, std::string_view attribute) {
        return entity.attributeIndex(attribute) >= 0;
    };
    if (!after || has(*spiral.entity(), "CUBICTERM") == has(*after, "CUBICTERM")) return Successor::notHere();
    return Successor::of(releases, after->name());
}

void rebuildRenamedSpiral(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity(rebuilding.entity().name()));
    const bool wasCubic = rebuilding.entity().attributeIndex("CUBICTERM") >= 0;
    record.set(wasCubic ? "QUBICTERM" : "CUBICTERM",
               std::string(rebuilding.encoded(wasCubic ? "CUBICTERM" : "QUBICTERM")));
    rebuilding.become(record);
}

constexpr RebuildRule rules[] = {
    {{"closed-composite-curves", Effect::Rebuilt,
      "Composite curves of a plane and of boundaries become composite curves",
      "That they lie in a plane or in a surface is seen from their segments"},
     "IFCCOMPOSITECURVE",
     becomesCompositeCurve},
    {{"curve-segments-parameters", Effect::Rebuilt, "Segments with a parameter length of their own become plain ones",
      "The shape is the same; the parameters along the curve are those of the segments"},
     "IFCREPARAMETRISEDCOMPOSITECURVESEGMENT",
     becomesSegment},
    {{"networks", Effect::Rebuilt, "Triangulated irregular networks become triangulated face sets",
      "The triangles are the same"},
     "IFCTRIANGULATEDIRREGULARNETWORK",
     becomesTriangles},
    {{"advanced-faces", Effect::Rebuilt, "Advanced faces become faces of a surface",
      "They have the same surface and bounds; what is more of them are rules that they keep"},
     "IFCADVANCEDFACE",
     becomesFaceSurface},
    {{"subfaces", Effect::Rebuilt, "Subfaces become faces", "Their bounds say where they are"},
     "IFCSUBFACE",
     becomesFace},
    {{"mirrored-profiles", Effect::Rebuilt, "Mirrored profiles become derived ones",
      "The operator that mirrors at the vertical axis is what a mirrored profile goes without"},
     "IFCMIRROREDPROFILEDEF",
     becomesDerivedProfile,
     nullptr,
     rebuildMirrored},
    {{"zero-radii", Effect::Converted, "A fillet or edge without radius is left out",
      "The release has positive radii alone, and none at all for sharp edges"},
     "IFCPARAMETERIZEDPROFILEDEF",
     becomesSharp,
     nullptr,
     rebuildSharp},
    {{"untapered-extrusions", Effect::Rebuilt, "Tapered extrusions that end as they begin become extrusions",
      "Their two profiles are one"},
     "IFCEXTRUDEDAREASOLIDTAPERED",
     becomesExtrusion,
     nullptr,
     carry},
    {{"untapered-revolutions", Effect::Rebuilt, "Tapered revolutions that end as they begin become revolutions",
      "Their two profiles are one"},
     "IFCREVOLVEDAREASOLIDTAPERED",
     becomesRevolution,
     nullptr,
     carry},
    {{"cubic-terms", Effect::Rebuilt, "The cubic term of a spiral gets its other name",
      "A release candidate spelled it with a Q"},
     "IFCTHIRDORDERPOLYNOMIALSPIRAL",
     becomesRenamedSpiral,
     nullptr,
     rebuildRenamedSpiral},
};

std::uint64_t makePlacement(Rebuilding& rebuilding, std::string_view entity, std::size_t dimension) {
    RecordBuilder record(rebuilding.target(), entity);
    record.set("LOCATION", reference(addPoint(rebuilding, {0, 0, 0}, dimension)));
    return rebuilding.add(record);
}

std::optional<std::string> originOfPlane(Rebuilding& rebuilding) {
    return reference(rebuilding.shared(
        "placement in a plane", [](Rebuilding& maker) { return makePlacement(maker, "IFCAXIS2PLACEMENT2D", 2); }));
}

std::optional<std::string> originOfSpace(Rebuilding& rebuilding) {
    return reference(rebuilding.shared(
        "placement in space", [](Rebuilding& maker) { return makePlacement(maker, "IFCAXIS2PLACEMENT3D", 3); }));
}

constexpr ConversionRule unplaced = {"unplaced-shapes", Effect::Converted, "Shapes without a placement get one",
                                     "What has none stands at the origin, along the axes"};
constexpr ConversionRule verticalAxis = {"vertical-sections", Effect::Converted,
                                         "Sections along a curve are said to stand vertically",
                                         "Where nothing else is said they do"};

constexpr DefaultRule defaults[] = {
    {unplaced, "IFCPARAMETERIZEDPROFILEDEF", "POSITION", nullptr, originOfPlane},
    {unplaced, "IFCSWEPTAREASOLID", "POSITION", nullptr, originOfSpace},
    {unplaced, "IFCSWEPTSURFACE", "POSITION", nullptr, originOfSpace},
    {unplaced, "IFCSPIRAL", "POSITION", nullptr, originOfPlane},
    {verticalAxis, "IFCSECTIONEDSOLIDHORIZONTAL", "FIXEDAXISVERTICAL", ".T."},
    {verticalAxis, "IFCSECTIONEDSURFACE", "FIXEDAXISVERTICAL", ".T."},
};

} // namespace

std::span<const RebuildRule> plainerShapeRules() {
    return rules;
}

std::span<const DefaultRule> geometryDefaults() {
    return defaults;
}

} // namespace velkor::exchange
