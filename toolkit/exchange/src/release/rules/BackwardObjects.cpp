// Products, types and relationships that older releases lack.
#include "RecordText.h"
#include "release/rules/BackwardTables.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velkor::exchange {

namespace {

constexpr ConversionRule facilities{"facility", Effect::Rebuilt,
                                    "A kind of facility that the release lacks becomes a facility called so in "
                                    "ObjectType",
                                    "The release has facilities without a kind"};
constexpr ConversionRule civil{
    "civil-element", Effect::Rebuilt,
    "Elements of roads, railways and waterways become civil elements called so in ObjectType",
    "The release has one entity for elements of civil works"};
constexpr ConversionRule ground{"geographic-element", Effect::Rebuilt,
                                "Strata, boreholes and models of the ground become geographic elements called so in "
                                "ObjectType",
                                "The release has one entity for what belongs to the terrain"};
constexpr ConversionRule caissons{"caisson-to-footing", Effect::Rebuilt,
                                  "A caisson foundation becomes a footing of "
                                  "that type",
                                  "The release counts caissons among footings"};
constexpr ConversionRule accessories{"component-to-accessory", Effect::Rebuilt,
                                     "An element component becomes a discrete accessory called so in ObjectType",
                                     "The release has no other components without a shape of a certain kind"};
constexpr ConversionRule openings{"cut-to-opening", Effect::Rebuilt,
                                  "What is cut out of an element becomes an opening called so in ObjectType",
                                  "Both take away the same of what they void"};
constexpr ConversionRule vehicles{"vehicle-to-transport", Effect::Rebuilt, "A vehicle becomes a transport element",
                                  "The release counts vehicles among those"};
constexpr ConversionRule proxies{"product-to-proxy", Effect::Rebuilt,
                                 "A product that is no element becomes a proxy called so in ObjectType",
                                 "A proxy stands for any product, with its place, shape and properties"};
constexpr ConversionRule alignments{"alignment-axis", Effect::Rebuilt,
                                    "An alignment has the curve of its axis representation for its axis",
                                    "The release says the axis with an attribute"};
constexpr ConversionRule segments{"alignment-parameters", Effect::Lost, "Design parameters of alignments are dropped",
                                  "The release says alignments with curves alone"};
constexpr ConversionRule types{"type-of-occurrence", Effect::Rebuilt,
                               "A type that the release lacks becomes a general one that names its occurrences in "
                               "ApplicableOccurrence",
                               "The attribute is there to say for what a type without an entity of its own is"};
constexpr ConversionRule proxyTypes{"type-to-proxy-type", Effect::Rebuilt,
                                    "The type of what becomes a proxy becomes a proxy type called so in ElementType",
                                    "Types and occurrences go together"};
constexpr ConversionRule groups{"group-without-owner", Effect::Rebuilt,
                                "An asset or inventory without owners or values becomes a group called so in "
                                "ObjectType",
                                "IFC2X3 requires all of them; what belongs to the group stays in it"};
constexpr ConversionRule circuits{"circuit-to-system", Effect::Rebuilt,
                                  "A circuit that carries no electricity becomes a system called so in ObjectType",
                                  "IFC2X3 has circuits of electricity alone"};
constexpr ConversionRule declared{"declared-by-project", Effect::Converted,
                                  "What a project declares needs no relationship to it",
                                  "All that stands in a model of IFC2X3 belongs to its one project"};
constexpr ConversionRule libraries{"project-library", Effect::Lost,
                                   "Project libraries and their declarations are dropped; what they declare stays",
                                   "IFC2X3 has one project and nothing beside it"};
constexpr ConversionRule templates{"templates", Effect::Lost,
                                   "Templates of property sets and relationships to them are dropped",
                                   "IFC2X3 has property sets alone; those that follow a template stay"};
constexpr ConversionRule relationships{"relationship-lost", Effect::Lost,
                                       "A relationship is dropped whose kind the release lacks",
                                       "No other relationship of the release says the same"};
constexpr ConversionRule features{"features-to-parts", Effect::Rebuilt,
                                  "Surface features that adhere to an element become parts of it",
                                  "Releases before IFC4X3 have it so"};
constexpr ConversionRule actions{"even-action", Effect::Rebuilt,
                                 "An action over a curve or surface becomes a linear or planar action",
                                 "IFC2X3 has those for loads that are the same all over"};
constexpr ConversionRule structure{"structural-activity", Effect::Lost,
                                   "Reactions over curves and surfaces and loads that vary by a list are dropped",
                                   "IFC2X3 has reactions at points, and loads that vary between certain ones"};
constexpr ConversionRule member{"varying-member", Effect::Rebuilt,
                                "A surface member of varying thickness becomes one without",
                                "IFC4 keeps the variation in the material; IFC2X3 would require it here"};
constexpr ConversionRule offsets{"unit-offset", Effect::Lost, "The offset of a converted unit is dropped",
                                 "IFC2X3 tells the scales of temperature by the unit's name alone"};
constexpr ConversionRule surfaces{"feature-to-proxy", Effect::Rebuilt,
                                  "A surface feature becomes a building element proxy called so in ObjectType",
                                  "The release has features that add or take away alone; this one does neither"};
constexpr ConversionRule levels{"boundary-level", Effect::Rebuilt,
                                "A space boundary of a level becomes one that is called so in Name",
                                "So implementers of IFC2X3 agreed; parents and counterparts are lost"};
constexpr ConversionRule factors{"assignment-factor", Effect::Rebuilt,
                                 "An assignment to a group by a factor becomes one without",
                                 "What belongs to the group stays in it; the release has no factors"};
constexpr ConversionRule places{"linear-place", Effect::Lost,
                                "A linear placement is dropped that gives no position in space",
                                "The release cannot measure places along that curve in the same way"};
constexpr ConversionRule curves{"linear-placement-curve", Effect::Converted,
                                "The curve of a linear placement is what it is relative to",
                                "IFC4X1 has it under that name"};
constexpr ConversionRule others{"other-resources", Effect::Lost,
                                "Volumes of connections, indices of textures and complementary data are dropped",
                                "The release has nothing like them"};
constexpr ConversionRule tables{"table-columns", Effect::Lost,
                                "Columns of tables and references into the model are dropped",
                                "IFC2X3 has rows of values alone"};
constexpr ConversionRule rebars{"reinforcement-size", Effect::Converted,
                                "Reinforcement takes the sizes that its type gives",
                                "IFC2X3 requires them of every bar, mesh and tendon"};

/// The nearest of an entity and its supertypes that the target has instances of; null when there is none.
const sdai::EntityDefinition* nearest(const Releases& releases, const sdai::EntityDefinition& source) {
    for (const sdai::EntityDefinition* at = &source; at != nullptr; at = at->supertype()) {
        const sdai::EntityDefinition* found = releases.target.entity(at->name());
        if (found != nullptr && !found->isAbstract()) return found;
    }
    return nullptr;
}

/// For rows of entities none of whose supertypes the target has instances of.
Successor of(const Releases& releases, const DXSdaiAppInstance& instance, std::string_view entity) {
    return nearest(releases, *instance.entity()) ? Successor::notHere() : Successor::of(releases, entity);
}

template <const char* const& Entity>
Successor becomesWhereNone(const Releases& releases, DXSdaiAppInstance& instance) {
    return of(releases, instance, Entity);
}

/// The same where types are meant, whose general supertype every release has.
template <const char* const& Entity>
Successor becomesTypeWhereNone(const Releases& releases, DXSdaiAppInstance& instance) {
    const sdai::EntityDefinition* general = nearest(releases, *instance.entity());
    return general != nullptr && general->name() == "IFCTYPEPRODUCT" ? Successor::of(releases, Entity)
                                                                     : Successor::notHere();
}

constexpr const char* buildingElementProxy = "IFCBUILDINGELEMENTPROXY";
constexpr const char* buildingElementProxyType = "IFCBUILDINGELEMENTPROXYTYPE";
constexpr const char* civilElement = "IFCCIVILELEMENT";
constexpr const char* civilElementType = "IFCCIVILELEMENTTYPE";
constexpr const char* geographicElement = "IFCGEOGRAPHICELEMENT";
constexpr const char* footing = "IFCFOOTING";
constexpr const char* footingType = "IFCFOOTINGTYPE";
constexpr const char* accessory = "IFCDISCRETEACCESSORY";
constexpr const char* accessoryType = "IFCDISCRETEACCESSORYTYPE";
constexpr const char* earthworksCut = "IFCEARTHWORKSCUT";
constexpr const char* opening = "IFCOPENINGELEMENT";
constexpr const char* transport = "IFCTRANSPORTELEMENT";
constexpr const char* transportType = "IFCTRANSPORTELEMENTTYPE";

void nameIn(Rebuilding& rebuilding, RecordBuilder& record, std::string_view attribute) {
    if (isUnset(record.value(attribute))) record.set(attribute, literal(rebuilding.entity().name()));
}

/// Goes by name; the entity that it was is kept where a text for it is free.
void rebuildNamed(Rebuilding& rebuilding) {
    const sdai::EntityDefinition* entity = rebuilding.successorOf(rebuilding.id());
    RecordBuilder record = rebuilding.carried(*entity);
    nameIn(rebuilding, record, "OBJECTTYPE");
    nameIn(rebuilding, record, "ELEMENTTYPE");
    rebuilding.become(record);
}

template <const char* const& Entity>
void rebuildCaisson(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity(Entity));
    const int index = record.entity().attributeIndex("PREDEFINEDTYPE");
    const auto* list =
        index < 0 ? nullptr : attributeType(record.entity(), "PREDEFINEDTYPE").resolved().asEnumeration();
    const std::string what = list != nullptr && list->position("CAISSON_FOUNDATION") >= 0 ? "CAISSON_FOUNDATION" : "";
    if (!what.empty()) record.set("PREDEFINEDTYPE", enumerator(what));
    nameIn(rebuilding, record, "OBJECTTYPE");
    nameIn(rebuilding, record, "ELEMENTTYPE");
    rebuilding.become(record);
}

Successor becomesFacility(const Releases& releases, DXSdaiAppInstance& facility) {
    return replacedBy(releases, facility, "IFCFACILITY");
}

Successor becomesVehicle(const Releases& releases, DXSdaiAppInstance& vehicle) {
    return of(releases, vehicle, transport);
}

Successor becomesProxy(const Releases& releases, DXSdaiAppInstance& product) {
    if (product.IsKindOf("IFCELEMENT")) return Successor::notHere();
    return of(releases, product, "IFCPROXY");
}

void rebuildProxy(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCPROXY"));
    nameIn(rebuilding, record, "OBJECTTYPE");
    rebuilding.become(record);
}

constexpr int mostAxisItems = 16;

/// A curve of the axis representation that the target has too; 0 when there is none.
std::uint64_t axisOf(const Releases& releases, const DXSdaiAppInstance& alignment) {
    const DXSdaiAppInstance* shape = alignment.GetAttr("REPRESENTATION").asInstance();
    if (shape == nullptr) return 0;
    for (const sdai::Primitive one : shape->GetAttr("REPRESENTATIONS").asAggregate()) {
        const DXSdaiAppInstance* representation = one.asInstance();
        if (representation == nullptr || representation->GetAttr("REPRESENTATIONIDENTIFIER").asString() != "Axis")
            continue;
        int looks = 0;
        for (const sdai::Primitive item : representation->GetAttr("ITEMS").asAggregate()) {
            // Many alignments may share one shape with many items; an axis is one of few.
            if (++looks > mostAxisItems) break;
            const DXSdaiAppInstance* curve = item.asInstance();
            if (curve == nullptr || !curve->IsKindOf("IFCCURVE")) continue;
            const sdai::EntityDefinition* same = releases.target.entity(curve->entity()->name());
            if (same != nullptr && !same->isAbstract()) return curve->id();
        }
    }
    return 0;
}

/// Whether the release says the axis with an attribute that the source does not have.
bool wantsAxis(const Releases& releases, const DXSdaiAppInstance& alignment) {
    const sdai::EntityDefinition* same = releases.target.entity(alignment.entity()->name());
    const int index = same == nullptr ? -1 : same->attributeIndex("AXIS");
    return index >= 0 && !same->attributes()[static_cast<std::size_t>(index)].attribute->isOptional() &&
           alignment.entity()->attributeIndex("AXIS") < 0;
}

Successor becomesAlignment(const Releases& releases, DXSdaiAppInstance& alignment) {
    if (!wantsAxis(releases, alignment) || axisOf(releases, alignment) == 0) return Successor::notHere();
    return Successor::of(releases, alignment.entity()->name());
}

void rebuildAlignment(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity(rebuilding.entity().name()));
    const std::uint64_t axis = axisOf(rebuilding.releases(), rebuilding.instance());
    if (rebuilding.successorOf(axis) != nullptr) record.set("AXIS", reference(axis));
    rebuilding.become(record);
}

Successor becomesProxyWithoutAxis(const Releases& releases, DXSdaiAppInstance& alignment) {
    return wantsAxis(releases, alignment) ? Successor::of(releases, "IFCPROXY") : Successor::notHere();
}

/// The name of an occurrence of a type: "IFCFOOTING" of "IFCFOOTINGTYPE".
std::string_view occurrenceOf(std::string_view type) {
    for (const std::string_view end : {"TYPE", "STYLE"})
        if (type.ends_with(end)) return type.substr(0, type.size() - end.size());
    return {};
}

// Of a type whose occurrences become others too.
template <const char* const& Entity>
Successor becomesTypeOfGone(const Releases& releases, DXSdaiAppInstance& type) {
    const sdai::EntityDefinition* occurrence = releases.source.entity(occurrenceOf(type.entity()->name()));
    if (occurrence == nullptr || nearest(releases, *occurrence) != nullptr) return Successor::notHere();
    return becomesTypeWhereNone<Entity>(releases, type);
}

// Of any type for which there is a general one alone.
Successor becomesGeneralType(const Releases& releases, DXSdaiAppInstance& type) {
    if (releases.target.entity(type.entity()->name()) != nullptr) return Successor::notHere();
    const sdai::EntityDefinition* general = nearest(releases, *type.entity());
    if (general == nullptr || (general->name() != "IFCTYPEPRODUCT" && general->name() != "IFCTYPEOBJECT"))
        return Successor::notHere();
    return Successor::of(releases, general->name());
}

void rebuildGeneralType(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.successorOf(rebuilding.id()));
    if (isUnset(record.value("APPLICABLEOCCURRENCE")))
        record.set("APPLICABLEOCCURRENCE", literal(occurrenceOf(rebuilding.entity().name())));
    rebuilding.become(record);
}

// Of groups of which the release wants more than the source says.
Successor becomesGroup(const Releases& releases, DXSdaiAppInstance& group) {
    const sdai::EntityDefinition* same = releases.target.entity(group.entity()->name());
    if (same == nullptr) return Successor::notHere();
    for (const char* attribute :
         {"ORIGINALVALUE", "CURRENTVALUE", "TOTALREPLACEMENTCOST", "OWNER", "USER", "RESPONSIBLEPERSON",
          "INCORPORATIONDATE", "DEPRECIATEDVALUE", "JURISDICTION", "RESPONSIBLEPERSONS", "LASTUPDATEDATE"}) {
        const int index = same->attributeIndex(attribute);
        if (index >= 0 && !same->attributes()[static_cast<std::size_t>(index)].attribute->isOptional() &&
            group.entity()->attributeIndex(attribute) >= 0 && !group.GetAttr(attribute).isSet())
            return Successor::of(releases, "IFCGROUP");
    }
    return Successor::notHere();
}

Successor becomesSystem(const Releases& releases, DXSdaiAppInstance& circuit) {
    constexpr std::array<std::string_view, 6> electrical{"",         "NOTDEFINED",      "USERDEFINED",
                                                         "EARTHING", "POWERGENERATION", "LIGHTING"};
    const std::string_view type = circuit.GetAttr("PREDEFINEDTYPE").asEnumeration().text();
    if (type == "ELECTRICAL" || std::ranges::find(electrical, type) != electrical.end()) return Successor::notHere();
    return replacedBy(releases, circuit, "IFCSYSTEM");
}

Successor absorbDeclaration(const Releases& releases, DXSdaiAppInstance& declaration) {
    if (releases.target.entity("IFCRELDECLARES") != nullptr) return Successor::notHere();
    const DXSdaiAppInstance* context = declaration.GetAttr("RELATINGCONTEXT").asInstance();
    return context != nullptr && context->IsKindOf("IFCPROJECT") ? Successor::absorbed() : Successor::notHere();
}

Successor becomesAggregate(const Releases& releases, DXSdaiAppInstance& relationship) {
    return replacedBy(releases, relationship, "IFCRELAGGREGATES");
}

void rebuildAggregate(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCRELAGGREGATES"));
    record.set("RELATINGOBJECT", std::string(rebuilding.encoded("RELATINGELEMENT")));
    if (auto members = rebuilding.translated(rebuilding.encoded("RELATEDSURFACEFEATURES"),
                                             attributeType(rebuilding.entity(), "RELATEDSURFACEFEATURES"),
                                             attributeType(record.entity(), "RELATEDOBJECTS")))
        record.set("RELATEDOBJECTS", std::move(*members));
    rebuilding.become(record);
}

Successor becomesEvenAction(const Releases& releases, DXSdaiAppInstance& action) {
    const DXSdaiAppInstance* load = action.GetAttr("APPLIEDLOAD").asInstance();
    if (load == nullptr || load->IsKindOf("IFCSTRUCTURALLOADCONFIGURATION")) return Successor::notHere();
    return of(releases, action,
              action.IsKindOf("IFCSTRUCTURALCURVEACTION") ? "IFCSTRUCTURALLINEARACTION" : "IFCSTRUCTURALPLANARACTION");
}

Successor becomesEvenMember(const Releases& releases, DXSdaiAppInstance& varying) {
    const sdai::EntityDefinition* same = releases.target.entity(varying.entity()->name());
    const bool isWanted = same != nullptr && same->attributeIndex("SUBSEQUENTTHICKNESS") >= 0 &&
                          varying.entity()->attributeIndex("SUBSEQUENTTHICKNESS") < 0;
    return isWanted ? Successor::of(releases, "IFCSTRUCTURALSURFACEMEMBER") : Successor::notHere();
}

Successor lostActivity(const Releases& releases, DXSdaiAppInstance& activity) {
    return nearest(releases, *activity.entity()) ? Successor::notHere() : Successor::lost();
}

Successor becomesUnit(const Releases& releases, DXSdaiAppInstance& unit) {
    return replacedBy(releases, unit, "IFCCONVERSIONBASEDUNIT");
}

Successor becomesBoundary(const Releases& releases, DXSdaiAppInstance& boundary) {
    return replacedBy(releases, boundary, "IFCRELSPACEBOUNDARY");
}

void rebuildBoundary(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCRELSPACEBOUNDARY"));
    const bool isSecond = rebuilding.entity().isKindOf("IFCRELSPACEBOUNDARY2NDLEVEL");
    if (isUnset(record.value("NAME"))) record.set("NAME", literal(isSecond ? "2ndLevel" : "1stLevel"));
    rebuilding.become(record);
}

Successor becomesAssignment(const Releases& releases, DXSdaiAppInstance& assignment) {
    return replacedBy(releases, assignment, "IFCRELASSIGNSTOGROUP");
}

// Of the release in which the curve stands under the name that others have for another placement.
Successor becomesRelativeToCurve(const Releases& releases, DXSdaiAppInstance& placement) {
    const sdai::EntityDefinition* same = releases.target.entity(placement.entity()->name());
    const bool isHere = same != nullptr && same->attributeIndex("PLACEMENTMEASUREDALONG") < 0 &&
                        same->attributeIndex("PLACEMENTRELTO") >= 0 && same->attributeIndex("DISTANCE") >= 0 &&
                        placement.entity()->attributeIndex("PLACEMENTMEASUREDALONG") >= 0;
    return isHere ? Successor::of(releases, placement.entity()->name()) : Successor::notHere();
}

void rebuildRelativeToCurve(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity(rebuilding.entity().name()));
    if (auto curve = rebuilding.translated(rebuilding.encoded("PLACEMENTMEASUREDALONG"),
                                           attributeType(rebuilding.entity(), "PLACEMENTMEASUREDALONG"),
                                           attributeType(record.entity(), "PLACEMENTRELTO")))
        record.set("PLACEMENTRELTO", std::move(*curve));
    rebuilding.become(record);
}

Successor lostWithoutPosition(const Releases& releases, DXSdaiAppInstance& placement) {
    const bool isElsewhere = placement.GetAttr("CARTESIANPOSITION").isSet();
    return isElsewhere ? Successor::notHere() : lostWhereLacking(releases, placement);
}

constexpr std::array<const char*, 8> sizes{"NOMINALDIAMETER",
                                           "CROSSSECTIONAREA",
                                           "LONGITUDINALBARNOMINALDIAMETER",
                                           "TRANSVERSEBARNOMINALDIAMETER",
                                           "LONGITUDINALBARCROSSSECTIONAREA",
                                           "TRANSVERSEBARCROSSSECTIONAREA",
                                           "LONGITUDINALBARSPACING",
                                           "TRANSVERSEBARSPACING"};

/// Attributes of the sizes that the target wants and the instance does not give.
std::vector<const char*> missingSizes(const Releases& releases, const DXSdaiAppInstance& bar) {
    std::vector<const char*> missing;
    const sdai::EntityDefinition* same = releases.target.entity(bar.entity()->name());
    for (const char* size : sizes) {
        const int index = same == nullptr ? -1 : same->attributeIndex(size);
        if (index >= 0 && !same->attributes()[static_cast<std::size_t>(index)].attribute->isOptional() &&
            !bar.GetAttr(size).isSet())
            missing.push_back(size);
    }
    return missing;
}

Successor becomesSized(const Releases& releases, DXSdaiAppInstance& bar) {
    return missingSizes(releases, bar).empty() ? Successor::notHere() : Successor::of(releases, bar.entity()->name());
}

bool planSizes(Planning& planning, DXSdaiAppInstance& bar) {
    const sdai::Model& model = planning.source();
    for (const std::uint64_t user : planning.users(bar.id())) {
        const sdai::EntityDefinition* entity = entityOf(model, user);
        if (entity == nullptr || !entity->isKindOf("IFCRELDEFINESBYTYPE")) continue;
        // Behind a list of all that have the type: to be read once.
        struct RelatedType {
            std::uint64_t id;
        };
        std::any& known = planning.remembered(user);
        if (!known.has_value()) known = RelatedType{sdai::decodeInstanceName(encodedOf(model, user, "RELATINGTYPE"))};
        const auto* related = std::any_cast<RelatedType>(&known);
        const std::uint64_t type = related == nullptr ? 0 : related->id;
        for (const char* size : missingSizes(planning.releases(), bar))
            if (const std::string_view value = type == 0 ? sdai::omittedValue : encodedOf(model, type, size);
                !isUnset(value))
                planning.setLater(bar.id(), size, std::string(value));
    }
    return true;
}

constexpr RebuildRule rebuilds[] = {
    {facilities, "IFCFACILITY", becomesFacility, nullptr, rebuildNamed},
    {civil, "IFCCOURSE", becomesWhereNone<civilElement>, nullptr, rebuildNamed},
    {civil, "IFCEARTHWORKSELEMENT", becomesWhereNone<civilElement>, nullptr, rebuildNamed},
    {civil, "IFCKERB", becomesWhereNone<civilElement>, nullptr, rebuildNamed},
    {civil, "IFCMOORINGDEVICE", becomesWhereNone<civilElement>, nullptr, rebuildNamed},
    {civil, "IFCNAVIGATIONELEMENT", becomesWhereNone<civilElement>, nullptr, rebuildNamed},
    {civil, "IFCPAVEMENT", becomesWhereNone<civilElement>, nullptr, rebuildNamed},
    {civil, "IFCRAIL", becomesWhereNone<civilElement>, nullptr, rebuildNamed},
    {civil, "IFCTRACKELEMENT", becomesWhereNone<civilElement>, nullptr, rebuildNamed},
    {civil, "IFCCOURSETYPE", becomesTypeWhereNone<civilElementType>, nullptr, rebuildNamed},
    {civil, "IFCKERBTYPE", becomesTypeWhereNone<civilElementType>, nullptr, rebuildNamed},
    {civil, "IFCMOORINGDEVICETYPE", becomesTypeWhereNone<civilElementType>, nullptr, rebuildNamed},
    {civil, "IFCNAVIGATIONELEMENTTYPE", becomesTypeWhereNone<civilElementType>, nullptr, rebuildNamed},
    {civil, "IFCPAVEMENTTYPE", becomesTypeWhereNone<civilElementType>, nullptr, rebuildNamed},
    {civil, "IFCRAILTYPE", becomesTypeWhereNone<civilElementType>, nullptr, rebuildNamed},
    {civil, "IFCTRACKELEMENTTYPE", becomesTypeWhereNone<civilElementType>, nullptr, rebuildNamed},
    {ground, "IFCGEOTECHNICALELEMENT", becomesWhereNone<geographicElement>, nullptr, rebuildNamed},
    {ground, "IFCGEOSCIENCEELEMENT", becomesWhereNone<geographicElement>, nullptr, rebuildNamed},
    {caissons, "IFCCAISSONFOUNDATION", becomesWhereNone<footing>, nullptr, rebuildCaisson<footing>},
    {caissons, "IFCCAISSONFOUNDATIONTYPE", becomesTypeWhereNone<footingType>, nullptr, rebuildCaisson<footingType>},
    {accessories, "IFCELEMENTCOMPONENT", becomesWhereNone<accessory>, nullptr, rebuildNamed},
    {openings, "IFCFEATUREELEMENTSUBTRACTION", becomesWhereNone<earthworksCut>, nullptr, rebuildNamed},
    {openings, "IFCFEATUREELEMENTSUBTRACTION", becomesWhereNone<opening>, nullptr, rebuildNamed},
    {vehicles, "IFCVEHICLE", becomesVehicle, nullptr, rebuildNamed},
    {vehicles, "IFCVEHICLETYPE", becomesTypeWhereNone<transportType>, nullptr, rebuildNamed},
    {alignments, "IFCALIGNMENT", becomesAlignment, nullptr, rebuildAlignment},
    {proxies, "IFCALIGNMENT", becomesProxyWithoutAxis, nullptr, rebuildProxy},
    {segments, "IFCALIGNMENTPARAMETERSEGMENT", lostWhereLacking},
    {accessories, "IFCELEMENTCOMPONENTTYPE", becomesTypeOfGone<accessoryType>, nullptr, rebuildNamed},
    {proxyTypes, "IFCELEMENTTYPE", becomesTypeOfGone<buildingElementProxyType>, nullptr, rebuildNamed},
    {types, "IFCTYPEOBJECT", becomesGeneralType, nullptr, rebuildGeneralType},
    {groups, "IFCASSET", becomesGroup, nullptr, rebuildNamed},
    {groups, "IFCINVENTORY", becomesGroup, nullptr, rebuildNamed},
    {circuits, "IFCDISTRIBUTIONCIRCUIT", becomesSystem, nullptr, rebuildNamed},
    {declared, "IFCRELDECLARES", absorbDeclaration},
    {libraries, "IFCRELDECLARES", lostWhereLacking},
    {libraries, "IFCPROJECTLIBRARY", lostWhereLacking},
    {templates, "IFCPROPERTYTEMPLATEDEFINITION", lostWhereLacking},
    {templates, "IFCRELDEFINESBYTEMPLATE", lostWhereLacking},
    {features, "IFCRELADHERESTOELEMENT", becomesAggregate, nullptr, rebuildAggregate},
    {relationships, "IFCMATERIALRELATIONSHIP", lostWhereLacking},
    {relationships, "IFCRELDEFINESBYOBJECT", lostWhereLacking},
    {relationships, "IFCRELINTERFERESELEMENTS", lostWhereLacking},
    {relationships, "IFCRELPOSITIONS", lostWhereLacking},
    {relationships, "IFCRELASSOCIATESPROFILEDEF", lostWhereLacking},
    {relationships, "IFCRELASSOCIATESDATASET", lostWhereLacking},
    {actions, "IFCSTRUCTURALCURVEACTION", becomesEvenAction},
    {actions, "IFCSTRUCTURALSURFACEACTION", becomesEvenAction},
    {structure, "IFCSTRUCTURALACTIVITY", lostActivity},
    {structure, "IFCSTRUCTURALLOAD", lostActivity},
    {member, "IFCSTRUCTURALSURFACEMEMBERVARYING", becomesEvenMember},
    {offsets, "IFCCONVERSIONBASEDUNITWITHOFFSET", becomesUnit},
    {surfaces, "IFCSURFACEFEATURE", becomesWhereNone<buildingElementProxy>, nullptr, rebuildNamed},
    {levels, "IFCRELSPACEBOUNDARY1STLEVEL", becomesBoundary, nullptr, rebuildBoundary},
    {factors, "IFCRELASSIGNSTOGROUPBYFACTOR", becomesAssignment},
    {curves, "IFCLINEARPLACEMENT", becomesRelativeToCurve, nullptr, rebuildRelativeToCurve},
    {places, "IFCLINEARPLACEMENT", lostWithoutPosition},
    {others, "IFCCONNECTIONVOLUMEGEOMETRY", lostWhereLacking},
    {others, "IFCTEXTURECOORDINATEINDICES", lostWhereLacking},
    {others, "IFCCOMPLEMENTARYDATA", lostActivity},
    {others, "IFCDATASETREFERENCE", lostWhereLacking},
    {others, "IFCARCHELEMENT", lostWhereLacking},
    {others, "IFCARCHELEMENTTYPE", lostWhereLacking},
    {tables, "IFCTABLECOLUMN", lostWhereLacking},
    {tables, "IFCREFERENCE", lostWhereLacking},
    {rebars, "IFCREINFORCINGELEMENT", becomesSized, planSizes},
    {proxies, "IFCPRODUCT", becomesProxy, nullptr, rebuildProxy},
};

} // namespace

std::span<const RebuildRule> backwardObjectRules() {
    return rebuilds;
}

} // namespace velkor::exchange
