// Materials, profiles of materials, and properties of materials and profiles.
#include "RecordText.h"
#include "release/Rebuilding.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <initializer_list>

namespace velkor::exchange {

namespace {

/// Entities of IFC2X3 whose attributes are properties of a set later, under these names.
struct PropertyEntity {
    std::string_view entity;
    std::string_view set;
    std::string_view names[16];
};

constexpr PropertyEntity propertyEntities[] = {
    {"IFCMECHANICALMATERIALPROPERTIES",
     "Pset_MaterialMechanical",
     {"DynamicViscosity", "YoungModulus", "ShearModulus", "PoissonRatio", "ThermalExpansionCoefficient"}},
    {"IFCMECHANICALSTEELMATERIALPROPERTIES",
     "Pset_MaterialSteel",
     {"YieldStress", "UltimateStress", "UltimateStrain", "HardeningModule", "ProportionalStress", "PlasticStrain",
      "DynamicViscosity", "YoungModulus", "ShearModulus", "PoissonRatio", "ThermalExpansionCoefficient"}},
    {"IFCMECHANICALCONCRETEMATERIALPROPERTIES",
     "Pset_MaterialConcrete",
     {"CompressiveStrength", "MaxAggregateSize", "AdmixturesDescription", "Workability", "ProtectivePoreRatio",
      "WaterImpermeability", "DynamicViscosity", "YoungModulus", "ShearModulus", "PoissonRatio",
      "ThermalExpansionCoefficient"}},
    {"IFCTHERMALMATERIALPROPERTIES",
     "Pset_MaterialThermal",
     {"SpecificHeatCapacity", "BoilingPoint", "FreezingPoint", "ThermalConductivity"}},
    {"IFCHYGROSCOPICMATERIALPROPERTIES",
     "Pset_MaterialHygroscopic",
     {"UpperVaporResistanceFactor", "LowerVaporResistanceFactor", "IsothermalMoistureCapacity", "VaporPermeability",
      "MoistureDiffusivity"}},
    {"IFCGENERALMATERIALPROPERTIES", "Pset_MaterialCommon", {"MolecularWeight", "Porosity", "MassDensity"}},
    {"IFCOPTICALMATERIALPROPERTIES",
     "Pset_MaterialOptical",
     {"VisibleTransmittance", "SolarTransmittance", "ThermalIrTransmittance", "ThermalIrEmissivityBack",
      "ThermalIrEmissivityFront", "VisibleReflectanceBack", "VisibleReflectanceFront", "SolarReflectanceFront",
      "SolarReflectanceBack"}},
    {"IFCWATERPROPERTIES",
     "Pset_MaterialWater",
     {"IsPotable", "Hardness", "AlkalinityConcentration", "AcidityConcentration", "ImpuritiesContent", "PHLevel",
      "DissolvedSolidsContent"}},
    {"IFCFUELPROPERTIES",
     "Pset_MaterialFuel",
     {"CombustionTemperature", "CarbonContent", "LowerHeatingValue", "HigherHeatingValue"}},
    {"IFCPRODUCTSOFCOMBUSTIONPROPERTIES",
     "Pset_MaterialCombustion",
     {"SpecificHeatCapacity", "N20Content", "COContent", "CO2Content"}},
    {"IFCRIBPLATEPROFILEPROPERTIES",
     "Pset_ProfileRibPlate",
     {"Thickness", "RibHeight", "RibWidth", "RibSpacing", "Direction"}},
};

/// Those of structural profiles are more than others have.
constexpr std::string_view profileNames[] = {"PhysicalWeight",
                                             "Perimeter",
                                             "MinimumPlateThickness",
                                             "MaximumPlateThickness",
                                             "CrossSectionArea",
                                             "TorsionalConstantX",
                                             "MomentOfInertiaYZ",
                                             "MomentOfInertiaY",
                                             "MomentOfInertiaZ",
                                             "WarpingConstant",
                                             "ShearCentreZ",
                                             "ShearCentreY",
                                             "ShearDeformationAreaZ",
                                             "ShearDeformationAreaY",
                                             "MaximumSectionModulusY",
                                             "MinimumSectionModulusY",
                                             "MaximumSectionModulusZ",
                                             "MinimumSectionModulusZ",
                                             "TorsionalSectionModulus",
                                             "CentreOfGravityInX",
                                             "CentreOfGravityInY",
                                             "ShearAreaZ",
                                             "ShearAreaY",
                                             "PlasticShapeFactorY",
                                             "PlasticShapeFactorZ"};
constexpr std::string_view profileSet = "Pset_ProfileMechanical";

const PropertyEntity* rowOf(std::string_view entity) {
    const auto* found = std::ranges::find(propertyEntities, entity, &PropertyEntity::entity);
    return found == std::end(propertyEntities) ? nullptr : found;
}

/// Name of the property that an attribute becomes; empty for none.
std::string_view propertyName(const sdai::EntityDefinition& entity, std::string_view attribute) {
    const auto isIt = [&](std::string_view name) { return !name.empty() && text::toUpper(name) == attribute; };
    if (const PropertyEntity* row = rowOf(entity.name())) {
        const auto* found = std::ranges::find_if(row->names, isIt);
        return found == std::end(row->names) ? std::string_view() : *found;
    }
    if (!entity.isKindOf("IFCGENERALPROFILEPROPERTIES")) return {};
    const auto* found = std::ranges::find_if(profileNames, isIt);
    return found == std::end(profileNames) ? std::string_view() : *found;
}

/// A value of an attribute with its type before it.
std::string typedAs(const sdai::Type& type, std::string_view encoded) {
    if (type.resolved().asEnumeration() != nullptr)
        return typed("IFCLABEL", literal(encoded.substr(1, encoded.size() - 2)));
    if (type.asDefined() != nullptr) return typed(type.asDefined()->name(), encoded);
    switch (type.kind()) {
    case sdai::TypeKind::Boolean:
        return typed("IFCBOOLEAN", encoded);
    case sdai::TypeKind::Logical:
        return typed("IFCLOGICAL", encoded);
    case sdai::TypeKind::Integer:
        return typed("IFCINTEGER", encoded);
    case sdai::TypeKind::Real:
        return typed("IFCREAL", encoded);
    default:
        return typed("IFCTEXT", encoded);
    }
}

Successor becomesMaterialProperties(const Releases& releases, DXSdaiAppInstance& properties) {
    return replacedBy(releases, properties, "IFCMATERIALPROPERTIES");
}

Successor becomesProfileProperties(const Releases& releases, DXSdaiAppInstance& properties) {
    return replacedBy(releases, properties, "IFCPROFILEPROPERTIES");
}

void rebuildAsSet(Rebuilding& rebuilding, std::string_view entity, std::string_view set) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity(entity));
    std::vector<std::string> properties;
    for (const sdai::AttributeSlot& slot : rebuilding.entity().attributes()) {
        const std::string_view name = propertyName(rebuilding.entity(), slot.attribute->name());
        const std::string_view value = name.empty() ? sdai::omittedValue : rebuilding.encoded(slot.attribute->name());
        if (value == sdai::omittedValue || value == sdai::derivedValue) continue;
        RecordBuilder property(rebuilding.target(), "IFCPROPERTYSINGLEVALUE");
        property.set("NAME", literal(name));
        property.set("NOMINALVALUE", typedAs(slot.attribute->type(), value));
        properties.push_back(reference(rebuilding.add(property)));
    }
    if (!properties.empty()) record.set("PROPERTIES", listOf(properties));
    record.set("NAME", literal(set));
    static_cast<void>(rebuilding.encoded("PROFILENAME"));
    rebuilding.become(record);
}

void rebuildMaterialProperties(Rebuilding& rebuilding) {
    const PropertyEntity* row = rowOf(rebuilding.entity().name());
    rebuildAsSet(rebuilding, "IFCMATERIALPROPERTIES",
                 row != nullptr ? row->set : std::string_view("Pset_MaterialCommon"));
}

void rebuildProfileProperties(Rebuilding& rebuilding) {
    const PropertyEntity* row = rowOf(rebuilding.entity().name());
    rebuildAsSet(rebuilding, "IFCPROFILEPROPERTIES", row != nullptr ? row->set : profileSet);
}

void rebuildExtended(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCMATERIALPROPERTIES"));
    record.set("PROPERTIES", std::string(rebuilding.encoded("EXTENDEDPROPERTIES")));
    rebuilding.become(record);
}

constexpr ConversionRule otherProperty{"profile-property-lost", Effect::Lost,
                                       "A property of a profile is dropped that IFC2X3 has no attribute for",
                                       "Its entities for profiles have attributes, and no list of properties"};

/// The entities of the target that may say a set, the plainest first.
std::vector<const sdai::EntityDefinition*> candidates(const Releases& releases, std::string_view set, bool isProfile) {
    std::vector<const sdai::EntityDefinition*> result;
    for (const PropertyEntity& row : propertyEntities)
        if (row.set == set) result.push_back(releases.target.entity(row.entity));
    if (isProfile)
        for (const char* name :
             {"IFCGENERALPROFILEPROPERTIES", "IFCSTRUCTURALPROFILEPROPERTIES", "IFCSTRUCTURALSTEELPROFILEPROPERTIES"})
            result.push_back(releases.target.entity(name));
    std::erase(result, nullptr);
    return result;
}

/// The attribute that a property is of an entity, when it says a value of the attribute's type; -1 for none.
int attributeFor(const sdai::EntityDefinition& entity, const DXSdaiAppInstance& property) {
    if (!property.IsKindOf("IFCPROPERTYSINGLEVALUE") || property.GetAttr("UNIT").isSet()) return -1;
    const std::string name = text::toUpper(property.GetAttr("NAME").asString());
    const int place = entity.attributeIndex(name);
    if (place < 0 || propertyName(entity, name).empty()) return -1;
    const sdai::Type& type = entity.attributes()[static_cast<std::size_t>(place)].attribute->type();
    const std::string_view value = property.GetAttr("NOMINALVALUE").encoded();
    const std::string wanted = typedAs(type, "..");
    const std::string_view keyword = std::string_view(wanted).substr(0, wanted.find('('));
    return value.starts_with(keyword) && value.size() > keyword.size() && value[keyword.size()] == '(' ? place : -1;
}

const sdai::EntityDefinition* exactEntity(const Releases& releases, const DXSdaiAppInstance& properties,
                                          bool isProfile) {
    for (const sdai::EntityDefinition* entity :
         candidates(releases, properties.GetAttr("NAME").asString(), isProfile)) {
        bool isExact = true;
        for (const sdai::Primitive member : properties.GetAttr("PROPERTIES").asAggregate()) {
            const DXSdaiAppInstance* property = member.asInstance();
            isExact = isExact && property != nullptr && attributeFor(*entity, *property) >= 0;
        }
        if (isExact) return entity;
    }
    return nullptr;
}

bool hasOwnProperties(const Releases& releases, std::string_view entity) {
    const sdai::EntityDefinition* same = releases.target.entity(entity);
    return same != nullptr && same->attributeIndex("PROPERTIES") >= 0;
}

Successor becomesMaterialEntity(const Releases& releases, DXSdaiAppInstance& properties) {
    if (hasOwnProperties(releases, "IFCMATERIALPROPERTIES")) return Successor::notHere();
    const auto* exact = exactEntity(releases, properties, false);
    return exact != nullptr ? Successor::of(releases, exact->name())
                            : Successor::of(releases, "IFCEXTENDEDMATERIALPROPERTIES");
}

Successor becomesProfileEntity(const Releases& releases, DXSdaiAppInstance& properties) {
    if (hasOwnProperties(releases, "IFCPROFILEPROPERTIES")) return Successor::notHere();
    const auto* exact = exactEntity(releases, properties, true);
    return Successor::of(releases, exact != nullptr ? exact->name() : std::string_view("IFCGENERALPROFILEPROPERTIES"));
}

void rebuildEntity(Rebuilding& rebuilding) {
    const sdai::EntityDefinition* entity = rebuilding.successorOf(rebuilding.id());
    RecordBuilder record = rebuilding.carried(*entity);
    if (record.set("EXTENDEDPROPERTIES", std::string(sdai::omittedValue))) {
        const sdai::EntityDefinition& source = rebuilding.entity();
        const auto& from =
            source.attributes()[static_cast<std::size_t>(source.attributeIndex("PROPERTIES"))].attribute->type();
        const auto& to = entity->attributes()[static_cast<std::size_t>(entity->attributeIndex("EXTENDEDPROPERTIES"))]
                             .attribute->type();
        if (auto translated = rebuilding.translated(rebuilding.encoded("PROPERTIES"), from, to))
            record.set("EXTENDEDPROPERTIES", std::move(*translated));
        return rebuilding.become(record);
    }
    eachNumber(rebuilding.source().file(), rebuilding.encoded("PROFILEDEFINITION"), [&](std::uint32_t profile) {
        record.set("PROFILENAME", std::string(parameterOf(rebuilding.source(), profile, "PROFILENAME")));
    });
    bool isWhole = true;
    for (const sdai::Primitive member : rebuilding.instance().GetAttr("PROPERTIES").asAggregate()) {
        const DXSdaiAppInstance* property = member.asInstance();
        const int place = property == nullptr ? -1 : attributeFor(*entity, *property);
        isWhole = isWhole && place >= 0;
        if (place < 0) continue;
        const auto& attribute = *entity->attributes()[static_cast<std::size_t>(place)].attribute;
        std::string_view value = property->GetAttr("NOMINALVALUE").encoded();
        value = value.substr(value.find('(') + 1);
        value.remove_suffix(1);
        const bool isEnumerator = attribute.type().resolved().asEnumeration() != nullptr;
        record.set(attribute.name(), isEnumerator ? enumerator(textOf(value)) : std::string(value));
    }
    if (!isWhole) rebuilding.note(otherProperty, "PROPERTIES");
    rebuilding.become(record);
}

// Of sets of profiles and constituents IFC2X3 can say the materials.
Successor becomesList(const Releases& releases, DXSdaiAppInstance& set) {
    return replacedBy(releases, set, "IFCMATERIALLIST");
}

void rebuildList(Rebuilding& rebuilding) {
    std::vector<std::string> materials;
    for (const char* attribute : {"MATERIALPROFILES", "MATERIALCONSTITUENTS"}) {
        if (rebuilding.entity().attributeIndex(attribute) < 0) continue;
        eachNumber(rebuilding.source().file(), rebuilding.encoded(attribute), [&](std::uint32_t member) {
            const std::string material(parameterOf(rebuilding.source(), member, "MATERIAL"));
            if (material.starts_with('#') && std::ranges::find(materials, material) == materials.end())
                materials.push_back(material);
        });
    }
    RecordBuilder record(rebuilding.target(), "IFCMATERIALLIST");
    if (!materials.empty()) record.set("MATERIALS", listOf(materials));
    rebuilding.become(record);
}

Successor absorbMaterial(const Releases& releases, DXSdaiAppInstance& use) {
    return releases.target.entity(use.entity()->name()) == nullptr ? Successor::absorbed() : Successor::notHere();
}

std::optional<std::vector<std::string>> toMaterial(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                                   const sdai::Type& to) {
    const auto number = rebuilding.source().file().find(sdai::decodeInstanceName(encoded));
    const sdai::EntityDefinition* entity = number ? rebuilding.source().entityAt(*number) : nullptr;
    if (entity == nullptr) return std::nullopt;
    const char* attribute = entity->isKindOf("IFCMATERIALPROFILESETUSAGE") ? "FORPROFILESET"
                            : entity->isKindOf("IFCMATERIALPROFILE") || entity->isKindOf("IFCMATERIALCONSTITUENT")
                                ? "MATERIAL"
                                : nullptr;
    if (attribute == nullptr) return std::nullopt;
    const std::string_view used = parameterOf(rebuilding.source(), *number, attribute);
    const sdai::EntityDefinition* successor = rebuilding.successorOf(sdai::decodeInstanceName(used));
    const auto* select = to.resolved().asSelect();
    if (successor == nullptr || select == nullptr || !select->accepts(*successor)) return std::nullopt;
    return std::vector{std::string(used)};
}

constexpr ConversionRule asSet{"attributes-to-properties", Effect::Rebuilt,
                               "Properties of materials and profiles that are attributes become properties of a set",
                               "Since IFC4 they are named by the published property sets"};
constexpr ConversionRule asAttributes{
    "properties-to-attributes", Effect::Rebuilt,
    "Properties of materials and profiles become attributes where the published sets say of which entity, "
    "other materials have extended properties",
    "IFC2X3 has an entity for each of the sets"};
constexpr ConversionRule asList{"materials-to-list", Effect::Rebuilt,
                                "A set of material profiles or constituents becomes the list of its materials",
                                "IFC2X3 knows layers and lists; which part has which material is lost with the set"};

constexpr RebuildRule rebuilds[] = {
    {otherProperty, "IFCPROFILEPROPERTIES", notHere},
    {asSet, "IFCEXTENDEDMATERIALPROPERTIES", becomesMaterialProperties, nullptr, rebuildExtended},
    {asAttributes, "IFCMATERIALPROPERTIES", becomesMaterialEntity, nullptr, rebuildEntity},
    {asAttributes, "IFCPROFILEPROPERTIES", becomesProfileEntity, nullptr, rebuildEntity},
    {asSet, "IFCMECHANICALMATERIALPROPERTIES", becomesMaterialProperties, nullptr, rebuildMaterialProperties},
    {asSet, "IFCTHERMALMATERIALPROPERTIES", becomesMaterialProperties, nullptr, rebuildMaterialProperties},
    {asSet, "IFCHYGROSCOPICMATERIALPROPERTIES", becomesMaterialProperties, nullptr, rebuildMaterialProperties},
    {asSet, "IFCGENERALMATERIALPROPERTIES", becomesMaterialProperties, nullptr, rebuildMaterialProperties},
    {asSet, "IFCOPTICALMATERIALPROPERTIES", becomesMaterialProperties, nullptr, rebuildMaterialProperties},
    {asSet, "IFCWATERPROPERTIES", becomesMaterialProperties, nullptr, rebuildMaterialProperties},
    {asSet, "IFCFUELPROPERTIES", becomesMaterialProperties, nullptr, rebuildMaterialProperties},
    {asSet, "IFCPRODUCTSOFCOMBUSTIONPROPERTIES", becomesMaterialProperties, nullptr, rebuildMaterialProperties},
    {asSet, "IFCGENERALPROFILEPROPERTIES", becomesProfileProperties, nullptr, rebuildProfileProperties},
    {asSet, "IFCRIBPLATEPROFILEPROPERTIES", becomesProfileProperties, nullptr, rebuildProfileProperties},
    {asList, "IFCMATERIALPROFILESET", becomesList, nullptr, rebuildList},
    {asList, "IFCMATERIALCONSTITUENTSET", becomesList, nullptr, rebuildList},
    {asList, "IFCMATERIALPROFILESETUSAGE", absorbMaterial},
    {asList, "IFCMATERIALPROFILE", absorbMaterial},
    {asList, "IFCMATERIALCONSTITUENT", absorbMaterial},
};

constexpr ValueRule values[] = {{asList, toMaterial}};

} // namespace

RuleTable materialRules() {
    return {.rebuild = rebuilds, .values = values};
}

} // namespace velkor::exchange
