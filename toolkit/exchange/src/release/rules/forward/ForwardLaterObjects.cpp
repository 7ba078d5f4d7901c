// What changed between IFC4 and the releases behind it.
#include "release/rules/forward/ForwardTables.h"

#include "RecordText.h"

#include "velkor/sdai/Part21Encoding.h"

namespace velkor::exchange::forward {

namespace {

constexpr ConversionRule standard{"standard-case", Effect::Converted, "A standard case becomes what it is a case of",
                                  "Later releases tell by the material usage alone that a case is a standard one"};
constexpr ConversionRule strata{"stratum-type", Effect::Rebuilt,
                                "A stratum of solids, water or nothing becomes a stratum of that type",
                                "Later releases tell strata apart by their predefined type"};
constexpr ConversionRule plants{"plant-to-vegetation", Effect::Rebuilt,
                                "A plant becomes a geographic element of type VEGETATION",
                                "Later releases have no entity for plants alone"};
constexpr ConversionRule parts{"facility-part", Effect::Rebuilt,
                               "A part of a facility becomes the part of a bridge, road, railway or marine facility "
                               "that its type is of, or a common one",
                               "The releases say by the entity, or by the list that the type is of, to what a part "
                               "belongs"};
constexpr ConversionRule usage{"facility-usage", Effect::Converted,
                               "A part of a facility has no defined usage where the target wants one",
                               "The source says nothing of it"};
constexpr ConversionRule pavements{"pavement-type", Effect::Rebuilt,
                                   "Flexible pavements are of type FLEXIBLE, the others of type RIGID",
                                   "Later releases say by the predefined type what was a flag"};
constexpr ConversionRule conversions{"map-scales", Effect::Rebuilt,
                                     "A map conversion with scales of its axes becomes a scaled one with factors",
                                     "Later releases have an entity of its own for it"};
constexpr ConversionRule measured{"measured-along", Effect::Rebuilt,
                                  "The curve that a linear placement is relative to becomes the one that it is "
                                  "measured along",
                                  "Later releases say what it is relative to and the curve apart"};
constexpr ConversionRule numbers{"number-quantity", Effect::Rebuilt, "A quantity of numbers becomes one of counts",
                                 "The target has no quantity for numbers alone"};
constexpr ConversionRule unitNames{"unit-name", Effect::Converted,
                                   "A derived unit without a name is called by its type",
                                   "The release requires a name"};
constexpr ConversionRule related{"related-kind", Effect::Converted,
                                 "The kind of the related objects is left out of an assignment",
                                 "Later releases have no such list; the objects themselves say of what kind they are"};
constexpr ConversionRule listed{"list-of-type", Effect::Converted,
                                "A predefined type stands with the name of the list that has it",
                                "The target has several lists there"};

Successor becomesCase(const Releases& releases, DXSdaiAppInstance& element) {
    std::string_view name = element.entity()->name();
    constexpr std::string_view ending = "STANDARDCASE";
    if (!name.ends_with(ending) || releases.target.entity(name) != nullptr) return Successor::notHere();
    name.remove_suffix(ending.size());
    return name == "IFCOPENING" ? Successor::of(releases, "IFCOPENINGELEMENT") : Successor::of(releases, name);
}

Successor becomesStratum(const Releases& releases, DXSdaiAppInstance& stratum) {
    const Successor successor = replacedBy(releases, stratum, "IFCGEOTECHNICALSTRATUM");
    const bool isTyped = successor.entity != nullptr && successor.entity->attributeIndex("PREDEFINEDTYPE") >= 0;
    return isTyped ? successor : Successor::notHere();
}

void rebuildStratum(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCGEOTECHNICALSTRATUM"));
    const std::string_view name = rebuilding.entity().name();
    record.set("PREDEFINEDTYPE", enumerator(name == "IFCSOLIDSTRATUM"  ? "SOLID"
                                            : name == "IFCVOIDSTRATUM" ? "VOID"
                                                                       : "WATER"));
    rebuilding.become(record);
}

Successor becomesVegetation(const Releases& releases, DXSdaiAppInstance& plant) {
    const Successor successor = replacedBy(releases, plant, "IFCGEOGRAPHICELEMENT");
    if (successor.entity == nullptr) return successor;
    const auto* types = attributeType(*successor.entity, "PREDEFINEDTYPE").resolved().asEnumeration();
    return types != nullptr && types->position("VEGETATION") >= 0 ? successor : Successor::notHere();
}

void rebuildPlant(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCGEOGRAPHICELEMENT"));
    record.set("PREDEFINEDTYPE", enumerator("VEGETATION"));
    if (isUnset(record.value("OBJECTTYPE"))) record.set("OBJECTTYPE", literal("IfcPlant"));
    rebuilding.become(record);
}

constexpr std::pair<std::string_view, std::string_view> partLists[] = {
    {"IFCBRIDGEPARTTYPEENUM", "IFCBRIDGEPART"},   {"IFCROADPARTTYPEENUM", "IFCROADPART"},
    {"IFCRAILWAYPARTTYPEENUM", "IFCRAILWAYPART"}, {"IFCMARINEPARTTYPEENUM", "IFCMARINEPART"},
    {"IFCTUNNELPARTTYPEENUM", "IFCTUNNELPART"},   {"IFCFACILITYPARTCOMMONTYPEENUM", "IFCFACILITYPARTCOMMON"},
};

/// Of a release that has parts of one kind to one that tells them apart by entities.
Successor becomesPart(const Releases& releases, DXSdaiAppInstance& part) {
    const Successor same = Successor::of(releases, part.entity()->name());
    if (same.entity != nullptr || releases.target.entity("IFCFACILITYPART") == nullptr) return Successor::notHere();
    const std::string_view type = part.GetAttr("PREDEFINEDTYPE").encoded();
    for (const auto& [list, entity] : partLists)
        if (type.starts_with(list))
            if (const Successor found = Successor::of(releases, entity); found.entity != nullptr) return found;
    // The other way, or a part without a type.
    const Successor common = Successor::of(releases, "IFCFACILITYPARTCOMMON");
    return common.entity != nullptr ? common : Successor::of(releases, "IFCFACILITYPART");
}

/// The list of a type is the one of the entity where it stands alone.
void rebuildPart(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, rebuilding.successorOf(rebuilding.id())->name());
    if (record.entity().attributeIndex("USAGETYPE") >= 0 && isUnset(record.value("USAGETYPE")))
        record.set("USAGETYPE", enumerator("NOTDEFINED"));
    // Where neither entity nor type say of what it is a part.
    const std::string_view name = rebuilding.entity().name();
    if (name != "IFCFACILITYPART" && isUnset(record.value("PREDEFINEDTYPE")) && isUnset(record.value("OBJECTTYPE")))
        record.set("OBJECTTYPE", literal(name));
    rebuilding.become(record);
}

Successor becomesPavement(const Releases& releases, DXSdaiAppInstance& pavement) {
    const Successor same = Successor::of(releases, pavement.entity()->name());
    const bool isHere = same.entity != nullptr && same.entity->attributeIndex("FLEXIBLE") < 0;
    return isHere && pavement.TestAttr("FLEXIBLE") ? same : Successor::notHere();
}

void rebuildPavement(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, rebuilding.entity().name(), {"FLEXIBLE"});
    record.set("PREDEFINEDTYPE", enumerator(rebuilding.encoded("FLEXIBLE") == ".T." ? "FLEXIBLE" : "RIGID"));
    rebuilding.become(record);
}

Successor becomesScaled(const Releases& releases, DXSdaiAppInstance& conversion) {
    const Successor same = Successor::of(releases, "IFCMAPCONVERSION");
    if (same.entity == nullptr || same.entity->attributeIndex("SCALEY") >= 0) return Successor::notHere();
    if (conversion.entity()->name() != "IFCMAPCONVERSION") return Successor::notHere();
    const bool isScaled = conversion.TestAttr("SCALEY") || conversion.TestAttr("SCALEZ");
    return isScaled ? Successor::of(releases, "IFCMAPCONVERSIONSCALED") : Successor::notHere();
}

void rebuildScaled(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, "IFCMAPCONVERSIONSCALED", {"SCALEY", "SCALEZ"});
    const std::string scale = isUnset(rebuilding.encoded("SCALE")) ? "1." : std::string(rebuilding.encoded("SCALE"));
    // The scale would multiply the factors.
    record.set("SCALE", "$");
    constexpr std::pair<std::string_view, std::string_view> factors[] = {
        {"SCALE", "FACTORX"}, {"SCALEY", "FACTORY"}, {"SCALEZ", "FACTORZ"}};
    constexpr std::pair<std::string_view, std::string_view> scales[] = {
        {"SCALE", "SCALEX"}, {"SCALEY", "SCALEY"}, {"SCALEZ", "SCALEZ"}};
    for (const auto& names : {factors, scales})
        for (std::size_t i = 0; i < 3; ++i) {
            const std::string_view own = rebuilding.encoded(names[i].first);
            record.set(names[i].second, isUnset(own) ? scale : std::string(own));
        }
    rebuilding.become(record);
}

Successor becomesMeasuredAlong(const Releases& releases, DXSdaiAppInstance& placement) {
    const Successor same = Successor::of(releases, "IFCLINEARPLACEMENT");
    const bool isHere = same.entity != nullptr && same.entity->attributeIndex("PLACEMENTMEASUREDALONG") >= 0 &&
                        placement.entity()->attributeIndex("PLACEMENTMEASUREDALONG") < 0 &&
                        placement.entity()->attributeIndex("DISTANCE") >= 0;
    return isHere ? same : Successor::notHere();
}

void rebuildMeasuredAlong(Rebuilding& rebuilding) {
    RecordBuilder record(rebuilding.target(), "IFCLINEARPLACEMENT");
    carry(rebuilding, "PLACEMENTRELTO", record, "PLACEMENTMEASUREDALONG");
    for (const std::string_view attribute : {"DISTANCE", "ORIENTATION", "CARTESIANPOSITION"})
        carry(rebuilding, attribute, record, attribute);
    rebuilding.become(record);
}

Successor becomesCount(const Releases& releases, DXSdaiAppInstance& quantity) {
    return replacedBy(releases, quantity, "IFCQUANTITYCOUNT");
}

void rebuildCount(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, "IFCQUANTITYCOUNT", {"NUMBERVALUE"});
    carry(rebuilding, "NUMBERVALUE", record, "COUNTVALUE");
    rebuilding.become(record);
}

std::optional<std::string> unitName(Rebuilding& rebuilding) {
    const std::string_view own = rebuilding.encoded("USERDEFINEDTYPE");
    if (!isUnset(own)) return std::string(own);
    std::string_view type = rebuilding.encoded("UNITTYPE");
    if (type.size() < 3 || type.front() != '.') return std::nullopt;
    return literal(type.substr(1, type.size() - 2));
}

std::optional<std::vector<std::string>> withoutKind(Rebuilding&, std::string_view, const sdai::Type& from,
                                                    const sdai::Type& to) {
    const auto* before = from.asDefined();
    const auto* after = to.asDefined();
    if (before == nullptr || after == nullptr || before->name() != "IFCOBJECTTYPEENUM" ||
        after->name() != "IFCSTRIPPEDOPTIONAL")
        return std::nullopt;
    return std::vector{std::string(sdai::omittedValue)};
}

std::optional<std::vector<std::string>> withList(Rebuilding& rebuilding, std::string_view encoded,
                                                 const sdai::Type& from, const sdai::Type& to) {
    const auto* select = to.resolved().asSelect();
    if (select == nullptr || encoded.size() < 3 || encoded.front() != '.') return std::nullopt;
    const auto* same =
        from.asDefined() == nullptr ? nullptr : rebuilding.target().definition().definedType(from.asDefined()->name());
    if (same != nullptr && select->accepts(*same)) return std::nullopt;
    for (const sdai::Type* item : select->items()) {
        const auto* list = item->resolved().asEnumeration();
        if (list != nullptr && list->position(encoded.substr(1, encoded.size() - 2)) >= 0)
            return std::vector{typed(list->definedType().name(), encoded)};
    }
    return std::nullopt;
}

constexpr RebuildRule rebuilds[] = {
    {standard, "IFCBEAMSTANDARDCASE", becomesCase},
    {standard, "IFCCOLUMNSTANDARDCASE", becomesCase},
    {standard, "IFCDOORSTANDARDCASE", becomesCase},
    {standard, "IFCMEMBERSTANDARDCASE", becomesCase},
    {standard, "IFCOPENINGSTANDARDCASE", becomesCase},
    {standard, "IFCPLATESTANDARDCASE", becomesCase},
    {standard, "IFCSLABSTANDARDCASE", becomesCase},
    {standard, "IFCWALLSTANDARDCASE", becomesCase},
    {standard, "IFCWINDOWSTANDARDCASE", becomesCase},
    {strata, "IFCSOLIDSTRATUM", becomesStratum, nullptr, rebuildStratum},
    {strata, "IFCVOIDSTRATUM", becomesStratum, nullptr, rebuildStratum},
    {strata, "IFCWATERSTRATUM", becomesStratum, nullptr, rebuildStratum},
    {plants, "IFCPLANT", becomesVegetation, nullptr, rebuildPlant},
    {parts, "IFCFACILITYPART", becomesPart, nullptr, rebuildPart},
    {pavements, "IFCPAVEMENT", becomesPavement, nullptr, rebuildPavement},
    {pavements, "IFCPAVEMENTTYPE", becomesPavement, nullptr, rebuildPavement},
    {conversions, "IFCMAPCONVERSION", becomesScaled, nullptr, rebuildScaled},
    {measured, "IFCLINEARPLACEMENT", becomesMeasuredAlong, nullptr, rebuildMeasuredAlong},
    {numbers, "IFCQUANTITYNUMBER", becomesCount, nullptr, rebuildCount},
};

constexpr ValueRule values[] = {{related, withoutKind}, {listed, withList}};

constexpr DefaultRule defaults[] = {
    {usage, "IFCFACILITYPART", "USAGETYPE", ".NOTDEFINED."},
    {unitNames, "IFCDERIVEDUNIT", "NAME", nullptr, unitName},
};

} // namespace

RuleTable laterObjectRules() {
    return {.rebuild = rebuilds, .values = values, .defaults = defaults};
}

} // namespace velkor::exchange::forward
