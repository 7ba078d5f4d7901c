// Costs, resources and the sections of structural members.
#include "release/rules/forward/ForwardTables.h"

#include "RecordText.h"

#include "velkor/sdai/Part21Encoding.h"

namespace velkor::exchange::forward {

namespace {

constexpr ConversionRule components{"value-components", Effect::Rebuilt,
                                    "The components of a value, and how they are put together, stand at the value",
                                    "Since IFC4 a value has its components itself"};
constexpr ConversionRule moreComponents{"more-components", Effect::Lost,
                                        "A further relationship of a value to its components is dropped",
                                        "A value has one list of components and one operator"};
constexpr ConversionRule itemValues{"values-of-item", Effect::Rebuilt,
                                    "The values that are associated with a cost item stand at the item",
                                    "Since IFC4 a cost item has its values itself"};
constexpr ConversionRule objectValues{"values-of-object", Effect::Rebuilt,
                                      "A cost value that is associated with objects becomes one of a cost item that "
                                      "they are assigned to",
                                      "Since IFC4 objects get their costs through cost items alone"};
constexpr ConversionRule impacts{"impact-value", Effect::Rebuilt,
                                 "A value of environmental impact becomes an applied value, its kind of impact the "
                                 "category and its category the condition",
                                 "Since IFC4 values of all kinds are told apart by their category"};
constexpr ConversionRule quantities{"base-quantity", Effect::Converted,
                                    "The base quantity of a resource becomes a quantity with the unit of the measure",
                                    "Since IFC4 it is a physical quantity"};
constexpr ConversionRule sections{"section-of-member", Effect::Rebuilt,
                                  "Profile properties of a member become its material profile set",
                                  "Since IFC4 members have their sections through material profiles"};
constexpr ConversionRule noSection{"section-placement", Effect::Lost,
                                   "Where along a member a section is and how it is turned is dropped",
                                   "Material profiles hold for a member as a whole"};

Successor absorb(const Releases& releases, DXSdaiAppInstance& instance) {
    return releases.target.entity(instance.entity()->name()) == nullptr ? Successor::absorbed() : Successor::notHere();
}

/// False for what comes behind another of the same value.
bool planComponents(Planning& planning, DXSdaiAppInstance& relationship) {
    const sdai::Model& model = planning.source();
    const std::uint64_t total = sdai::decodeInstanceName(relationship.GetAttr("COMPONENTOFTOTAL").encoded());
    std::vector<std::string> members;
    for (const std::uint64_t id : idsOf(relationship.GetAttr("COMPONENTS").encoded()))
        if (id != total && entityOf(model, id) != nullptr) members.push_back(reference(id));
    if (entityOf(model, total) == nullptr || members.empty() || planning.remembered(total).has_value()) return false;
    planning.remembered(total) = true;
    planning.setLater(total, "COMPONENTS", listOf(members));
    planning.setLater(total, "ARITHMETICOPERATOR", std::string(relationship.GetAttr("ARITHMETICOPERATOR").encoded()));
    return true;
}

Successor becomesImpact(const Releases& releases, DXSdaiAppInstance& value) {
    return replacedBy(releases, value, "IFCAPPLIEDVALUE");
}

void rebuildImpact(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, "IFCAPPLIEDVALUE", {"IMPACTTYPE", "CATEGORY", "USERDEFINEDCATEGORY"});
    record.set("CATEGORY", std::string(rebuilding.encoded("IMPACTTYPE")));
    if (!carry(rebuilding, "USERDEFINEDCATEGORY", record, "CONDITION"))
        carry(rebuilding, "CATEGORY", record, "CONDITION");
    rebuilding.become(record);
}

bool isItem(const sdai::Model& model, std::uint64_t id) {
    const sdai::EntityDefinition* entity = entityOf(model, id);
    return entity != nullptr && entity->name() == "IFCCOSTITEM";
}

/// Gives each item that a relationship names all its values; once.
bool planItems(Planning& planning, DXSdaiAppInstance& relationship) {
    const sdai::Model& model = planning.source();
    for (const std::uint64_t item : idsOf(relationship.GetAttr("RELATEDOBJECTS").encoded())) {
        if (!isItem(model, item) || planning.remembered(item).has_value()) continue;
        planning.remembered(item) = true;
        std::string values;
        for (const std::uint64_t user : planning.users(item)) {
            const sdai::EntityDefinition* entity = entityOf(model, user);
            if (entity == nullptr || entity->name() != "IFCRELASSOCIATESAPPLIEDVALUE") continue;
            const std::string_view value = encodedOf(model, user, "RELATINGAPPLIEDVALUE");
            const sdai::EntityDefinition* kind = entityOf(model, value);
            if (kind != nullptr && kind->isKindOf("IFCCOSTVALUE")) (values += value) += ",";
        }
        std::vector<std::string> members;
        for (const std::uint64_t value : idsOf(values)) members.push_back(reference(value));
        if (!members.empty()) planning.setLater(item, "COSTVALUES", listOf(members));
    }
    return true;
}

/// Whether something else than cost items has the value.
bool hasOthers(const sdai::Model& model, std::string_view related) {
    bool isFound = false;
    eachReference(related, [&](std::uint64_t id) { isFound = isFound || !isItem(model, id); });
    return isFound;
}

bool isCost(const Releases& releases, DXSdaiAppInstance& relationship) {
    if (releases.target.entity("IFCRELASSOCIATESAPPLIEDVALUE") != nullptr) return false;
    const sdai::EntityDefinition* value =
        entityOf(relationship.model(), relationship.GetAttr("RELATINGAPPLIEDVALUE").encoded());
    return value != nullptr && value->isKindOf("IFCCOSTVALUE");
}

Successor absorbOfItems(const Releases& releases, DXSdaiAppInstance& relationship) {
    const bool isHere = isCost(releases, relationship) &&
                        !hasOthers(relationship.model(), relationship.GetAttr("RELATEDOBJECTS").encoded());
    return isHere ? Successor::absorbed() : Successor::notHere();
}

Successor becomesAssignment(const Releases& releases, DXSdaiAppInstance& relationship) {
    return isCost(releases, relationship) ? Successor::of(releases, "IFCRELASSIGNSTOCONTROL") : Successor::notHere();
}

void rebuildAssignment(Rebuilding& rebuilding) {
    std::vector<std::string> objects;
    for (const std::uint64_t id : idsOf(rebuilding.encoded("RELATEDOBJECTS"))) {
        const sdai::EntityDefinition* entity = rebuilding.successorOf(id);
        if (entity != nullptr && entity->isKindOf("IFCOBJECTDEFINITION") && !isItem(rebuilding.source(), id))
            objects.push_back(reference(id));
    }
    RecordBuilder record = carriedBut(rebuilding, "IFCRELASSIGNSTOCONTROL", {"RELATINGAPPLIEDVALUE"});
    record.set("RELATEDOBJECTS", objects.empty() ? std::string(sdai::omittedValue) : listOf(objects));
    RecordBuilder item = objectBeside(rebuilding, "IFCCOSTITEM", "IFCCOSTITEM");
    item.set("NAME", std::string(rebuilding.encoded("NAME")));
    item.set("COSTVALUES", listOf({std::string(rebuilding.encoded("RELATINGAPPLIEDVALUE"))}));
    if (!objects.empty()) record.set("RELATINGCONTROL", reference(rebuilding.add(item)));
    rebuilding.become(record);
}

/// Quantities by the measures that they are of.
constexpr std::pair<std::string_view, std::string_view> quantityKinds[] = {
    {"IFCLENGTHMEASURE", "LENGTH"}, {"IFCPOSITIVELENGTHMEASURE", "LENGTH"}, {"IFCAREAMEASURE", "AREA"},
    {"IFCVOLUMEMEASURE", "VOLUME"}, {"IFCMASSMEASURE", "WEIGHT"},           {"IFCTIMEMEASURE", "TIME"},
    {"IFCCOUNTMEASURE", "COUNT"}};

std::optional<std::vector<std::string>> asQuantity(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                                   const sdai::Type& to) {
    const auto* wanted = to.resolved().asEntity();
    if (wanted == nullptr || wanted->name() != "IFCPHYSICALQUANTITY") return std::nullopt;
    const sdai::Model& model = rebuilding.source();
    const sdai::EntityDefinition* entity = entityOf(model, encoded);
    if (entity == nullptr || entity->name() != "IFCMEASUREWITHUNIT") return std::nullopt;
    const std::uint64_t measure = sdai::decodeInstanceName(encoded);
    const std::string_view value = encodedOf(model, measure, "VALUECOMPONENT");
    const std::size_t open = value.find('(');
    for (const auto& [type, kind] : quantityKinds) {
        if (open == value.npos || value.substr(0, open) != type || value.back() != ')') continue;
        std::string name("IFCQUANTITY");
        RecordBuilder quantity(rebuilding.target(), name += kind);
        quantity.set("NAME", literal("BaseQuantity"));
        quantity.set(std::string(kind) + "VALUE", std::string(value.substr(open + 1, value.size() - open - 2)));
        const std::string_view unit = encodedOf(model, measure, "UNITCOMPONENT");
        const sdai::EntityDefinition* unitEntity = rebuilding.successorOf(sdai::decodeInstanceName(unit));
        // Without its unit it would be another quantity.
        if (unitEntity == nullptr || !unitEntity->isKindOf("IFCNAMEDUNIT")) return std::nullopt;
        quantity.set("UNIT", std::string(unit));
        return std::vector{reference(rebuilding.add(quantity))};
    }
    return std::nullopt;
}

Successor becomesSection(const Releases& releases, DXSdaiAppInstance& relationship) {
    const Successor successor = replacedBy(releases, relationship, "IFCRELASSOCIATESMATERIAL");
    return successor.entity != nullptr && releases.target.entity("IFCMATERIALPROFILESET") != nullptr
               ? successor
               : Successor::notHere();
}

void rebuildSection(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, "IFCRELASSOCIATESMATERIAL",
                                      {"RELATINGPROFILEPROPERTIES", "PROFILESECTIONLOCATION", "PROFILEORIENTATION"});
    for (const std::string_view attribute : {"PROFILESECTIONLOCATION", "PROFILEORIENTATION"})
        if (!isUnset(rebuilding.encoded(attribute))) rebuilding.note(noSection, std::string(attribute));
    const std::uint64_t properties = sdai::decodeInstanceName(rebuilding.encoded("RELATINGPROFILEPROPERTIES"));
    const std::string_view profile = encodedOf(rebuilding.source(), properties, "PROFILEDEFINITION");
    if (rebuilding.successorOf(sdai::decodeInstanceName(profile)) != nullptr) {
        RecordBuilder section(rebuilding.target(), "IFCMATERIALPROFILE");
        section.set("NAME", std::string(encodedOf(rebuilding.source(), properties, "PROFILENAME")));
        section.set("PROFILE", std::string(profile));
        RecordBuilder set(rebuilding.target(), "IFCMATERIALPROFILESET");
        set.set("MATERIALPROFILES", listOf({reference(rebuilding.add(section))}));
        record.set("RELATINGMATERIAL", reference(rebuilding.add(set)));
    }
    rebuilding.become(record);
}

constexpr RebuildRule rebuilds[] = {
    {impacts, "IFCENVIRONMENTALIMPACTVALUE", becomesImpact, nullptr, rebuildImpact},
    {components, "IFCAPPLIEDVALUERELATIONSHIP", absorb, planComponents},
    {moreComponents, "IFCAPPLIEDVALUERELATIONSHIP", lostWhereLacking},
    {itemValues, "IFCRELASSOCIATESAPPLIEDVALUE", absorbOfItems, planItems},
    {objectValues, "IFCRELASSOCIATESAPPLIEDVALUE", becomesAssignment, planItems, rebuildAssignment},
    {sections, "IFCRELASSOCIATESPROFILEPROPERTIES", becomesSection, nullptr, rebuildSection},
    {noSection, "IFCRELASSOCIATESPROFILEPROPERTIES", notHere},
};

constexpr ValueRule values[] = {{quantities, asQuantity}};

} // namespace

RuleTable costRules() {
    return {.rebuild = rebuilds, .values = values};
}

} // namespace velkor::exchange::forward
