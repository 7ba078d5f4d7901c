// Shapes that a release cannot say exactly.
#include "release/rules/geometry/GeometryTables.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

// What the members of a list are, or what an attribute refers to.
std::string typeOf(const sdai::EntityDefinition* entity, std::string_view attribute) {
    const sdai::Attribute* found = entity ? entity->attribute(attribute) : nullptr;
    return found ? found->type().expressText() : std::string();
}

// Where an attribute is of another type in the target.
template <class... Name>
Successor lostWhereTypesDiffer(const Releases& releases, const DXSdaiAppInstance& instance, Name... attributes) {
    const sdai::EntityDefinition* after = releases.target.entity(instance.entity()->name());
    if (!after) return Successor::lost();
    const bool differs = ((typeOf(after, attributes) != typeOf(instance.entity(), attributes)) || ...);
    return differs ? Successor::lost() : Successor::notHere();
}

Successor lostSections(const Releases& releases, DXSdaiAppInstance& instance) {
    return lostWhereTypesDiffer(releases, instance, "CROSSSECTIONPOSITIONS");
}

Successor lostOffsets(const Releases& releases, DXSdaiAppInstance& instance) {
    return lostWhereTypesDiffer(releases, instance, "OFFSETVALUES");
}

Successor lostInclination(const Releases& releases, DXSdaiAppInstance& instance) {
    return lostWhereTypesDiffer(releases, instance, "INCLINATING", "STARTDISTANCE", "ENDDISTANCE");
}

// A constant term is the curvature itself in one release and a length in another.
Successor lostSpiral(const Releases& releases, DXSdaiAppInstance& instance) {
    if (!releases.target.entity(instance.entity()->name())) return Successor::lost();
    return instance.TestAttr("CONSTANTTERM") ? lostWhereTypesDiffer(releases, instance, "CONSTANTTERM")
                                             : Successor::notHere();
}

// Of an entity that the target knows, but only by its subtypes.
Successor lostWhereAbstract(const Releases& releases, DXSdaiAppInstance& instance) {
    const sdai::EntityDefinition* after = releases.target.entity(instance.entity()->name());
    return after && !after->isAbstract() ? Successor::notHere() : Successor::lost();
}

constexpr ConversionRule advancedBreps = {
    "advanced-breps", Effect::Lost, "Advanced boundary representations are lost",
    "Curved faces have no exact form in a release whose solids are bounded by polygons"};
constexpr ConversionRule curvedSurfaces = {"curved-surfaces", Effect::Lost,
                                           "Cylindrical, spherical, toroidal and B-spline surfaces are lost",
                                           "The release has planes and swept surfaces alone"};
constexpr ConversionRule boundedSurfaces = {"bounded-surfaces", Effect::Lost, "Surfaces bounded by curves are lost",
                                            "The release has no bounds for them but those of planes and rectangles"};
constexpr ConversionRule surfaceCurves = {"surface-curves", Effect::Lost,
                                          "Curves given in the parameters of a surface are lost",
                                          "The release has no such parameters"};
constexpr ConversionRule taperedSolids = {"tapered-solids", Effect::Lost, "Tapered extrusions and revolutions are lost",
                                          "The release sweeps one profile that stays what it is"};
constexpr ConversionRule fillets = {
    "filleted-disks", Effect::Lost, "Disks swept along a part of a polygon with fillets are lost",
    "A part of such a curve, or one whose corners leave no room for the fillets, has no parameters of lines and arcs"};
constexpr ConversionRule referenceSweeps = {"reference-sweeps", Effect::Lost,
                                            "Profiles swept with a fixed or inclined reference are lost",
                                            "The release has no sweep that turns the profile so along the curve"};
constexpr ConversionRule sections = {"sectioned-shapes", Effect::Lost, "Solids and surfaces through sections are lost",
                                     "Where sections stand along the curve is said otherwise, or not at all"};
constexpr ConversionRule alignments = {"alignment-curves", Effect::Lost, "Alignment curves and their parts are lost",
                                       "The release has no curves of stations, gradients and cants"};
constexpr ConversionRule spirals = {"spirals", Effect::Lost, "Spirals and polynomial curves are lost",
                                    "The release has no such curve, or its terms mean another"};
constexpr ConversionRule linearPlaces = {"linear-places", Effect::Lost, "Places along a curve are lost",
                                         "The release places by coordinates"};
constexpr ConversionRule conics = {"parabolas", Effect::Lost, "Parabolas are lost", "The release has none"};
constexpr ConversionRule voxels = {"voxels", Effect::Lost, "Voxel grids are lost", "The release has none"};
constexpr ConversionRule profiles = {"profiles", Effect::Lost, "Profiles that the release lacks are lost",
                                     "No other profile has their outline"};
constexpr ConversionRule plainSurfaces = {"plain-surfaces", Effect::Lost, "Bounded surfaces that say no more are lost",
                                          "The release has them by their subtypes alone"};
constexpr ConversionRule facetColours = {"facet-colours", Effect::Lost, "Colours and textures of facets are lost",
                                         "The release gives styles to items as a whole"};

constexpr ConversionRule contradictions = {
    "contradictory-shapes", Effect::Lost, "Shapes that contradict themselves, or say too much, are lost",
    "Indices beyond the list, knots that do not increase or numbers that do not match have no meaning to keep; nor may "
    "what a few lines say of each other grow without bounds"};

constexpr RebuildRule rules[] = {
    {contradictions, "IFCTESSELLATEDFACESET", lostWhereLacking},
    {contradictions, "IFCINDEXEDPOLYCURVE", lostWhereLacking},
    {contradictions, "IFCBSPLINECURVE", lostWhereLacking},
    {advancedBreps, "IFCADVANCEDBREP", lostWhereLacking},
    {curvedSurfaces, "IFCBSPLINESURFACE", lostWhereLacking},
    {curvedSurfaces, "IFCCYLINDRICALSURFACE", lostWhereLacking},
    {curvedSurfaces, "IFCSPHERICALSURFACE", lostWhereLacking},
    {curvedSurfaces, "IFCTOROIDALSURFACE", lostWhereLacking},
    {boundedSurfaces, "IFCCURVEBOUNDEDSURFACE", lostWhereLacking},
    {plainSurfaces, "IFCBOUNDEDSURFACE", lostWhereAbstract},
    {surfaceCurves, "IFCPCURVE", lostWhereLacking},
    {surfaceCurves, "IFCSURFACECURVE", lostWhereLacking},
    {taperedSolids, "IFCEXTRUDEDAREASOLIDTAPERED", lostWhereLacking},
    {taperedSolids, "IFCREVOLVEDAREASOLIDTAPERED", lostWhereLacking},
    {fillets, "IFCSWEPTDISKSOLIDPOLYGONAL", lostWhereLacking},
    {referenceSweeps, "IFCDIRECTRIXDISTANCESWEPTAREASOLID", lostWhereLacking},
    {referenceSweeps, "IFCDIRECTRIXCURVESWEPTAREASOLID", lostWhereLacking},
    {referenceSweeps, "IFCFIXEDREFERENCESWEPTAREASOLID", lostWhereLacking},
    {referenceSweeps, "IFCINCLINEDREFERENCESWEPTAREASOLID", lostInclination},
    {sections, "IFCSECTIONEDSOLID", lostSections},
    {sections, "IFCSECTIONEDSURFACE", lostSections},
    {alignments, "IFCALIGNMENTCURVE", lostWhereLacking},
    {alignments, "IFCALIGNMENT2DHORIZONTAL", lostWhereLacking},
    {alignments, "IFCALIGNMENT2DVERTICAL", lostWhereLacking},
    {alignments, "IFCALIGNMENT2DCANT", lostWhereLacking},
    {alignments, "IFCALIGNMENT2DSEGMENT", lostWhereLacking},
    {alignments, "IFCCURVESEGMENT2D", lostWhereLacking},
    {alignments, "IFCGRADIENTCURVE", lostWhereLacking},
    {alignments, "IFCSEGMENTEDREFERENCECURVE", lostWhereLacking},
    {alignments, "IFCCURVESEGMENT", lostWhereLacking},
    {alignments, "IFCVIENNESEBEND", lostWhereLacking},
    {alignments, "IFCOFFSETCURVEBYDISTANCES", lostOffsets},
    {spirals, "IFCSPIRAL", lostSpiral},
    {spirals, "IFCPOLYNOMIALCURVE", lostWhereLacking},
    {linearPlaces, "IFCAXIS2PLACEMENTLINEAR", lostWhereLacking},
    {linearPlaces, "IFCPOINTBYDISTANCEEXPRESSION", lostWhereLacking},
    {linearPlaces, "IFCDISTANCEEXPRESSION", lostWhereLacking},
    {linearPlaces, "IFCORIENTATIONEXPRESSION", lostWhereLacking},
    {linearPlaces, "IFCAXISLATERALINCLINATION", lostWhereLacking},
    {linearPlaces, "IFCLINEARAXISWITHINCLINATION", lostWhereLacking},
    {conics, "IFCPARABOLA", lostWhereLacking},
    {voxels, "IFCVOXELGRID", lostWhereLacking},
    {profiles, "IFCPARAMETERIZEDPROFILEDEF", lostWhereLacking},
    {profiles, "IFCOPENCROSSPROFILEDEF", lostWhereLacking},
    {profiles, "IFCPROFILEDEF", lostWhereAbstract},
    {facetColours, "IFCINDEXEDCOLOURMAP", lostWhereLacking},
    {facetColours, "IFCCOLOURRGBLIST", lostWhereLacking},
    {facetColours, "IFCINDEXEDTEXTUREMAP", lostWhereLacking},
    {facetColours, "IFCTEXTUREVERTEXLIST", lostWhereLacking},
};

constexpr WholeAggregate wholes[] = {
    {"IFCCOMPOSITECURVE", "SEGMENTS"},
    {"IFCPOLYLINE", "POINTS"},
    {"IFCBSPLINECURVE", "CONTROLPOINTSLIST"},
    {"IFCPOLYLOOP", "POLYGON"},
    {"IFCEDGELOOP", "EDGELIST"},
    {"IFCPATH", "EDGELIST"},
    {"IFCFACE", "BOUNDS"},
    {"IFCCLOSEDSHELL", "CFSFACES"},
    {"IFCFACETEDBREPWITHVOIDS", "VOIDS"},
    {"IFCADVANCEDBREPWITHVOIDS", "VOIDS"},
    {"IFCPOLYGONALFACESET", "FACES"},
    {"IFCARBITRARYPROFILEDEFWITHVOIDS", "INNERCURVES"},
    {"IFCCOMPOSITEPROFILEDEF", "PROFILES"},
    {"IFCCURVEBOUNDEDPLANE", "INNERBOUNDARIES"},
    {"IFCCURVEBOUNDEDSURFACE", "BOUNDARIES"},
    {"IFCANNOTATIONFILLAREA", "INNERBOUNDARIES"},
    {"IFCSECTIONEDSPINE", "CROSSSECTIONS"},
    {"IFCSECTIONEDSPINE", "CROSSSECTIONPOSITIONS"},
    {"IFCSECTIONEDSOLID", "CROSSSECTIONS"},
    {"IFCSECTIONEDSOLID", "CROSSSECTIONPOSITIONS"},
    {"IFCSECTIONEDSURFACE", "CROSSSECTIONS"},
    {"IFCSECTIONEDSURFACE", "CROSSSECTIONPOSITIONS"},
    {"IFCOFFSETCURVEBYDISTANCES", "OFFSETVALUES"},
};

} // namespace

std::span<const RebuildRule> lostGeometryRules() {
    return rules;
}

std::span<const WholeAggregate> wholeShapes() {
    return wholes;
}

} // namespace velkor::exchange
