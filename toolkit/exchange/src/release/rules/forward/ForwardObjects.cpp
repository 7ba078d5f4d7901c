// Elements and types that IFC2X3 tells apart otherwise than later releases.
#include "release/rules/forward/ForwardTables.h"

#include "RecordText.h"

#include "velkor/sdai/Part21Encoding.h"

namespace velkor::exchange::forward {

namespace {

constexpr ConversionRule specific{"element-by-type", Effect::Rebuilt,
                                  "Elements of a general kind become the kind that their type is of: a flow terminal "
                                  "of an air terminal type an air terminal",
                                  "IFC2X3 says by the type alone what later releases say by the element as well"};
constexpr ConversionRule moved{"type-moved", Effect::Rebuilt,
                               "A predefined type that has an entity of its own in the target becomes that",
                               "The releases moved it there; it is the same kind of thing"};
constexpr ConversionRule electrical{"electrical-element", Effect::Rebuilt,
                                    "An electrical element becomes a distribution element that is called so in "
                                    "ObjectType",
                                    "Electricity is distributed, and no element of the target is nearer"};
constexpr ConversionRule equipment{"equipment-element", Effect::Rebuilt,
                                   "Equipment becomes a building element proxy that is called so in ObjectType",
                                   "The target has no element for equipment of any kind"};
constexpr ConversionRule features{"edge-feature", Effect::Rebuilt,
                                  "An edge feature becomes a voiding feature, chamfers of type CHAMFER and rounded "
                                  "edges of type EDGE; its measures become properties",
                                  "Since IFC4 features that take something away are told apart by their type"};
constexpr ConversionRule measures{"attribute-to-property", Effect::Rebuilt,
                                  "What an attribute said that the target lacks becomes a property of a set that has "
                                  "the name of the entity",
                                  "The releases have property sets for it"};
constexpr ConversionRule cause{"caused-by", Effect::Rebuilt,
                               "The reaction that causes a structural action is what the action is assigned to",
                               "Since IFC4 the cause is said by an assignment"};
constexpr ConversionRule member{"member-of-element", Effect::Rebuilt,
                                "The structural member of an element is assigned to it as a product",
                                "Since IFC4 there is no relationship of its own for it"};
constexpr ConversionRule ports{"port-of-element", Effect::Rebuilt,
                               "A port of an element that distributes nothing is nested in it",
                               "Since IFC4 only distribution elements have the other relationship"};
constexpr ConversionRule varying{"varying-load", Effect::Rebuilt,
                                 "A varying action has a configuration of its loads, in their order",
                                 "Since IFC4 loads that vary are configurations; places along the member were never "
                                 "said in numbers"};
constexpr ConversionRule constant{"constant-load", Effect::Converted, "A linear or planar action is a constant one",
                                  "IFC2X3 has others for loads that vary"};
struct MovedType {
    std::string_view entity;
    std::string_view before;
    std::string_view after;
    std::string_view afterType;
};

constexpr MovedType movedTypes[] = {
    {"IFCWASTETERMINALTYPE", "GREASEINTERCEPTOR", "IFCINTERCEPTORTYPE", "GREASE"},
    {"IFCWASTETERMINALTYPE", "OILINTERCEPTOR", "IFCINTERCEPTORTYPE", "OIL"},
    {"IFCWASTETERMINALTYPE", "PETROLINTERCEPTOR", "IFCINTERCEPTORTYPE", "PETROL"},
    {"IFCELECTRICAPPLIANCETYPE", "COMPUTER", "IFCCOMMUNICATIONSAPPLIANCETYPE", "COMPUTER"},
    {"IFCELECTRICAPPLIANCETYPE", "FACSIMILE", "IFCCOMMUNICATIONSAPPLIANCETYPE", "FAX"},
    {"IFCELECTRICAPPLIANCETYPE", "PRINTER", "IFCCOMMUNICATIONSAPPLIANCETYPE", "PRINTER"},
    {"IFCELECTRICAPPLIANCETYPE", "SCANNER", "IFCCOMMUNICATIONSAPPLIANCETYPE", "SCANNER"},
    {"IFCELECTRICAPPLIANCETYPE", "TELEPHONE", "IFCAUDIOVISUALAPPLIANCETYPE", "TELEPHONE"},
    {"IFCELECTRICAPPLIANCETYPE", "TV", "IFCAUDIOVISUALAPPLIANCETYPE", "DISPLAY"},
    {"IFCELECTRICDISTRIBUTIONPOINT", "ALARMPANEL", "IFCUNITARYCONTROLELEMENT", "ALARMPANEL"},
    {"IFCELECTRICDISTRIBUTIONPOINT", "CONTROLPANEL", "IFCUNITARYCONTROLELEMENT", "CONTROLPANEL"},
    {"IFCELECTRICDISTRIBUTIONPOINT", "GASDETECTORPANEL", "IFCUNITARYCONTROLELEMENT", "GASDETECTIONPANEL"},
    {"IFCELECTRICDISTRIBUTIONPOINT", "INDICATORPANEL", "IFCUNITARYCONTROLELEMENT", "INDICATORPANEL"},
    {"IFCELECTRICDISTRIBUTIONPOINT", "MIMICPANEL", "IFCUNITARYCONTROLELEMENT", "MIMICPANEL"},
    {"IFCBUILDINGSYSTEM", "REINFORCING", "IFCBUILTSYSTEM", "REINFORCING"},
    {"IFCBUILDINGSYSTEM", "PRESTRESSING", "IFCBUILTSYSTEM", "PRESTRESSING"},
    {"IFCBUILDINGSYSTEM", "EROSIONPREVENTION", "IFCBUILTSYSTEM", "EROSIONPREVENTION"},
    {"IFCTRANSPORTELEMENT", "VEHICLE", "IFCVEHICLE", "VEHICLE"},
    {"IFCTRANSPORTELEMENT", "VEHICLETRACKED", "IFCVEHICLE", "VEHICLETRACKED"},
    {"IFCTRANSPORTELEMENT", "ROLLINGSTOCK", "IFCVEHICLE", "ROLLINGSTOCK"},
    {"IFCTRANSPORTELEMENT", "VEHICLEWHEELED", "IFCVEHICLE", "VEHICLEWHEELED"},
    {"IFCTRANSPORTELEMENT", "VEHICLEAIR", "IFCVEHICLE", "VEHICLEAIR"},
    {"IFCTRANSPORTELEMENT", "CARGO", "IFCVEHICLE", "CARGO"},
    {"IFCTRANSPORTELEMENT", "VEHICLEMARINE", "IFCVEHICLE", "VEHICLEMARINE"},
    {"IFCTRANSPORTELEMENTTYPE", "VEHICLE", "IFCVEHICLETYPE", "VEHICLE"},
    {"IFCTRANSPORTELEMENTTYPE", "VEHICLETRACKED", "IFCVEHICLETYPE", "VEHICLETRACKED"},
    {"IFCTRANSPORTELEMENTTYPE", "ROLLINGSTOCK", "IFCVEHICLETYPE", "ROLLINGSTOCK"},
    {"IFCTRANSPORTELEMENTTYPE", "VEHICLEWHEELED", "IFCVEHICLETYPE", "VEHICLEWHEELED"},
    {"IFCTRANSPORTELEMENTTYPE", "VEHICLEAIR", "IFCVEHICLETYPE", "VEHICLEAIR"},
    {"IFCTRANSPORTELEMENTTYPE", "CARGO", "IFCVEHICLETYPE", "CARGO"},
    {"IFCTRANSPORTELEMENTTYPE", "VEHICLEMARINE", "IFCVEHICLETYPE", "VEHICLEMARINE"},
};

/// The enumerator in ".X." and "TYPE(.X.)".
std::string_view enumeratorIn(std::string_view encoded) {
    const std::size_t first = encoded.find('.');
    const std::size_t last = encoded.rfind('.');
    return first == encoded.npos || first == last ? std::string_view() : encoded.substr(first + 1, last - first - 1);
}

/// Whether a type or the enumerations that a select lists have a name.
bool hasEnumerator(const sdai::Type& type, std::string_view name) {
    if (const auto* list = type.resolved().asEnumeration()) return list->position(name) >= 0;
    if (const auto* select = type.resolved().asSelect())
        for (const sdai::Type* item : select->items())
            if (hasEnumerator(*item, name)) return true;
    return false;
}

/// Where a predefined type has gone; null when the target has it where it was.
const MovedType* movedTo(const Releases& releases, std::string_view entity, std::string_view predefined) {
    for (const MovedType& row : movedTypes) {
        if (row.entity != entity || row.before != predefined) continue;
        const sdai::EntityDefinition* same = releases.target.entity(entity);
        const sdai::EntityDefinition* after = releases.target.entity(row.after);
        const bool isKept = same != nullptr && same->attributeIndex("PREDEFINEDTYPE") >= 0 &&
                            hasEnumerator(attributeType(*same, "PREDEFINEDTYPE"), predefined);
        if (isKept || after == nullptr || !hasEnumerator(attributeType(*after, "PREDEFINEDTYPE"), row.afterType))
            return nullptr;
        return &row;
    }
    return nullptr;
}

constexpr std::string_view typeAttributes[] = {"PREDEFINEDTYPE", "DISTRIBUTIONPOINTFUNCTION", "OPERATIONTYPE"};

Successor becomesMoved(const Releases& releases, DXSdaiAppInstance& object) {
    for (const std::string_view attribute : typeAttributes) {
        const std::string_view type = enumeratorIn(object.GetAttr(attribute).encoded());
        if (type.empty()) continue;
        const MovedType* row = movedTo(releases, object.entity()->name(), type);
        return row == nullptr ? Successor::notHere() : Successor::of(releases, row->after);
    }
    return Successor::notHere();
}

void rebuildMoved(Rebuilding& rebuilding) {
    for (const std::string_view attribute : typeAttributes) {
        const std::string_view type = enumeratorIn(rebuilding.encoded(attribute));
        const MovedType* row =
            type.empty() ? nullptr : movedTo(rebuilding.releases(), rebuilding.entity().name(), type);
        if (row == nullptr) continue;
        RecordBuilder record = carriedBut(rebuilding, row->after, {attribute});
        record.set("PREDEFINEDTYPE", enumerator(row->afterType));
        // carried() may have kept the word that the list of another entity lacks.
        for (const char* text : {"OBJECTTYPE", "ELEMENTTYPE"})
            if (record.entity().attributeIndex(text) >= 0) record.set(text, std::string(rebuilding.encoded(text)));
        return rebuilding.become(record);
    }
}

/// Entity of the occurrences of a type where the target tells them apart and the source does not.
const sdai::EntityDefinition* occurrenceOf(const Releases& releases, DXSdaiAppInstance& relationship) {
    const sdai::Model& model = relationship.model();
    const std::string_view reference = relationship.GetAttr("RELATINGTYPE").encoded();
    const sdai::EntityDefinition* type = entityOf(model, reference);
    if (type == nullptr) return nullptr;
    std::string_view name = type->name();
    const std::uint64_t id = sdai::decodeInstanceName(reference);
    if (const MovedType* row = movedTo(releases, name, enumeratorIn(encodedOf(model, id, "PREDEFINEDTYPE"))))
        name = row->after;
    // The change logs call two types otherwise.
    if (name == "IFCGASTERMINALTYPE") name = "IFCBURNERTYPE";
    if (name == "IFCELECTRICHEATERTYPE") name = "IFCSPACEHEATERTYPE";
    if (!name.ends_with("TYPE") || releases.target.entity(name) == nullptr) return nullptr;
    name.remove_suffix(4);
    const sdai::EntityDefinition* occurrence = releases.target.entity(name);
    const bool isNew = occurrence != nullptr && !occurrence->isAbstract() && releases.source.entity(name) == nullptr;
    return isNew ? occurrence : nullptr;
}

Successor becomesRelationship(const Releases& releases, DXSdaiAppInstance& relationship) {
    return occurrenceOf(releases, relationship) == nullptr ? Successor::notHere()
                                                           : Successor::of(releases, "IFCRELDEFINESBYTYPE");
}

bool planOccurrences(Planning& planning, DXSdaiAppInstance& relationship) {
    const sdai::EntityDefinition* specificEntity = occurrenceOf(planning.releases(), relationship);
    for (const std::uint64_t id : idsOf(relationship.GetAttr("RELATEDOBJECTS").encoded())) {
        const sdai::EntityDefinition* general = entityOf(planning.source(), id);
        if (general == nullptr || !specificEntity->isKindOf(general->name())) continue;
        planning.decide(id, Successor::of(planning.releases(), specificEntity->name()), &specific);
    }
    return true;
}

Successor becomesDistribution(const Releases& releases, DXSdaiAppInstance& element) {
    return replacedBy(releases, element, "IFCDISTRIBUTIONELEMENT");
}

Successor becomesProxy(const Releases& releases, DXSdaiAppInstance& element) {
    return replacedBy(releases, element, "IFCBUILDINGELEMENTPROXY");
}

/// Keeps the name of the entity where ObjectType is free. A proxy must have a name.
void rebuildNamed(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.successorOf(rebuilding.id()));
    if (record.entity().isKindOf("IFCBUILDINGELEMENTPROXY") && isUnset(record.value("NAME")))
        record.set("NAME", literal(rebuilding.entity().name()));
    if (isUnset(record.value("OBJECTTYPE"))) record.set("OBJECTTYPE", literal(rebuilding.entity().name()));
    rebuilding.become(record);
}

Successor becomesVoid(const Releases& releases, DXSdaiAppInstance& feature) {
    return replacedBy(releases, feature, "IFCVOIDINGFEATURE");
}

void rebuildFeature(Rebuilding& rebuilding) {
    const bool isChamfer = rebuilding.entity().name() == "IFCCHAMFEREDGEFEATURE";
    constexpr std::string_view attributes[] = {"FeatureLength", "Width", "Height", "Radius"};
    RecordBuilder record = carriedBut(rebuilding, "IFCVOIDINGFEATURE", {"FEATURELENGTH", "WIDTH", "HEIGHT", "RADIUS"});
    record.set("PREDEFINEDTYPE", enumerator(isChamfer ? "CHAMFER" : "EDGE"));
    rebuilding.become(record);
    addPropertySet(rebuilding, isChamfer ? "IfcChamferEdgeFeature" : "IfcRoundedEdgeFeature",
                   propertiesOf(rebuilding, attributes));
}

struct ObjectMeasure {
    std::string_view entity;
    std::string_view set;
    std::string_view attribute;
};

constexpr ObjectMeasure objectMeasures[] = {
    {"IFCTRANSPORTELEMENT", "IfcTransportElement", "CapacityByWeight"},
    {"IFCTRANSPORTELEMENT", "IfcTransportElement", "CapacityByNumber"},
    {"IFCDISTRIBUTIONCONTROLELEMENT", "IfcDistributionControlElement", "ControlElementId"},
    {"IFCKERB", "IfcKerb", "Mountable"},
    {"IFCREFERENT", "IfcReferent", "RestartDistance"},
    {"IFCCONSTRUCTIONRESOURCE", "IfcConstructionResource", "ResourceGroup"},
    {"IFCCONSTRUCTIONRESOURCE", "IfcConstructionResource", "ResourceConsumption"},
    {"IFCCONSTRUCTIONMATERIALRESOURCE", "IfcConstructionResource", "UsageRatio"},
    {"IFCLABORRESOURCE", "IfcConstructionResource", "SkillSet"},
    {"IFCSUBCONTRACTRESOURCE", "IfcConstructionResource", "JobDescription"},
};

Successor becomesMeasured(const Releases& releases, DXSdaiAppInstance& object) {
    const Successor same = Successor::of(releases, object.entity()->name());
    if (same.entity == nullptr) return same;
    for (const ObjectMeasure& row : objectMeasures)
        if (object.IsKindOf(row.entity) && same.entity->attributeIndex(row.attribute) < 0 &&
            object.TestAttr(object.entity()->attribute(row.attribute) == nullptr
                                ? std::string_view()
                                : object.entity()->attribute(row.attribute)->name()))
            return same;
    return Successor::notHere();
}

void rebuildMeasured(Rebuilding& rebuilding) {
    const sdai::EntityDefinition& target = *rebuilding.successorOf(rebuilding.id());
    const RecordBuilder record =
        carriedBut(rebuilding, target.name(),
                   {"CAPACITYBYWEIGHT", "CAPACITYBYNUMBER", "CONTROLELEMENTID", "MOUNTABLE", "RESTARTDISTANCE",
                    "RESOURCEGROUP", "RESOURCECONSUMPTION", "USAGERATIO", "SKILLSET", "JOBDESCRIPTION"});
    rebuilding.become(record);
    std::vector<std::string_view> attributes;
    std::string_view set;
    for (const ObjectMeasure& row : objectMeasures)
        if (rebuilding.entity().isKindOf(row.entity) && target.attributeIndex(row.attribute) < 0) {
            attributes.push_back(row.attribute);
            set = row.set;
        }
    addPropertySet(rebuilding, set, propertiesOf(rebuilding, attributes));
}

Successor becomesAction(const Releases& releases, DXSdaiAppInstance& action) {
    const Successor same = Successor::of(releases, action.entity()->name());
    const bool isHere = same.entity != nullptr && same.entity->attributeIndex("CAUSEDBY") < 0;
    return isHere && action.TestAttr("CAUSEDBY") ? same : Successor::notHere();
}

void addCause(Rebuilding& rebuilding) {
    const std::string_view reaction = rebuilding.encoded("CAUSEDBY");
    if (rebuilding.successorOf(sdai::decodeInstanceName(reaction)) == nullptr) return;
    RecordBuilder assignment = objectBeside(rebuilding, "IFCRELASSIGNSTOPRODUCT", "CAUSEDBY");
    assignment.set("NAME", literal("CausedBy"));
    assignment.set("RELATEDOBJECTS", listOf({reference(rebuilding.id())}));
    assignment.set("RELATINGPRODUCT", std::string(reaction));
    rebuilding.add(assignment);
}

void rebuildAction(Rebuilding& rebuilding) {
    const std::string_view entity = rebuilding.successorOf(rebuilding.id())->name();
    rebuilding.become(carriedBut(rebuilding, entity, {"CAUSEDBY"}));
    addCause(rebuilding);
}

Successor becomesLinear(const Releases& releases, DXSdaiAppInstance& action) {
    return replacedBy(releases, action, "IFCSTRUCTURALLINEARACTION");
}

Successor becomesPlanar(const Releases& releases, DXSdaiAppInstance& action) {
    return replacedBy(releases, action, "IFCSTRUCTURALPLANARACTION");
}

void rebuildVarying(Rebuilding& rebuilding) {
    const std::string_view entity = rebuilding.successorOf(rebuilding.id())->name();
    const bool isLinear = entity == "IFCSTRUCTURALLINEARACTION";
    RecordBuilder record =
        carriedBut(rebuilding, entity, {"CAUSEDBY", "VARYINGAPPLIEDLOADLOCATION", "SUBSEQUENTAPPLIEDLOADS"});
    RecordBuilder loads(rebuilding.target(), "IFCSTRUCTURALLOADCONFIGURATION");
    std::string all(rebuilding.encoded("APPLIEDLOAD"));
    std::vector<std::string> values;
    eachReference(all += rebuilding.encoded("SUBSEQUENTAPPLIEDLOADS"), [&](std::uint64_t id) {
        const sdai::EntityDefinition* load = rebuilding.successorOf(id);
        if (load != nullptr && load->isKindOf("IFCSTRUCTURALLOADORRESULT")) values.push_back(reference(id));
    });
    if (!values.empty()) {
        loads.set("VALUES", listOf(values));
        record.set("APPLIEDLOAD", reference(rebuilding.add(loads)));
    }
    record.set("PREDEFINEDTYPE", enumerator(isLinear ? values.size() > 2 ? "POLYGONAL" : "LINEAR" : "BILINEAR"));
    rebuilding.become(record);
    addCause(rebuilding);
}

Successor becomesProductAssignment(const Releases& releases, DXSdaiAppInstance& relationship) {
    return replacedBy(releases, relationship, "IFCRELASSIGNSTOPRODUCT");
}

void rebuildMember(Rebuilding& rebuilding) {
    RecordBuilder record =
        carriedBut(rebuilding, "IFCRELASSIGNSTOPRODUCT", {"RELATINGELEMENT", "RELATEDSTRUCTURALMEMBER"});
    carry(rebuilding, "RELATINGELEMENT", record, "RELATINGPRODUCT");
    const std::string_view related = rebuilding.encoded("RELATEDSTRUCTURALMEMBER");
    if (rebuilding.successorOf(sdai::decodeInstanceName(related)) != nullptr)
        record.set("RELATEDOBJECTS", listOf({std::string(related)}));
    rebuilding.become(record);
}

/// Which elements the relationship of ports takes is asked of the target, as it stands for its source.
Successor becomesNesting(const Releases& releases, DXSdaiAppInstance& relationship) {
    const sdai::EntityDefinition* same = releases.target.entity("IFCRELCONNECTSPORTTOELEMENT");
    const sdai::EntityDefinition* element =
        entityOf(relationship.model(), relationship.GetAttr("RELATEDELEMENT").encoded());
    if (same == nullptr || element == nullptr || releases.target.entity("IFCRELNESTS") == nullptr)
        return Successor::notHere();
    const auto* wanted = attributeType(*same, "RELATEDELEMENT").resolved().asEntity();
    const bool fits =
        wanted == nullptr || element->isKindOf(wanted->name()) || element->name() == "IFCELECTRICALELEMENT";
    return fits ? Successor::notHere() : Successor::of(releases, "IFCRELNESTS");
}

void rebuildPort(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, "IFCRELNESTS", {"RELATINGPORT", "RELATEDELEMENT"});
    carry(rebuilding, "RELATEDELEMENT", record, "RELATINGOBJECT");
    const std::string_view port = rebuilding.encoded("RELATINGPORT");
    if (rebuilding.successorOf(sdai::decodeInstanceName(port)) != nullptr)
        record.set("RELATEDOBJECTS", listOf({std::string(port)}));
    rebuilding.become(record);
}

constexpr RebuildRule rebuilds[] = {
    {moved, "IFCWASTETERMINALTYPE", becomesMoved, nullptr, rebuildMoved},
    {moved, "IFCELECTRICAPPLIANCETYPE", becomesMoved, nullptr, rebuildMoved},
    {moved, "IFCELECTRICDISTRIBUTIONPOINT", becomesMoved, nullptr, rebuildMoved},
    {moved, "IFCBUILDINGSYSTEM", becomesMoved, nullptr, rebuildMoved},
    {moved, "IFCTRANSPORTELEMENT", becomesMoved, nullptr, rebuildMoved},
    {moved, "IFCTRANSPORTELEMENTTYPE", becomesMoved, nullptr, rebuildMoved},
    {specific, "IFCRELDEFINESBYTYPE", becomesRelationship, planOccurrences},
    {electrical, "IFCELECTRICALELEMENT", becomesDistribution, nullptr, rebuildNamed},
    {equipment, "IFCEQUIPMENTELEMENT", becomesProxy, nullptr, rebuildNamed},
    {features, "IFCCHAMFEREDGEFEATURE", becomesVoid, nullptr, rebuildFeature},
    {features, "IFCROUNDEDEDGEFEATURE", becomesVoid, nullptr, rebuildFeature},
    {measures, "IFCTRANSPORTELEMENT", becomesMeasured, nullptr, rebuildMeasured},
    {measures, "IFCDISTRIBUTIONCONTROLELEMENT", becomesMeasured, nullptr, rebuildMeasured},
    {measures, "IFCKERB", becomesMeasured, nullptr, rebuildMeasured},
    {measures, "IFCREFERENT", becomesMeasured, nullptr, rebuildMeasured},
    {measures, "IFCCONSTRUCTIONRESOURCE", becomesMeasured, nullptr, rebuildMeasured},
    {varying, "IFCSTRUCTURALLINEARACTIONVARYING", becomesLinear, nullptr, rebuildVarying},
    {varying, "IFCSTRUCTURALPLANARACTIONVARYING", becomesPlanar, nullptr, rebuildVarying},
    {cause, "IFCSTRUCTURALACTION", becomesAction, nullptr, rebuildAction},
    {member, "IFCRELCONNECTSSTRUCTURALELEMENT", becomesProductAssignment, nullptr, rebuildMember},
    {ports, "IFCRELCONNECTSPORTTOELEMENT", becomesNesting, nullptr, rebuildPort},
};

constexpr DefaultRule defaults[] = {
    {constant, "IFCSTRUCTURALLINEARACTION", "PREDEFINEDTYPE", ".CONST."},
    {constant, "IFCSTRUCTURALPLANARACTION", "PREDEFINEDTYPE", ".CONST."},
};

} // namespace

RuleTable objectRules() {
    return {.rebuild = rebuilds, .defaults = defaults};
}

} // namespace velkor::exchange::forward
