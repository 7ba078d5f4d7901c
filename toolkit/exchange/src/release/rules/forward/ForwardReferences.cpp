// Classifications, documents, libraries, approvals and constraints.
#include "release/rules/forward/ForwardTables.h"

#include "RecordText.h"

#include "velkor/sdai/Part21Encoding.h"

namespace velkor::exchange::forward {

namespace {

constexpr ConversionRule items{"classification-item", Effect::Rebuilt,
                               "An item of a classification becomes a reference with its notation as identification, "
                               "to the item above or to the classification",
                               "Since IFC4 the levels of a classification are references to one another"};
constexpr ConversionRule notations{"classification-notation", Effect::Rebuilt,
                                   "A notation becomes a reference whose identification are its facets",
                                   "Since IFC4 references alone say where in a classification something stands"};
constexpr ConversionRule formats{"format-to-text", Effect::Converted,
                                 "The electronic format of a document becomes its media type, or the file extension "
                                 "when it has none",
                                 "Since IFC4 the format is one text"};
constexpr ConversionRule extensions{"file-extension", Effect::Lost,
                                    "The file extension of a format that has a media type is dropped",
                                    "There is one text, and the media type says more"};
constexpr ConversionRule documents{"references-of-document", Effect::Rebuilt,
                                   "References of a document or library say themselves to which they belong",
                                   "Since IFC4 the reference refers to the information, not the other way round"};
constexpr ConversionRule relationships{"resource-relationship", Effect::Rebuilt,
                                       "Approvals and constraints of resources become relationships of the general "
                                       "kind",
                                       "Since IFC4 there is one relationship for all kinds of resources"};
constexpr ConversionRule actors{"approval-actor", Effect::Rebuilt,
                                "An actor of an approval becomes what the approval is related to; the role is its "
                                "name",
                                "Since IFC4 the relationship of resources holds for actors too"};
constexpr ConversionRule aggregations{"constraint-aggregation", Effect::Rebuilt,
                                      "An aggregation of constraints becomes a relationship of resources with the "
                                      "operator as its description when that is free",
                                      "Since IFC4 there is one relationship for all kinds of resources"};
constexpr ConversionRule external{"external-reference", Effect::Rebuilt,
                                  "Classifications and documents of resources become external references of them, "
                                  "a relationship for each",
                                  "Since IFC4 there is one relationship for all kinds of resources"};
constexpr ConversionRule fonts{"predefined-font", Effect::Rebuilt,
                               "A predefined font becomes an external one of that name",
                               "Since IFC4 no fonts are predefined, and the names are those of a standard"};

Successor becomesReference(const Releases& releases, DXSdaiAppInstance& item) {
    return replacedBy(releases, item, "IFCCLASSIFICATIONREFERENCE");
}

Successor absorb(const Releases& releases, DXSdaiAppInstance& instance) {
    return releases.target.entity(instance.entity()->name()) == nullptr ? Successor::absorbed() : Successor::notHere();
}

void rebuildItem(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, "IFCCLASSIFICATIONREFERENCE", {"NOTATION", "ITEMOF", "TITLE"});
    const std::uint64_t notation = sdai::decodeInstanceName(rebuilding.encoded("NOTATION"));
    record.set("IDENTIFICATION", std::string(encodedOf(rebuilding.source(), notation, "NOTATIONVALUE")));
    record.set("NAME", std::string(rebuilding.encoded("TITLE")));
    // The level above, when there is one.
    if (isUnset(record.value("REFERENCEDSOURCE"))) carry(rebuilding, "ITEMOF", record, "REFERENCEDSOURCE");
    rebuilding.become(record);
}

bool planLevels(Planning& planning, DXSdaiAppInstance& relationship) {
    const std::string_view above = relationship.GetAttr("RELATINGITEM").encoded();
    const std::uint64_t parent = sdai::decodeInstanceName(above);
    if (entityOf(planning.source(), parent) == nullptr) return false;
    for (const std::uint64_t id : idsOf(relationship.GetAttr("RELATEDITEMS").encoded()))
        if (id != parent) planning.setLater(id, "REFERENCEDSOURCE", reference(parent));
    return true;
}

void rebuildNotation(Rebuilding& rebuilding) {
    std::string text;
    for (const std::uint64_t facet : idsOf(rebuilding.encoded("NOTATIONFACETS"))) {
        if (!text.empty()) text += ' ';
        text += textOf(encodedOf(rebuilding.source(), facet, "NOTATIONVALUE"));
    }
    RecordBuilder record(rebuilding.target(), "IFCCLASSIFICATIONREFERENCE");
    record.set("IDENTIFICATION", literal(text));
    rebuilding.become(record);
}

std::optional<std::vector<std::string>> formatText(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                                   const sdai::Type& to) {
    if (to.resolved().kind() != sdai::TypeKind::String || !encoded.starts_with('#')) return std::nullopt;
    const sdai::Model& model = rebuilding.source();
    const std::uint64_t id = sdai::decodeInstanceName(encoded);
    const sdai::EntityDefinition* entity = entityOf(model, id);
    if (entity == nullptr || entity->name() != "IFCDOCUMENTELECTRONICFORMAT") return std::nullopt;
    const std::string extension = textOf(encodedOf(model, id, "FILEEXTENSION"));
    std::string text = textOf(encodedOf(model, id, "MIMECONTENTTYPE"));
    const std::string subtype = textOf(encodedOf(model, id, "MIMESUBTYPE"));
    if (!text.empty() && !subtype.empty()) text += '/';
    text += subtype;
    if (!text.empty() && !extension.empty()) rebuilding.note(extensions, extension);
    return std::vector{literal(text.empty() ? extension : text)};
}

struct Owner {
    std::string_view entity;
    std::string_view list;
    std::string_view member;
    std::string_view back;
};

constexpr Owner owners[] = {
    {"IFCDOCUMENTINFORMATION", "DOCUMENTREFERENCES", "IFCDOCUMENTREFERENCE", "REFERENCEDDOCUMENT"},
    {"IFCLIBRARYINFORMATION", "LIBRARYREFERENCE", "IFCLIBRARYREFERENCE", "REFERENCEDLIBRARY"},
};

const Owner& ownerOf(const sdai::EntityDefinition& entity) {
    return entity.isKindOf(owners[0].entity) ? owners[0] : owners[1];
}

Successor becomesOwner(const Releases& releases, DXSdaiAppInstance& information) {
    const Owner& row = ownerOf(*information.entity());
    const sdai::EntityDefinition* member = releases.target.entity(row.member);
    const Successor same = Successor::of(releases, row.entity);
    const bool isHere = member != nullptr && member->attributeIndex(row.back) >= 0 && same.entity != nullptr &&
                        same.entity->attributeIndex(row.list) < 0 && information.TestAttr(row.list);
    return isHere ? same : Successor::notHere();
}

bool planOwner(Planning& planning, DXSdaiAppInstance& information) {
    const Owner& row = ownerOf(*information.entity());
    for (const std::uint64_t id : idsOf(information.GetAttr(row.list).encoded()))
        planning.setLater(id, row.back, reference(information.id()));
    return true;
}

void rebuildOwner(Rebuilding& rebuilding) {
    const Owner& row = ownerOf(rebuilding.entity());
    rebuilding.become(carriedBut(rebuilding, row.entity, {row.list}));
}

/// Relationships that are called otherwise, and what their attributes are called.
struct Relationship {
    std::string_view entity;
    std::string_view after;
    std::string_view relating;
    std::string_view related;
};

constexpr Relationship generalRelationships[] = {
    {"IFCAPPROVALPROPERTYRELATIONSHIP", "IFCRESOURCEAPPROVALRELATIONSHIP", "APPROVAL", "APPROVEDPROPERTIES"},
    {"IFCAPPROVALACTORRELATIONSHIP", "IFCRESOURCEAPPROVALRELATIONSHIP", "APPROVAL", "ACTOR"},
    {"IFCCONSTRAINTRELATIONSHIP", "IFCRESOURCECONSTRAINTRELATIONSHIP", "RELATINGCONSTRAINT", "RELATEDCONSTRAINTS"},
    {"IFCPROPERTYCONSTRAINTRELATIONSHIP", "IFCRESOURCECONSTRAINTRELATIONSHIP", "RELATINGCONSTRAINT",
     "RELATEDPROPERTIES"},
    {"IFCCONSTRAINTAGGREGATIONRELATIONSHIP", "IFCRESOURCECONSTRAINTRELATIONSHIP", "RELATINGCONSTRAINT",
     "RELATEDCONSTRAINTS"},
};

const Relationship* relationshipOf(std::string_view entity) {
    for (const Relationship& row : generalRelationships)
        if (row.entity == entity) return &row;
    return nullptr;
}

Successor becomesGeneral(const Releases& releases, DXSdaiAppInstance& relationship) {
    const Relationship* row = relationshipOf(relationship.entity()->name());
    return row == nullptr ? Successor::notHere() : replacedBy(releases, relationship, row->after);
}

void rebuildGeneral(Rebuilding& rebuilding) {
    const Relationship& row = *relationshipOf(rebuilding.entity().name());
    RecordBuilder record = carriedBut(rebuilding, row.after, {row.relating, row.related, "ROLE", "LOGICALAGGREGATOR"});
    const std::string_view relating =
        row.after == "IFCRESOURCEAPPROVALRELATIONSHIP" ? "RELATINGAPPROVAL" : "RELATINGCONSTRAINT";
    carry(rebuilding, row.relating, record, relating);
    carry(rebuilding, row.related, record, "RELATEDRESOURCEOBJECTS");
    const std::string_view aggregator = rebuilding.encoded("LOGICALAGGREGATOR");
    if (aggregator.size() > 2 && isUnset(record.value("DESCRIPTION")))
        record.set("DESCRIPTION", literal(aggregator.substr(1, aggregator.size() - 2)));
    if (const std::uint64_t role = sdai::decodeInstanceName(rebuilding.encoded("ROLE")); role != 0) {
        const std::string_view own = encodedOf(rebuilding.source(), role, "USERDEFINEDROLE");
        const std::string_view word = encodedOf(rebuilding.source(), role, "ROLE");
        if (!isUnset(own))
            record.set("NAME", std::string(own));
        else if (word.size() > 2)
            record.set("NAME", literal(word.substr(1, word.size() - 2)));
    }
    rebuilding.become(record);
}

/// What refers to documents and classifications, and what these are.
constexpr Relationship externalRelationships[] = {
    {"IFCCONSTRAINTCLASSIFICATIONRELATIONSHIP", "", "RELATEDCLASSIFICATIONS", "CLASSIFIEDCONSTRAINT"},
    {"IFCREFERENCESVALUEDOCUMENT", "", "REFERENCEDDOCUMENT", "REFERENCINGVALUES"},
    {"IFCTIMESERIESREFERENCERELATIONSHIP", "", "TIMESERIESREFERENCES", "REFERENCEDTIMESERIES"},
};

Successor becomesExternal(const Releases& releases, DXSdaiAppInstance& relationship) {
    return replacedBy(releases, relationship, "IFCEXTERNALREFERENCERELATIONSHIP");
}

/// A reference of the target; information that is no reference gets one. 0 when there is none.
std::uint64_t externalReference(Rebuilding& rebuilding, std::uint64_t id) {
    const sdai::EntityDefinition* entity = rebuilding.successorOf(id);
    if (entity == nullptr || entity->isKindOf("IFCEXTERNALREFERENCE")) return entity == nullptr ? 0 : id;
    const bool isDocument = entity->isKindOf("IFCDOCUMENTINFORMATION");
    if (!isDocument && !entity->isKindOf("IFCCLASSIFICATION")) return 0;
    RecordBuilder record(rebuilding.target(), isDocument ? "IFCDOCUMENTREFERENCE" : "IFCCLASSIFICATIONREFERENCE");
    record.set(isDocument ? "REFERENCEDDOCUMENT" : "REFERENCEDSOURCE", reference(id));
    return rebuilding.add(record);
}

void rebuildExternal(Rebuilding& rebuilding) {
    for (const Relationship& row : externalRelationships) {
        if (row.entity != rebuilding.entity().name()) continue;
        RecordBuilder record = carriedBut(rebuilding, "IFCEXTERNALREFERENCERELATIONSHIP", {row.relating, row.related});
        carry(rebuilding, row.related, record, "RELATEDRESOURCEOBJECTS");
        bool isFirst = true;
        for (const std::uint64_t id : idsOf(rebuilding.encoded(row.relating))) {
            const std::uint64_t named = externalReference(rebuilding, id);
            if (named == 0) continue;
            record.set("RELATINGREFERENCE", reference(named));
            if (isFirst)
                rebuilding.become(record);
            else
                rebuilding.add(record);
            isFirst = false;
        }
        if (isFirst) rebuilding.become(record);
    }
}

Successor becomesFont(const Releases& releases, DXSdaiAppInstance& font) {
    return replacedBy(releases, font, "IFCEXTERNALLYDEFINEDTEXTFONT");
}

constexpr RebuildRule rebuilds[] = {
    {items, "IFCCLASSIFICATIONITEM", becomesReference, nullptr, rebuildItem},
    {items, "IFCCLASSIFICATIONITEMRELATIONSHIP", absorb, planLevels},
    {notations, "IFCCLASSIFICATIONNOTATION", becomesReference, nullptr, rebuildNotation},
    {notations, "IFCCLASSIFICATIONNOTATIONFACET", absorb},
    {formats, "IFCDOCUMENTELECTRONICFORMAT", absorb},
    {extensions, "IFCDOCUMENTELECTRONICFORMAT", notHere},
    {documents, "IFCDOCUMENTINFORMATION", becomesOwner, planOwner, rebuildOwner},
    {documents, "IFCLIBRARYINFORMATION", becomesOwner, planOwner, rebuildOwner},
    {relationships, "IFCAPPROVALPROPERTYRELATIONSHIP", becomesGeneral, nullptr, rebuildGeneral},
    {relationships, "IFCCONSTRAINTRELATIONSHIP", becomesGeneral, nullptr, rebuildGeneral},
    {relationships, "IFCPROPERTYCONSTRAINTRELATIONSHIP", becomesGeneral, nullptr, rebuildGeneral},
    {actors, "IFCAPPROVALACTORRELATIONSHIP", becomesGeneral, nullptr, rebuildGeneral},
    {aggregations, "IFCCONSTRAINTAGGREGATIONRELATIONSHIP", becomesGeneral, nullptr, rebuildGeneral},
    {external, "IFCCONSTRAINTCLASSIFICATIONRELATIONSHIP", becomesExternal, nullptr, rebuildExternal},
    {external, "IFCREFERENCESVALUEDOCUMENT", becomesExternal, nullptr, rebuildExternal},
    {external, "IFCTIMESERIESREFERENCERELATIONSHIP", becomesExternal, nullptr, rebuildExternal},
    {fonts, "IFCDRAUGHTINGPREDEFINEDTEXTFONT", becomesFont},
};

constexpr ValueRule values[] = {{formats, formatText}};

} // namespace

RuleTable referenceRules() {
    return {.rebuild = rebuilds, .values = values};
}

} // namespace velkor::exchange::forward
