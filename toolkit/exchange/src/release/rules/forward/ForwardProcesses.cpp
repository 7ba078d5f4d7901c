// Tasks, their times and the orders that they belong to.
#include "release/rules/forward/ForwardTables.h"

#include "RecordText.h"
#include "release/RuleBook.h"

#include "velkor/sdai/Part21Encoding.h"

namespace velkor::exchange::forward {

namespace {

constexpr ConversionRule orders{"order-action", Effect::Rebuilt,
                                "An action of an order becomes a task that is called so in ObjectType and has the "
                                "identifier of the action in LongDescription",
                                "Since IFC4 actions of orders are tasks like others"};
constexpr ConversionRule moves{"move-to-task", Effect::Rebuilt,
                               "A move becomes a task of type MOVE; from where it goes is assigned to it, it is "
                               "assigned to where it goes, and its punch list is its long description",
                               "Since IFC4 what a process starts from and leads to is said by assignments"};
constexpr ConversionRule records{"order-record", Effect::Rebuilt,
                                 "A record of project orders becomes an order that the others are nested in",
                                 "Since IFC4 orders are kept together by nesting, in their sequence"};
constexpr ConversionRule userTypes{"user-defined-type", Effect::Converted,
                                   "What USERDEFINED stands for goes to ObjectType when that is free",
                                   "Since IFC4 ObjectType says it for all objects"};

Successor becomesTask(const Releases& releases, DXSdaiAppInstance& task) {
    return replacedBy(releases, task, "IFCTASK");
}

void rebuildAction(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, "IFCTASK", {"ACTIONID"});
    if (isUnset(record.value("OBJECTTYPE"))) record.set("OBJECTTYPE", literal("IfcOrderAction"));
    carry(rebuilding, "ACTIONID", record, "LONGDESCRIPTION");
    rebuilding.become(record);
}

/// The texts of a list, a line each.
std::string lines(std::string_view encoded) {
    std::string text;
    sdai::Part21Lexer lexer(encoded);
    for (sdai::Token token = lexer.next(); token.kind != sdai::TokenKind::End; token = lexer.next()) {
        if (token.kind != sdai::TokenKind::String) continue;
        if (!text.empty()) text += '\n';
        text += sdai::decodeString(token.text);
    }
    return text;
}

void rebuildMove(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, "IFCTASK", {"MOVEFROM", "MOVETO", "PUNCHLIST"});
    record.set("PREDEFINEDTYPE", enumerator("MOVE"));
    if (const std::string text = lines(rebuilding.encoded("PUNCHLIST")); !text.empty())
        record.set("LONGDESCRIPTION", literal(text));
    rebuilding.become(record);
    const std::string task = reference(rebuilding.id());
    const std::string from(rebuilding.encoded("MOVEFROM"));
    const std::string to(rebuilding.encoded("MOVETO"));
    if (rebuilding.successorOf(sdai::decodeInstanceName(from)) != nullptr) {
        RecordBuilder start = objectBeside(rebuilding, "IFCRELASSIGNSTOPROCESS", "MOVEFROM");
        start.set("NAME", literal("MoveFrom"));
        start.set("RELATEDOBJECTS", listOf({from}));
        start.set("RELATINGPROCESS", task);
        rebuilding.add(start);
    }
    if (rebuilding.successorOf(sdai::decodeInstanceName(to)) != nullptr) {
        RecordBuilder end = objectBeside(rebuilding, "IFCRELASSIGNSTOPRODUCT", "MOVETO");
        end.set("NAME", literal("MoveTo"));
        end.set("RELATEDOBJECTS", listOf({task}));
        end.set("RELATINGPRODUCT", to);
        rebuilding.add(end);
    }
}

Successor becomesOrder(const Releases& releases, DXSdaiAppInstance& record) {
    return replacedBy(releases, record, "IFCPROJECTORDER");
}

void rebuildRecord(Rebuilding& rebuilding) {
    constexpr std::pair<std::string_view, std::string_view> types[] = {{".CHANGE.", "CHANGEORDER"},
                                                                       {".MAINTENANCE.", "MAINTENANCEWORKORDER"},
                                                                       {".MOVE.", "MOVEORDER"},
                                                                       {".PURCHASE.", "PURCHASEORDER"},
                                                                       {".WORK.", "WORKORDER"}};
    RecordBuilder record = carriedBut(rebuilding, "IFCPROJECTORDER", {"RECORDS"});
    for (const auto& [before, after] : types)
        if (rebuilding.encoded("PREDEFINEDTYPE") == before) {
            record.set("PREDEFINEDTYPE", enumerator(after));
            // carried() may have kept the word that the list of orders lacks.
            record.set("OBJECTTYPE", std::string(rebuilding.encoded("OBJECTTYPE")));
        }
    rebuilding.become(record);
    std::string controls;
    for (const std::uint64_t assignment : idsOf(rebuilding.encoded("RECORDS")))
        (controls += encodedOf(rebuilding.source(), assignment, "RELATINGCONTROL")) += ",";
    std::vector<std::string> nested;
    for (const std::uint64_t order : idsOf(controls)) {
        const sdai::EntityDefinition* successor = rebuilding.successorOf(order);
        // Some controls have become sets of properties or times.
        const bool isObject = successor != nullptr && successor->isKindOf("IFCOBJECTDEFINITION");
        if (isObject && order != rebuilding.id()) nested.push_back(reference(order));
    }
    if (nested.empty()) return;
    RecordBuilder nesting = objectBeside(rebuilding, "IFCRELNESTS", "RECORDS");
    nesting.set("RELATINGOBJECT", reference(rebuilding.id()));
    nesting.set("RELATEDOBJECTS", listOf(nested));
    rebuilding.add(nesting);
}

constexpr std::pair<std::string_view, std::string_view> userAttributes[] = {
    {"IFCWORKCONTROL", "USERDEFINEDCONTROLTYPE"},
    {"IFCPROCEDURE", "USERDEFINEDPROCEDURETYPE"},
    {"IFCELECTRICDISTRIBUTIONPOINT", "USERDEFINEDFUNCTION"},
};

std::string_view userAttribute(const sdai::EntityDefinition& entity) {
    for (const auto& [name, attribute] : userAttributes)
        if (entity.isKindOf(name)) return attribute;
    return {};
}

Successor becomesNamed(const Releases& releases, DXSdaiAppInstance& object) {
    const std::string_view name = object.entity()->name();
    const std::string_view after = name == "IFCELECTRICDISTRIBUTIONPOINT" ? "IFCELECTRICDISTRIBUTIONBOARD" : name;
    const Successor same = Successor::of(releases, after);
    const std::string_view attribute = userAttribute(*object.entity());
    const bool isHere =
        same.entity != nullptr && same.entity->attributeIndex(attribute) < 0 && object.TestAttr(attribute);
    return isHere ? same : Successor::notHere();
}

void rebuildNamed(Rebuilding& rebuilding) {
    const std::string_view attribute = userAttribute(rebuilding.entity());
    const std::string_view entity = rebuilding.successorOf(rebuilding.id())->name();
    RecordBuilder record = carriedBut(rebuilding, entity, {attribute});
    const bool isFree = isUnset(rebuilding.encoded("OBJECTTYPE"));
    if (!isFree || !carry(rebuilding, attribute, record, "OBJECTTYPE"))
        rebuilding.note(rules::noAttribute, std::string(attribute));
    rebuilding.become(record);
}

constexpr RebuildRule rebuilds[] = {
    {orders, "IFCORDERACTION", becomesTask, nullptr, rebuildAction},
    {moves, "IFCMOVE", becomesTask, nullptr, rebuildMove},
    {records, "IFCPROJECTORDERRECORD", becomesOrder, nullptr, rebuildRecord},
    {userTypes, "IFCWORKCONTROL", becomesNamed, nullptr, rebuildNamed},
    {userTypes, "IFCPROCEDURE", becomesNamed, nullptr, rebuildNamed},
};

} // namespace

RuleTable processRules() {
    return {.rebuild = rebuilds};
}

} // namespace velkor::exchange::forward
