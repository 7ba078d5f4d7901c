// Classifications, documents, libraries, approvals, constraints and costs of releases that relate them otherwise.
#include "RecordText.h"
#include "release/RuleBook.h"
#include "release/rules/BackwardTables.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <array>

namespace velkor::exchange {

namespace {

constexpr ConversionRule hierarchy{"classification-levels", Effect::Lost,
                                   "A classification reference names its classification instead of the level above",
                                   "IFC2X3 has references of one level alone"};
constexpr ConversionRule system{"classification-system", Effect::Converted,
                                "A classification that objects refer to as a whole gets a reference of its name",
                                "IFC2X3 classifies by references alone"};
constexpr ConversionRule formats{"electronic-format", Effect::Converted,
                                 "The format of a document becomes one of its media type or file extension",
                                 "IFC2X3 has an instance for it"};
constexpr ConversionRule documents{"document-references", Effect::Converted,
                                   "References to a document and its location are listed by the document",
                                   "IFC2X3 goes from the document to the references"};
constexpr ConversionRule libraries{"library-references", Effect::Converted,
                                   "References to a library are listed by the library",
                                   "IFC2X3 goes from the library to the references"};
constexpr ConversionRule classified{"material-classification", Effect::Rebuilt,
                                    "A classification of materials becomes one relationship for each material",
                                    "IFC2X3 has that for materials"};
constexpr ConversionRule external{"external-references", Effect::Lost,
                                  "External references of other resources than materials are dropped",
                                  "IFC2X3 relates references to objects and classifications to materials"};
constexpr ConversionRule approved{"property-approval", Effect::Rebuilt,
                                  "An approval of resources becomes one of the properties among them",
                                  "IFC2X3 has approvals of properties, and of objects"};
constexpr ConversionRule constrained{"property-constraint", Effect::Rebuilt,
                                     "A constraint of resources becomes one of the properties among them",
                                     "IFC2X3 has constraints of properties, and of objects"};
constexpr ConversionRule resources{"resource-relationship", Effect::Lost,
                                   "Approvals and constraints of other resources than properties are dropped",
                                   "IFC2X3 has none of those"};
constexpr ConversionRule approvals{"approvals-one-by-one", Effect::Rebuilt,
                                   "A relationship to several approvals becomes one for each",
                                   "IFC2X3 relates one approval at a time"};
constexpr ConversionRule costValue{"cost-value", Effect::Rebuilt, "An applied value becomes a cost value",
                                   "IFC2X3 has no applied values but costs and impacts"};
constexpr ConversionRule components{"cost-components", Effect::Rebuilt,
                                    "The components of a value become a relationship between them and the total",
                                    "IFC2X3 says so what a value is calculated from"};
constexpr ConversionRule itemCosts{"cost-item-values", Effect::Rebuilt,
                                   "Values and quantities of a cost item are related to it",
                                   "IFC2X3 has relationships for them instead of attributes"};

std::optional<std::vector<std::string>> wholeClassification(Rebuilding& rebuilding, std::string_view encoded,
                                                            const sdai::Type&, const sdai::Type& to) {
    const sdai::Model& model = rebuilding.source();
    std::uint64_t id = sdai::decodeInstanceName(encoded);
    if (id == 0 || !takesEntity(to, "IFCCLASSIFICATION")) return std::nullopt;
    // Deeper hierarchies than any that is published are cycles.
    for (int level = 0; level < 32; ++level) {
        const sdai::EntityDefinition* entity = entityOf(model, id);
        if (entity == nullptr) return std::nullopt;
        if (entity->isKindOf("IFCCLASSIFICATION"))
            return level > 0 ? std::optional(std::vector{reference(id)}) : std::nullopt;
        if (!entity->isKindOf("IFCCLASSIFICATIONREFERENCE")) return std::nullopt;
        id = sdai::decodeInstanceName(encodedOf(model, id, "REFERENCEDSOURCE"));
        if (id == 0) return std::nullopt;
    }
    return std::nullopt;
}

std::uint64_t addClassificationReference(Rebuilding& rebuilding, std::string_view key) {
    const std::string_view source = key.substr(key.rfind('#'));
    RecordBuilder record(rebuilding.target(), "IFCCLASSIFICATIONREFERENCE");
    record.set("NAME", std::string(encodedOf(rebuilding.source(), sdai::decodeInstanceName(source), "NAME")));
    record.set("REFERENCEDSOURCE", std::string(source));
    return rebuilding.add(record);
}

std::optional<std::vector<std::string>> systemReference(Rebuilding& rebuilding, std::string_view encoded,
                                                        const sdai::Type&, const sdai::Type& to) {
    const std::uint64_t id = sdai::decodeInstanceName(encoded);
    const sdai::EntityDefinition* entity = id == 0 ? nullptr : entityOf(rebuilding.source(), id);
    if (entity == nullptr || !entity->isKindOf("IFCCLASSIFICATION") || rebuilding.successorOf(id) == nullptr ||
        to.resolved().asSelect() == nullptr || !takesEntity(to, "IFCCLASSIFICATIONREFERENCE"))
        return std::nullopt;
    return std::vector{reference(rebuilding.shared("reference to " + reference(id), addClassificationReference))};
}

std::uint64_t addFormat(Rebuilding& rebuilding, std::string_view key) {
    const std::string text = sdai::decodeString(key.substr(key.find('\'')));
    const std::size_t slash = text.find('/');
    RecordBuilder record(rebuilding.target(), "IFCDOCUMENTELECTRONICFORMAT");
    if (slash == text.npos) {
        record.set("FILEEXTENSION", literal(text));
    } else {
        record.set("MIMECONTENTTYPE", literal(std::string_view(text).substr(0, slash)));
        record.set("MIMESUBTYPE", literal(std::string_view(text).substr(slash + 1)));
    }
    return rebuilding.add(record);
}

std::optional<std::vector<std::string>> format(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                               const sdai::Type& to) {
    const auto* entity = to.resolved().asEntity();
    if (entity == nullptr || entity->name() != "IFCDOCUMENTELECTRONICFORMAT" || !encoded.starts_with('\''))
        return std::nullopt;
    std::string key("electronic format ");
    return std::vector{reference(rebuilding.shared(key += encoded, addFormat))};
}

/// Whether only the target has an attribute of an entity.
bool isGained(const Releases& releases, const DXSdaiAppInstance& instance, std::string_view attribute) {
    const sdai::EntityDefinition* same = releases.target.entity(instance.entity()->name());
    return same != nullptr && same->attributeIndex(attribute) >= 0 && instance.entity()->attributeIndex(attribute) < 0;
}

Successor listsReferences(const Releases& releases, DXSdaiAppInstance& document) {
    return isGained(releases, document, "DOCUMENTREFERENCES") ? Successor::of(releases, "IFCDOCUMENTINFORMATION")
                                                              : Successor::notHere();
}

Successor listsLibraryReferences(const Releases& releases, DXSdaiAppInstance& library) {
    return isGained(releases, library, "LIBRARYREFERENCE") ? Successor::of(releases, "IFCLIBRARYINFORMATION")
                                                           : Successor::notHere();
}

/// The users of an instance that refer to it with one attribute.
std::vector<std::string> referencesTo(Planning& planning, std::uint64_t id, std::string_view attribute) {
    std::vector<std::string> found;
    for (const std::uint64_t user : planning.users(id))
        if (sdai::decodeInstanceName(encodedOf(planning.source(), user, attribute)) == id)
            found.push_back(reference(user));
    return found;
}

bool planReferences(Planning& planning, DXSdaiAppInstance& document) {
    std::vector<std::string> references = referencesTo(planning, document.id(), "REFERENCEDDOCUMENT");
    if (const sdai::Primitive location = document.GetAttr("LOCATION"); location.isSet()) {
        RecordBuilder record(planning.releases().target, "IFCDOCUMENTREFERENCE");
        record.set("LOCATION", std::string(location.encoded()));
        references.push_back(reference(planning.add(record)));
    }
    if (!references.empty()) planning.setLater(document.id(), "DOCUMENTREFERENCES", listOf(references));
    return true;
}

bool planLibraryReferences(Planning& planning, DXSdaiAppInstance& library) {
    const std::vector<std::string> references = referencesTo(planning, library.id(), "REFERENCEDLIBRARY");
    if (!references.empty()) planning.setLater(library.id(), "LIBRARYREFERENCE", listOf(references));
    return true;
}

/// Goes by name, but for one attribute that others say.
template <const char* const& Attribute>
void rebuildWithout(Rebuilding& rebuilding) {
    static_cast<void>(rebuilding.encoded(Attribute));
    rebuilding.become(rebuilding.carried(*rebuilding.target().entity(rebuilding.entity().name())));
}

constexpr const char* location = "LOCATION";
constexpr const char* referencedDocument = "REFERENCEDDOCUMENT";
constexpr const char* referencedLibrary = "REFERENCEDLIBRARY";

template <const char* const& Attribute>
Successor losesAttribute(const Releases& releases, DXSdaiAppInstance& instance) {
    const sdai::EntityDefinition* same = releases.target.entity(instance.entity()->name());
    if (same == nullptr || same->attributeIndex(Attribute) >= 0 || !instance.GetAttr(Attribute).isSet())
        return Successor::notHere();
    return Successor::of(releases, instance.entity()->name());
}

/// What a relationship relates of one kind.
std::vector<std::uint64_t> relatedOf(const sdai::Model& model, std::string_view encoded, std::string_view kind) {
    std::vector<std::uint64_t> ids;
    eachReference(encoded, [&](std::uint64_t id) {
        const sdai::EntityDefinition* entity = entityOf(model, id);
        if (entity != nullptr && entity->isKindOf(kind)) ids.push_back(id);
    });
    return ids;
}

Successor becomesMaterialClassification(const Releases& releases, DXSdaiAppInstance& relationship) {
    if (releases.target.entity(relationship.entity()->name()) != nullptr) return Successor::notHere();
    const std::uint64_t id = sdai::decodeInstanceName(relationship.GetAttr("RELATINGREFERENCE").encoded());
    const sdai::EntityDefinition* entity = entityOf(relationship.model(), id);
    const bool isFit =
        entity != nullptr && entity->isKindOf("IFCCLASSIFICATIONREFERENCE") &&
        !relatedOf(relationship.model(), relationship.GetAttr("RELATEDRESOURCEOBJECTS").encoded(), "IFCMATERIAL")
             .empty();
    return isFit ? Successor::of(releases, "IFCMATERIALCLASSIFICATIONRELATIONSHIP") : Successor::notHere();
}

void rebuildMaterialClassification(Rebuilding& rebuilding) {
    RecordBuilder record(rebuilding.target(), "IFCMATERIALCLASSIFICATIONRELATIONSHIP");
    record.set("MATERIALCLASSIFICATIONS", listOf({std::string(rebuilding.encoded("RELATINGREFERENCE"))}));
    const std::string_view related = rebuilding.encoded("RELATEDRESOURCEOBJECTS");
    bool isFirst = true;
    for (const std::uint64_t material : relatedOf(rebuilding.source(), related, "IFCMATERIAL")) {
        record.set("CLASSIFIEDMATERIAL", reference(material));
        if (!isFirst) rebuilding.add(record);
        if (std::exchange(isFirst, false)) rebuilding.become(record);
    }
    eachReference(related, [&](std::uint64_t id) {
        const sdai::EntityDefinition* entity = entityOf(rebuilding.source(), id);
        if (entity != nullptr && !entity->isKindOf("IFCMATERIAL")) rebuilding.note(external, reference(id));
    });
}

struct Relationship {
    const char* target;
    const char* single;
    const char* singleBefore;
    const char* several;
};
constexpr Relationship relationships[] = {
    {"IFCAPPROVALPROPERTYRELATIONSHIP", "APPROVAL", "RELATINGAPPROVAL", "APPROVEDPROPERTIES"},
    {"IFCPROPERTYCONSTRAINTRELATIONSHIP", "RELATINGCONSTRAINT", "RELATINGCONSTRAINT", "RELATEDPROPERTIES"}};

template <std::size_t Index>
Successor becomesOfProperties(const Releases& releases, DXSdaiAppInstance& relationship) {
    const bool isFit =
        !relatedOf(relationship.model(), relationship.GetAttr("RELATEDRESOURCEOBJECTS").encoded(), "IFCPROPERTY")
             .empty();
    return isFit ? replacedBy(releases, relationship, relationships[Index].target) : Successor::notHere();
}

template <std::size_t Index>
void rebuildOfProperties(Rebuilding& rebuilding) {
    constexpr const Relationship& names = relationships[Index];
    const sdai::EntityDefinition& target = *rebuilding.target().entity(names.target);
    RecordBuilder record = rebuilding.carried(target);
    carry(rebuilding, names.singleBefore, record, names.single);
    carry(rebuilding, "RELATEDRESOURCEOBJECTS", record, names.several);
    rebuilding.become(record);
}

Successor becomesApprovals(const Releases& releases, DXSdaiAppInstance& relationship) {
    if (!isGained(releases, relationship, "RELATEDAPPROVAL") ||
        relationship.GetAttr("RELATEDAPPROVALS").asAggregate().memberCount() < 2)
        return Successor::notHere();
    return Successor::of(releases, "IFCAPPROVALRELATIONSHIP");
}

void rebuildApprovals(Rebuilding& rebuilding) {
    RecordBuilder record(rebuilding.target(), "IFCAPPROVALRELATIONSHIP");
    for (const char* attribute : {"RELATINGAPPROVAL", "NAME", "DESCRIPTION"})
        carry(rebuilding, attribute, record, attribute);
    if (isUnset(record.value("NAME"))) record.set("NAME", literal({}));
    bool isFirst = true;
    eachReference(rebuilding.encoded("RELATEDAPPROVALS"), [&](std::uint64_t id) {
        if (rebuilding.successorOf(id) == nullptr) return;
        record.set("RELATEDAPPROVAL", reference(id));
        if (!isFirst) rebuilding.add(record);
        if (std::exchange(isFirst, false)) rebuilding.become(record);
    });
}

Successor becomesCostValue(const Releases& releases, DXSdaiAppInstance& value) {
    const sdai::EntityDefinition* same = releases.target.entity("IFCAPPLIEDVALUE");
    if (same == nullptr || same->attributeIndex("COMPONENTS") >= 0) return Successor::notHere();
    const bool isPlain = value.entity()->name() == "IFCAPPLIEDVALUE";
    return isPlain && same->isAbstract() ? Successor::of(releases, "IFCCOSTVALUE") : Successor::notHere();
}

Successor becomesTotal(const Releases& releases, DXSdaiAppInstance& value) {
    const sdai::EntityDefinition* same = releases.target.entity("IFCAPPLIEDVALUE");
    if (same == nullptr || same->attributeIndex("COMPONENTS") >= 0 || !value.GetAttr("COMPONENTS").isSet() ||
        !value.GetAttr("ARITHMETICOPERATOR").isSet())
        return Successor::notHere();
    return Successor::of(releases, "IFCCOSTVALUE");
}

void rebuildCostValue(Rebuilding& rebuilding) {
    RecordBuilder value = rebuilding.carried(*rebuilding.target().entity("IFCCOSTVALUE"));
    const std::string category(rebuilding.encoded("CATEGORY"));
    value.set("COSTTYPE", isUnset(category) ? literal({}) : category);
    rebuilding.become(value);
}

void rebuildTotal(Rebuilding& rebuilding) {
    rebuildCostValue(rebuilding);
    RecordBuilder record(rebuilding.target(), "IFCAPPLIEDVALUERELATIONSHIP");
    record.set("COMPONENTOFTOTAL", reference(rebuilding.id()));
    // What the target has no operator for, the components do not add up to.
    auto how = rebuilding.translated(rebuilding.encoded("ARITHMETICOPERATOR"),
                                     attributeType(rebuilding.entity(), "ARITHMETICOPERATOR"),
                                     attributeType(record.entity(), "ARITHMETICOPERATOR"));
    if (!how) return rebuilding.note(rules::noEnumerator, "ARITHMETICOPERATOR");
    record.set("ARITHMETICOPERATOR", std::move(*how));
    const std::string parts(rebuilding.encoded("COMPONENTS"));
    if (auto members = rebuilding.translated(parts, attributeType(rebuilding.entity(), "COMPONENTS"),
                                             attributeType(record.entity(), "COMPONENTS"))) {
        record.set("COMPONENTS", std::move(*members));
        rebuilding.add(record);
    }
}

Successor becomesPlainItem(const Releases& releases, DXSdaiAppInstance& item) {
    const sdai::EntityDefinition* same = releases.target.entity("IFCCOSTITEM");
    const bool isHere = same != nullptr && same->attributeIndex("COSTVALUES") < 0 &&
                        releases.target.entity("IFCRELASSOCIATESAPPLIEDVALUE") != nullptr &&
                        (item.GetAttr("COSTVALUES").isSet() || item.GetAttr("COSTQUANTITIES").isSet());
    return isHere ? Successor::of(releases, "IFCCOSTITEM") : Successor::notHere();
}

void rebuildItem(Rebuilding& rebuilding) {
    const RecordBuilder item = rebuilding.carried(*rebuilding.target().entity("IFCCOSTITEM"));
    rebuilding.become(item);
    const std::string self = listOf({reference(rebuilding.id())});
    eachReference(rebuilding.encoded("COSTVALUES"), [&](std::uint64_t id) {
        if (rebuilding.successorOf(id) == nullptr) return;
        RecordBuilder record(rebuilding.target(), "IFCRELASSOCIATESAPPLIEDVALUE");
        record.set("GLOBALID", newIdentifier(rebuilding, reference(id)));
        record.set("OWNERHISTORY", std::string(item.value("OWNERHISTORY")));
        record.set("RELATEDOBJECTS", self);
        record.set("RELATINGAPPLIEDVALUE", reference(id));
        rebuilding.add(record);
    });
    const std::string quantities(rebuilding.encoded("COSTQUANTITIES"));
    if (isUnset(quantities)) return;
    RecordBuilder set(rebuilding.target(), "IFCELEMENTQUANTITY");
    auto members = rebuilding.translated(quantities, attributeType(rebuilding.entity(), "COSTQUANTITIES"),
                                         attributeType(set.entity(), "QUANTITIES"));
    if (!members) return;
    set.set("GLOBALID", newIdentifier(rebuilding, "IFCELEMENTQUANTITY"));
    set.set("OWNERHISTORY", std::string(item.value("OWNERHISTORY")));
    set.set("NAME", literal("CostQuantities"));
    set.set("QUANTITIES", std::move(*members));
    RecordBuilder record(rebuilding.target(), "IFCRELDEFINESBYPROPERTIES");
    record.set("GLOBALID", newIdentifier(rebuilding, "IFCRELDEFINESBYPROPERTIES"));
    record.set("OWNERHISTORY", std::string(item.value("OWNERHISTORY")));
    record.set("RELATEDOBJECTS", self);
    record.set("RELATINGPROPERTYDEFINITION", reference(rebuilding.add(set)));
    rebuilding.add(record);
}

constexpr RebuildRule rebuilds[] = {
    {documents, "IFCDOCUMENTINFORMATION", listsReferences, planReferences, rebuildWithout<location>},
    {documents, "IFCDOCUMENTREFERENCE", losesAttribute<referencedDocument>, nullptr,
     rebuildWithout<referencedDocument>},
    {libraries, "IFCLIBRARYINFORMATION", listsLibraryReferences, planLibraryReferences},
    {libraries, "IFCLIBRARYREFERENCE", losesAttribute<referencedLibrary>, nullptr, rebuildWithout<referencedLibrary>},
    {classified, "IFCEXTERNALREFERENCERELATIONSHIP", becomesMaterialClassification, nullptr,
     rebuildMaterialClassification},
    {external, "IFCEXTERNALREFERENCERELATIONSHIP", lostWhereLacking},
    {approved, "IFCRESOURCEAPPROVALRELATIONSHIP", becomesOfProperties<0>, nullptr, rebuildOfProperties<0>},
    {constrained, "IFCRESOURCECONSTRAINTRELATIONSHIP", becomesOfProperties<1>, nullptr, rebuildOfProperties<1>},
    {resources, "IFCRESOURCEAPPROVALRELATIONSHIP", lostWhereLacking},
    {resources, "IFCRESOURCECONSTRAINTRELATIONSHIP", lostWhereLacking},
    {approvals, "IFCAPPROVALRELATIONSHIP", becomesApprovals, nullptr, rebuildApprovals},
    {components, "IFCAPPLIEDVALUE", becomesTotal, nullptr, rebuildTotal},
    {costValue, "IFCAPPLIEDVALUE", becomesCostValue, nullptr, rebuildCostValue},
    {itemCosts, "IFCCOSTITEM", becomesPlainItem, nullptr, rebuildItem},
};

constexpr ValueRule values[] = {
    {hierarchy, wholeClassification},
    {system, systemReference},
    {formats, format},
};

} // namespace

std::span<const RebuildRule> backwardReferenceRules() {
    return rebuilds;
}

std::span<const ValueRule> backwardReferenceValues() {
    return values;
}

} // namespace velkor::exchange
