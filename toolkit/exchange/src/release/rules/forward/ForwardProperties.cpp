// What attributes of property set definitions and of other objects say stands in property sets since IFC4.
#include "release/rules/forward/ForwardTables.h"

#include "RecordText.h"
#include "release/RuleBook.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor::exchange::forward {

namespace {

constexpr ConversionRule sets{"attributes-to-set", Effect::Rebuilt,
                              "A property set definition with attributes becomes a property set with properties",
                              "Since IFC4 what these entities said stands in property sets"};
constexpr ConversionRule sounds{"sound-values", Effect::Rebuilt,
                                "Sound values become the rows of a table from frequencies to levels",
                                "Since IFC4 sound is said by tables in property sets"};
constexpr ConversionRule centres{"centre-of-gravity", Effect::Rebuilt,
                                 "The centre of gravity of a profile becomes profile properties of it",
                                 "Since IFC4 it stands in the published property set for profiles"};
constexpr ConversionRule changed{"change-date", Effect::Converted,
                                 "An owner history with a change but no date of it has that of its creation",
                                 "Since IFC4 a change has a date; no later one is known"};

struct PropertyGroup {
    /// Of the source, upper case; subtypes are meant too.
    std::string_view entity;
    std::string_view set;
    std::span<const std::string_view> attributes;
};

constexpr std::string_view energy[] = {
    "EnergySequence",  "UserDefinedEnergySequence", "ElectricCurrentType", "InputVoltage",    "InputFrequency",
    "FullLoadCurrent", "MinimumCircuitCurrent",     "MaximumPowerInput",   "RatedPowerInput", "InputPhase"};
constexpr std::string_view flow[] = {
    "PropertySource",          "UserDefinedPropertySource",    "Fluid",
    "FlowConditionTimeSeries", "FlowConditionSingleValue",     "VelocityTimeSeries",
    "VelocitySingleValue",     "FlowrateTimeSeries",           "FlowrateSingleValue",
    "PressureTimeSeries",      "PressureSingleValue",          "TemperatureTimeSeries",
    "TemperatureSingleValue",  "WetBulbTemperatureTimeSeries", "WetBulbTemperatureSingleValue"};
constexpr std::string_view sound[] = {"IsAttenuating", "SoundScale"};
constexpr std::string_view loads[] = {"ApplicableValueRatio",
                                      "ThermalLoadSource",
                                      "UserDefinedThermalLoadSource",
                                      "PropertySource",
                                      "UserDefinedPropertySource",
                                      "SourceDescription",
                                      "MaximumValue",
                                      "MinimumValue",
                                      "ThermalLoadTimeSeriesValues",
                                      "ThermalLoadType"};
constexpr std::string_view factors[] = {"PredefinedType", "UpperValue", "MostUsedValue", "LowerValue"};

constexpr PropertyGroup setGroups[] = {
    {"IFCELECTRICALBASEPROPERTIES", "IfcElectricalBaseProperties", energy},
    {"IFCENERGYPROPERTIES", "IfcEnergyProperties", energy},
    {"IFCFLUIDFLOWPROPERTIES", "IfcFluidFlowProperties", flow},
    {"IFCSOUNDPROPERTIES", "IfcSoundProperties", sound},
    {"IFCSPACETHERMALLOADPROPERTIES", "IfcSpaceThermalLoadProperties", loads},
    {"IFCSERVICELIFEFACTOR", "IfcServiceLifeFactor", factors},
};

bool hasAny(DXSdaiAppInstance& instance, const PropertyGroup& group) {
    return std::ranges::any_of(group.attributes,
                               [&](std::string_view name) { return instance.TestAttr(text::toUpper(name)); });
}

/// One that says nothing leaves nothing.
Successor becomesSet(const Releases& releases, DXSdaiAppInstance& definition) {
    const Successor successor = replacedBy(releases, definition, "IFCPROPERTYSET");
    if (successor.entity == nullptr || definition.IsKindOf("IFCSOUNDPROPERTIES")) return successor;
    for (const PropertyGroup& group : setGroups)
        if (definition.IsKindOf(group.entity) && hasAny(definition, group)) return successor;
    return Successor::absorbed();
}

/// The rows of a table from one attribute of what is listed to another; empty unless each row has both.
std::string tableOf(Rebuilding& rebuilding, std::string_view rows, std::string_view name, std::string_view defining,
                    std::string_view defined) {
    const sdai::EntityDefinition& table = *rebuilding.target().entity("IFCPROPERTYTABLEVALUE");
    const auto* values = attributeType(table, "DEFININGVALUES").resolved().asAggregate();
    std::vector<std::string> keys;
    std::vector<std::string> results;
    for (const std::uint64_t row : idsOf(rows)) {
        const sdai::EntityDefinition* entity = entityOf(rebuilding.source(), row);
        if (entity == nullptr || entity->attributeIndex(defining) < 0) return {};
        auto key = rebuilding.translated(encodedOf(rebuilding.source(), row, defining),
                                         attributeType(*entity, defining), values->element());
        auto result = rebuilding.translated(encodedOf(rebuilding.source(), row, defined),
                                            attributeType(*entity, defined), values->element());
        if (!key || !result) return {};
        keys.push_back(std::move(*key));
        results.push_back(std::move(*result));
    }
    if (keys.empty()) return {};
    RecordBuilder record(rebuilding.target(), table);
    record.set("NAME", literal(name));
    record.set("DEFININGVALUES", listOf(keys));
    record.set("DEFINEDVALUES", listOf(results));
    return reference(rebuilding.add(record));
}

void rebuildSet(Rebuilding& rebuilding) {
    if (rebuilding.successorOf(rebuilding.id()) == nullptr) return;
    for (const PropertyGroup& group : setGroups) {
        if (!rebuilding.entity().isKindOf(group.entity)) continue;
        std::vector<std::string> properties = propertiesOf(rebuilding, group.attributes);
        const std::string_view levels = rebuilding.encoded("SOUNDVALUES");
        if (!isUnset(levels)) {
            std::string table = tableOf(rebuilding, levels, "SoundValues", "FREQUENCY", "SOUNDLEVELSINGLEVALUE");
            if (!table.empty())
                properties.push_back(std::move(table));
            else
                rebuilding.note(rules::noAttribute, "SOUNDVALUES without single levels");
        }
        RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCPROPERTYSET"));
        if (isUnset(record.value("NAME"))) record.set("NAME", literal(group.set));
        if (!properties.empty()) record.set("HASPROPERTIES", listOf(properties));
        return rebuilding.become(record);
    }
}

Successor absorb(const Releases& releases, DXSdaiAppInstance& instance) {
    return releases.target.entity(instance.entity()->name()) == nullptr ? Successor::absorbed() : Successor::notHere();
}

constexpr std::pair<std::string_view, std::string_view> centre[] = {{"CENTREOFGRAVITYINX", "CentreOfGravityInX"},
                                                                    {"CENTREOFGRAVITYINY", "CentreOfGravityInY"}};

Successor becomesPlainProfile(const Releases& releases, DXSdaiAppInstance& profile) {
    const Successor same = Successor::of(releases, profile.entity()->name());
    if (same.entity == nullptr) return same;
    for (const char* name : {"CENTREOFGRAVITYINX", "CENTREOFGRAVITYINY"})
        if (same.entity->attributeIndex(name) < 0 && profile.TestAttr(name)) return same;
    return Successor::notHere();
}

void rebuildPlainProfile(Rebuilding& rebuilding) {
    rebuilding.become(rebuilding.carried(*rebuilding.successorOf(rebuilding.id())));
    std::vector<std::string> properties;
    for (const auto& [attribute, name] : centre) {
        const std::string_view value = rebuilding.encoded(attribute);
        // The published set has lengths of any sign.
        if (!isUnset(value)) properties.push_back(addProperty(rebuilding, name, typed("IFCLENGTHMEASURE", value)));
    }
    if (properties.empty()) return;
    RecordBuilder record(rebuilding.target(), "IFCPROFILEPROPERTIES");
    record.set("NAME", literal("Pset_ProfileMechanical"));
    record.set("PROPERTIES", listOf(properties));
    record.set("PROFILEDEFINITION", reference(rebuilding.id()));
    rebuilding.add(record);
}

/// Of a release that requires an action but no date to one that wants the date.
Successor becomesDated(const Releases& releases, DXSdaiAppInstance& history) {
    const Successor same = Successor::of(releases, "IFCOWNERHISTORY");
    const sdai::Attribute* before = history.entity()->attribute("CHANGEACTION");
    const sdai::Attribute* after = same.entity == nullptr ? nullptr : same.entity->attribute("CHANGEACTION");
    if (before == nullptr || after == nullptr || before->isOptional() || !after->isOptional())
        return Successor::notHere();
    const std::string_view action = history.GetAttr("CHANGEACTION").encoded();
    const bool isChange = action.ends_with("ADDED.") || action.ends_with("DELETED.") || action == ".MODIFIED.";
    return isChange && !history.TestAttr("LASTMODIFIEDDATE") ? same : Successor::notHere();
}

void rebuildDated(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.successorOf(rebuilding.id()));
    record.set("LASTMODIFIEDDATE", std::string(rebuilding.encoded("CREATIONDATE")));
    rebuilding.become(record);
}

constexpr RebuildRule rebuilds[] = {
    {centres, "IFCPARAMETERIZEDPROFILEDEF", becomesPlainProfile, nullptr, rebuildPlainProfile},
    {changed, "IFCOWNERHISTORY", becomesDated, nullptr, rebuildDated},
    {sets, "IFCENERGYPROPERTIES", becomesSet, nullptr, rebuildSet},
    {sets, "IFCFLUIDFLOWPROPERTIES", becomesSet, nullptr, rebuildSet},
    {sets, "IFCSOUNDPROPERTIES", becomesSet, nullptr, rebuildSet},
    {sets, "IFCSPACETHERMALLOADPROPERTIES", becomesSet, nullptr, rebuildSet},
    {sets, "IFCSERVICELIFEFACTOR", becomesSet, nullptr, rebuildSet},
    {sounds, "IFCSOUNDVALUE", absorb},
};

} // namespace

std::string addProperty(Rebuilding& rebuilding, std::string_view name, std::string nominal) {
    RecordBuilder property(rebuilding.target(), "IFCPROPERTYSINGLEVALUE");
    property.set("NAME", literal(name));
    property.set("NOMINALVALUE", std::move(nominal));
    return reference(rebuilding.add(property));
}

std::string propertyOf(Rebuilding& rebuilding, std::string_view attribute, std::string_view name) {
    const sdai::Attribute* declared = rebuilding.entity().attribute(attribute);
    if (declared == nullptr) return {};
    const std::string_view value = rebuilding.encoded(declared->name());
    if (isUnset(value)) return {};
    if (name.empty()) name = attribute;
    const sdai::Type& from = attributeType(rebuilding.entity(), attribute);
    const auto* list = from.resolved().asAggregate();
    const bool isReference = value.front() == '#';
    const std::string_view entity = list != nullptr ? "IFCPROPERTYLISTVALUE"
                                    : isReference   ? "IFCPROPERTYREFERENCEVALUE"
                                                    : "IFCPROPERTYSINGLEVALUE";
    const std::string_view place = list != nullptr ? "LISTVALUES" : isReference ? "PROPERTYREFERENCE" : "NOMINALVALUE";
    RecordBuilder property(rebuilding.target(), entity);
    auto said = rebuilding.translated(value, from, attributeType(property.entity(), place));
    if (!said && isReference) {
        // A date, which is a value in the target.
        const RecordBuilder single(rebuilding.target(), "IFCPROPERTYSINGLEVALUE");
        said = rebuilding.translated(value, from, attributeType(single.entity(), "NOMINALVALUE"));
        return said ? addProperty(rebuilding, name, std::move(*said)) : std::string();
    }
    if (!said) return {};
    property.set("NAME", literal(name));
    property.set(place, std::move(*said));
    return reference(rebuilding.add(property));
}

std::vector<std::string> propertiesOf(Rebuilding& rebuilding, std::span<const std::string_view> attributes) {
    std::vector<std::string> properties;
    for (const std::string_view attribute : attributes) {
        std::string property = propertyOf(rebuilding, attribute);
        const bool isSaid = !property.empty();
        if (isSaid)
            properties.push_back(std::move(property));
        else if (!isUnset(rebuilding.encoded(attribute)))
            rebuilding.note(rules::noAttribute, std::string(attribute));
    }
    return properties;
}

void addPropertySet(Rebuilding& rebuilding, std::string_view name, const std::vector<std::string>& properties) {
    if (properties.empty()) return;
    RecordBuilder set = objectBeside(rebuilding, "IFCPROPERTYSET", name);
    set.set("NAME", literal(name));
    set.set("HASPROPERTIES", listOf(properties));
    RecordBuilder relationship = objectBeside(rebuilding, "IFCRELDEFINESBYPROPERTIES", name);
    relationship.set("GLOBALID", identifierBeside(rebuilding, std::string(name) + " relationship"));
    relationship.set("RELATEDOBJECTS", listOf({reference(rebuilding.id())}));
    relationship.set("RELATINGPROPERTYDEFINITION", reference(rebuilding.add(set)));
    rebuilding.add(relationship);
}

RuleTable propertyRules() {
    return {.rebuild = rebuilds};
}

} // namespace velkor::exchange::forward
