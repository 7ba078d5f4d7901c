// Controls that later releases lack become property sets of what they control.
#include "release/rules/forward/ForwardTables.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor::exchange::forward {

namespace {

constexpr ConversionRule controls{"control-to-set", Effect::Rebuilt,
                                  "A control that the target lacks becomes a property set of what it is assigned to; "
                                  "its name is a property",
                                  "What these controls ask of objects is said by properties since IFC4"};
constexpr ConversionRule assignments{"assignment-to-set", Effect::Rebuilt,
                                     "An assignment to such a control becomes a relationship by properties",
                                     "The control has become a property set"};
constexpr ConversionRule interactions{"space-interaction", Effect::Lost,
                                      "Required interactions between space programs are dropped",
                                      "Space programs have become property sets, which nothing connects"};

struct Control {
    std::string_view entity;
    std::string_view set;
    std::span<const std::string_view> attributes;
};

constexpr std::string_view program[] = {"Name",
                                        "ObjectType",
                                        "SpaceProgramIdentifier",
                                        "MaxRequiredArea",
                                        "MinRequiredArea",
                                        "RequestedLocation",
                                        "StandardRequiredArea"};
constexpr std::string_view life[] = {"Name", "ObjectType", "ServiceLifeType", "ServiceLifeDuration"};
constexpr std::string_view criterion[] = {"Name", "ObjectType", "Criterion", "CriterionDateTime"};
constexpr std::string_view series[] = {"Name", "ObjectType", "ApplicableDates", "TimeSeriesScheduleType", "TimeSeries"};
constexpr std::string_view named[] = {"Name", "ObjectType"};

constexpr Control rows[] = {
    {"IFCSPACEPROGRAM", "IfcSpaceProgram", program},
    {"IFCSERVICELIFE", "IfcServiceLife", life},
    {"IFCCONDITIONCRITERION", "IfcConditionCriterion", criterion},
    {"IFCTIMESERIESSCHEDULE", "IfcTimeSeriesSchedule", series},
    {"IFCFURNITURESTANDARD", "IfcFurnitureStandard", named},
    {"IFCEQUIPMENTSTANDARD", "IfcEquipmentStandard", named},
};

const Control* rowOf(std::string_view entity) {
    const auto* row = std::ranges::find(rows, entity, &Control::entity);
    return row == std::end(rows) ? nullptr : row;
}

Successor becomesSet(const Releases& releases, DXSdaiAppInstance& control) {
    const Control* row = rowOf(control.entity()->name());
    const bool saysSomething = row != nullptr && std::ranges::any_of(row->attributes, [&](std::string_view name) {
                                   return control.TestAttr(text::toUpper(name));
                               });
    return saysSomething ? replacedBy(releases, control, "IFCPROPERTYSET") : Successor::notHere();
}

void rebuildSet(Rebuilding& rebuilding) {
    const Control* row = rowOf(rebuilding.entity().name());
    const std::vector<std::string> properties = propertiesOf(rebuilding, row->attributes);
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCPROPERTYSET"));
    record.set("NAME", literal(row->set));
    if (!properties.empty()) record.set("HASPROPERTIES", listOf(properties));
    rebuilding.become(record);
}

Successor becomesDefinition(const Releases& releases, DXSdaiAppInstance& relationship) {
    const std::string_view control = entityNameAt(relationship, "RELATINGCONTROL");
    const bool isGone = rowOf(control) != nullptr && releases.target.entity(control) == nullptr;
    return isGone ? Successor::of(releases, "IFCRELDEFINESBYPROPERTIES") : Successor::notHere();
}

void rebuildDefinition(Rebuilding& rebuilding) {
    RecordBuilder record =
        carriedBut(rebuilding, "IFCRELDEFINESBYPROPERTIES", {"RELATINGCONTROL", "RELATEDOBJECTSTYPE", "TIMEFORTASK"});
    const std::string_view control = rebuilding.encoded("RELATINGCONTROL");
    if (rebuilding.successorOf(sdai::decodeInstanceName(control)) != nullptr)
        record.set("RELATINGPROPERTYDEFINITION", std::string(control));
    rebuilding.become(record);
}

constexpr RebuildRule rebuilds[] = {
    {controls, "IFCSPACEPROGRAM", becomesSet, nullptr, rebuildSet},
    {controls, "IFCSERVICELIFE", becomesSet, nullptr, rebuildSet},
    {controls, "IFCCONDITIONCRITERION", becomesSet, nullptr, rebuildSet},
    {controls, "IFCTIMESERIESSCHEDULE", becomesSet, nullptr, rebuildSet},
    {controls, "IFCFURNITURESTANDARD", becomesSet, nullptr, rebuildSet},
    {controls, "IFCEQUIPMENTSTANDARD", becomesSet, nullptr, rebuildSet},
    {assignments, "IFCRELASSIGNSTOCONTROL", becomesDefinition, nullptr, rebuildDefinition},
    {interactions, "IFCRELINTERACTIONREQUIREMENTS", lostWhereLacking},
};

} // namespace

RuleTable controlRules() {
    return {.rebuild = rebuilds};
}

} // namespace velkor::exchange::forward
