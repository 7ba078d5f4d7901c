// What stands for elements, spatial elements and their relationships in releases that lack them.
#include "identifiers/DerivedIdentifier.h"
#include "RecordText.h"
#include "release/Rebuilding.h"
#include "release/rules/forward/ForwardTables.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

namespace velkor::exchange {

namespace {

/// The record of another entity, with the name of the instance's own where that says something and is free.
RecordBuilder namedAfterSource(Rebuilding& rebuilding, std::string_view entity) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity(entity));
    if (isUnset(record.value("OBJECTTYPE"))) record.set("OBJECTTYPE", literal(rebuilding.entity().name()));
    return record;
}

// Styles of IFC2X3 are types since IFC4, and doors and windows want those.
Successor becomesDoorType(const Releases& releases, DXSdaiAppInstance&) {
    return releases.source.entity("IFCDOORTYPE") == nullptr ? Successor::of(releases, "IFCDOORTYPE")
                                                            : Successor::notHere();
}

Successor becomesWindowType(const Releases& releases, DXSdaiAppInstance&) {
    return releases.source.entity("IFCWINDOWTYPE") == nullptr ? Successor::of(releases, "IFCWINDOWTYPE")
                                                              : Successor::notHere();
}

Successor becomesDoorStyle(const Releases& releases, DXSdaiAppInstance& type) {
    return replacedBy(releases, type, "IFCDOORSTYLE");
}

Successor becomesWindowStyle(const Releases& releases, DXSdaiAppInstance& type) {
    return replacedBy(releases, type, "IFCWINDOWSTYLE");
}

/// Where the two entities call one thing by two names.
void rebuildWith(Rebuilding& rebuilding, std::string_view entity, std::string_view from, std::string_view to) {
    const sdai::EntityDefinition& target = *rebuilding.target().entity(entity);
    RecordBuilder record = rebuilding.carried(target);
    if (rebuilding.entity().attributeIndex(from) >= 0)
        if (auto value = rebuilding.translated(rebuilding.encoded(from), attributeType(rebuilding.entity(), from),
                                               attributeType(target, to)))
            record.set(to, std::move(*value));
    rebuilding.become(record);
}

/// What types have no attributes for is said by properties, unless it is what a style has anyway.
void keepStyle(Rebuilding& rebuilding, RecordBuilder& record, std::string_view name) {
    std::vector<std::string_view> attributes;
    if (rebuilding.encoded("CONSTRUCTIONTYPE") != ".NOTDEFINED.") attributes.push_back("ConstructionType");
    if (rebuilding.encoded("SIZEABLE") != ".F.") attributes.push_back("Sizeable");
    const std::vector<std::string> properties = forward::propertiesOf(rebuilding, attributes);
    if (properties.empty()) return;
    RecordBuilder set = objectBeside(rebuilding, "IFCPROPERTYSET", name);
    set.set("NAME", literal(name));
    set.set("HASPROPERTIES", listOf(properties));
    std::string sets(record.value("HASPROPERTYSETS"));
    if (isUnset(sets))
        sets.assign(1, '(');
    else
        sets.back() = ',';
    record.set("HASPROPERTYSETS", (sets += reference(rebuilding.add(set))) += ')');
}

void rebuildDoorType(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCDOORTYPE"));
    keepStyle(rebuilding, record, "IfcDoorStyle");
    rebuilding.become(record);
}

void rebuildWindowType(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCWINDOWTYPE"));
    carry(rebuilding, "OPERATIONTYPE", record, "PARTITIONINGTYPE");
    keepStyle(rebuilding, record, "IfcWindowStyle");
    rebuilding.become(record);
}

void rebuildWindowStyle(Rebuilding& rebuilding) {
    rebuildWith(rebuilding, "IFCWINDOWSTYLE", "PARTITIONINGTYPE", "OPERATIONTYPE");
}

Successor becomesBuilding(const Releases& releases, DXSdaiAppInstance& facility) {
    return replacedBy(releases, facility, "IFCBUILDING");
}

void rebuildFacility(Rebuilding& rebuilding) {
    rebuilding.become(namedAfterSource(rebuilding, "IFCBUILDING"));
}

void rebuildFacilityPart(Rebuilding& rebuilding) {
    RecordBuilder record = namedAfterSource(rebuilding, "IFCBUILDING");
    record.set("COMPOSITIONTYPE", enumerator("PARTIAL"));
    rebuilding.become(record);
}

Successor becomesSpace(const Releases& releases, DXSdaiAppInstance& zone) {
    return replacedBy(releases, zone, "IFCSPACE");
}

void rebuildZone(Rebuilding& rebuilding) {
    RecordBuilder record = namedAfterSource(rebuilding, "IFCSPACE");
    record.set("COMPOSITIONTYPE", enumerator("ELEMENT"));
    rebuilding.become(record);
}

void rebuildOutside(Rebuilding& rebuilding) {
    RecordBuilder record = namedAfterSource(rebuilding, "IFCSPACE");
    record.set("COMPOSITIONTYPE", enumerator("ELEMENT"));
    record.set("INTERIOROREXTERIORSPACE", enumerator("EXTERNAL"));
    rebuilding.become(record);
}

Successor becomesProxy(const Releases& releases, DXSdaiAppInstance& proxy) {
    return replacedBy(releases, proxy, "IFCBUILDINGELEMENTPROXY");
}

void rebuildProxy(Rebuilding& rebuilding) {
    rebuilding.become(rebuilding.carried(*rebuilding.target().entity("IFCBUILDINGELEMENTPROXY")));
}

// Exact where the file says the place in space too.
Successor becomesLocalPlacement(const Releases& releases, DXSdaiAppInstance& placement) {
    const sdai::EntityDefinition* same = releases.target.entity(placement.entity()->name());
    const bool isSame = same != nullptr && same->attributeIndex("RELATIVEPLACEMENT") >= 0;
    if (isSame || placement.GetAttr("CARTESIANPOSITION").asInstance() == nullptr) return Successor::notHere();
    return Successor::of(releases, "IFCLOCALPLACEMENT");
}

void rebuildLinearPlacement(Rebuilding& rebuilding) {
    RecordBuilder record(rebuilding.target(), "IFCLOCALPLACEMENT");
    record.set("RELATIVEPLACEMENT", std::string(rebuilding.encoded("CARTESIANPOSITION")));
    rebuilding.become(record);
}

// One relationship for each set where a release takes one set at a time.
Successor becomesSeveral(const Releases& releases, DXSdaiAppInstance& relationship) {
    const sdai::EntityDefinition* same = releases.target.entity("IFCRELDEFINESBYPROPERTIES");
    if (same == nullptr || attributeType(*same, "RELATINGPROPERTYDEFINITION").resolved().asSelect() != nullptr)
        return Successor::notHere();
    const bool isSet =
        relationship.GetAttr("RELATINGPROPERTYDEFINITION").encoded().starts_with("IFCPROPERTYSETDEFINITIONSET");
    return isSet ? Successor::of(releases, "IFCRELDEFINESBYPROPERTIES") : Successor::notHere();
}

void rebuildSeveral(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCRELDEFINESBYPROPERTIES"));
    std::vector<std::uint64_t> sets;
    eachReference(rebuilding.encoded("RELATINGPROPERTYDEFINITION"), [&](std::uint64_t id) {
        if (rebuilding.successorOf(id) != nullptr) sets.push_back(id);
    });
    for (std::size_t i = 0; i < sets.size(); ++i) {
        record.set("RELATINGPROPERTYDEFINITION", reference(sets[i]));
        if (i == 0) {
            rebuilding.become(record);
        } else {
            record.set("GLOBALID", identifierBeside(rebuilding, std::to_string(i)));
            rebuilding.add(record);
        }
    }
    if (sets.empty()) rebuilding.become(record);
}

Successor becomesDefinition(const Releases& releases, DXSdaiAppInstance& overriding) {
    return replacedBy(releases, overriding, "IFCRELDEFINESBYPROPERTIES");
}

void rebuildOverriding(Rebuilding& rebuilding) {
    const sdai::EntityDefinition& target = *rebuilding.target().entity("IFCRELDEFINESBYPROPERTIES");
    const RecordBuilder base = rebuilding.carried(target);
    RecordBuilder set(rebuilding.target(), "IFCPROPERTYSET");
    set.set("GLOBALID", identifierBeside(rebuilding, "IFCPROPERTYSET"));
    set.set("OWNERHISTORY", std::string(base.value("OWNERHISTORY")));
    const std::uint64_t overridden = sdai::decodeInstanceName(rebuilding.encoded("RELATINGPROPERTYDEFINITION"));
    if (const auto number = rebuilding.source().file().find(overridden))
        set.set("NAME", std::string(parameterOf(rebuilding.source(), *number, "NAME")));
    set.set("HASPROPERTIES", std::string(rebuilding.encoded("OVERRIDINGPROPERTIES")));
    RecordBuilder more = base;
    more.set("GLOBALID", identifierBeside(rebuilding, "IFCRELDEFINESBYPROPERTIES"));
    more.set("RELATINGPROPERTYDEFINITION", reference(rebuilding.add(set)));
    rebuilding.add(more);
    rebuilding.become(base);
}

constexpr ConversionRule styleToType{
    "style-to-type", Effect::Rebuilt,
    "Door and window styles become door and window types; their construction, and that "
    "they are sizeable, become properties",
    "Since IFC4 doors and windows have types like all other elements"};
constexpr ConversionRule typeToStyle{"type-to-style", Effect::Rebuilt,
                                     "Door and window types become door and window styles",
                                     "IFC2X3 says what doors and windows have in common with styles"};
constexpr ConversionRule facility{
    "facility-to-building", Effect::Rebuilt,
    "A bridge, road, railway or marine facility becomes a building that is called so in ObjectType",
    "Buildings are the only structures of the release; what stands in it stays there"};
constexpr ConversionRule facilityPart{"facility-part-to-building", Effect::Rebuilt,
                                      "A part of a facility becomes a partial building that is called so in ObjectType",
                                      "A building may be part of a building, and holds what the part held"};
constexpr ConversionRule zone{"zone-to-space", Effect::Rebuilt,
                              "A spatial zone becomes a space that is called so in ObjectType",
                              "Spaces are the only parts of IFC2X3's structure with any boundary"};
constexpr ConversionRule outside{"outside-to-space", Effect::Rebuilt, "The space outside becomes an external space",
                                 "IFC2X3 tells spaces inside from those outside by an attribute"};
constexpr ConversionRule proxy{"proxy-to-element", Effect::Rebuilt, "A proxy becomes a building element proxy",
                               "The general proxy was taken out; nothing else stands for any product"};
constexpr ConversionRule linear{"linear-to-local-placement", Effect::Rebuilt,
                                "A linear placement becomes a local one at the position that it gives in space",
                                "The file says the same place in both ways"};
constexpr ConversionRule several{"sets-one-by-one", Effect::Rebuilt,
                                 "A relationship to several property sets becomes one for each",
                                 "IFC2X3 relates one set at a time"};
constexpr ConversionRule overriding{"overriding-set", Effect::Rebuilt,
                                    "Properties that override those of a set stand in a set of their own of that name",
                                    "Since IFC4 a set that an object has overrides that of its type by name"};

constexpr RebuildRule rebuilds[] = {
    {styleToType, "IFCDOORSTYLE", becomesDoorType, nullptr, rebuildDoorType},
    {styleToType, "IFCWINDOWSTYLE", becomesWindowType, nullptr, rebuildWindowType},
    {typeToStyle, "IFCDOORTYPE", becomesDoorStyle},
    {typeToStyle, "IFCWINDOWTYPE", becomesWindowStyle, nullptr, rebuildWindowStyle},
    {facility, "IFCFACILITY", becomesBuilding, nullptr, rebuildFacility},
    {facilityPart, "IFCFACILITYPART", becomesBuilding, nullptr, rebuildFacilityPart},
    {zone, "IFCSPATIALZONE", becomesSpace, nullptr, rebuildZone},
    {outside, "IFCEXTERNALSPATIALELEMENT", becomesSpace, nullptr, rebuildOutside},
    {proxy, "IFCPROXY", becomesProxy, nullptr, rebuildProxy},
    {linear, "IFCLINEARPLACEMENT", becomesLocalPlacement, nullptr, rebuildLinearPlacement},
    {several, "IFCRELDEFINESBYPROPERTIES", becomesSeveral, nullptr, rebuildSeveral},
    {overriding, "IFCRELOVERRIDESPROPERTIES", becomesDefinition, nullptr, rebuildOverriding},
};

constexpr ConversionRule precedence{
    "style-flags", Effect::Converted,
    "A style without them has the flags of one that neither takes precedence nor is sizeable",
    "IFC2X3 requires both, and types say nothing of the second"};

constexpr DefaultRule defaults[] = {
    {precedence, "IFCDOORSTYLE", "PARAMETERTAKESPRECEDENCE", ".F."},
    {precedence, "IFCDOORSTYLE", "SIZEABLE", ".F."},
    {precedence, "IFCWINDOWSTYLE", "PARAMETERTAKESPRECEDENCE", ".F."},
    {precedence, "IFCWINDOWSTYLE", "SIZEABLE", ".F."},
};

} // namespace

RuleTable elementRules() {
    return {.rebuild = rebuilds, .defaults = defaults};
}

} // namespace velkor::exchange
