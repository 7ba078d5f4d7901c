// Styles, and what assigns them to items.
#include "RecordText.h"
#include "release/Rebuilding.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

namespace velkor::exchange {

namespace {

const sdai::EntityDefinition* assignmentOf(const ReleaseSchema& schema) {
    return schema.entity("IFCPRESENTATIONSTYLEASSIGNMENT");
}

bool acceptsEntity(const sdai::Type& type, const sdai::EntityDefinition& entity) {
    const sdai::Type& resolved = type.resolved();
    if (const auto* wanted = resolved.asEntity()) return entity.isKindOf(*wanted);
    return resolved.asSelect() != nullptr && resolved.asSelect()->accepts(entity);
}

// Where styles are assigned without it, an assignment says nothing of its own.
Successor absorbAssignment(const Releases& releases, DXSdaiAppInstance&) {
    return assignmentOf(releases.target) == nullptr ? Successor::absorbed() : Successor::notHere();
}

std::optional<std::vector<std::string>> unwrap(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                               const sdai::Type& to) {
    if (assignmentOf(rebuilding.target()) != nullptr) return std::nullopt;
    const auto number = rebuilding.source().file().find(sdai::decodeInstanceName(encoded));
    if (!number) return std::nullopt;
    const sdai::EntityDefinition* entity = rebuilding.source().entityAt(*number);
    if (entity == nullptr || entity->name() != "IFCPRESENTATIONSTYLEASSIGNMENT") return std::nullopt;
    std::vector<std::string> styles;
    eachReference(parameterOf(rebuilding.source(), *number, "STYLES"), [&](std::uint64_t id) {
        const sdai::EntityDefinition* style = rebuilding.successorOf(id);
        if (style != nullptr && acceptsEntity(to, *style)) styles.push_back(reference(id));
    });
    if (styles.empty()) return std::nullopt;
    return styles;
}

std::optional<std::vector<std::string>> wrap(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                             const sdai::Type& to) {
    const sdai::EntityDefinition* assignment = assignmentOf(rebuilding.target());
    const std::uint64_t id = sdai::decodeInstanceName(encoded);
    const sdai::EntityDefinition* style = id == 0 ? nullptr : rebuilding.successorOf(id);
    if (assignment == nullptr || style == nullptr || !style->isKindOf("IFCPRESENTATIONSTYLE") ||
        !acceptsEntity(to, *assignment))
        return std::nullopt;
    const int place = assignment->attributeIndex("STYLES");
    const auto* styles =
        assignment->attributes()[static_cast<std::size_t>(place)].attribute->type().resolved().asAggregate();
    if (styles == nullptr || !acceptsEntity(styles->element(), *style)) return std::nullopt;
    // One for each style, however many items have it.
    std::string key("style assignment ");
    const std::string text(encoded);
    return std::vector{reference(rebuilding.shared(key += text, [](Rebuilding& adding, std::string_view what) {
        RecordBuilder record(adding.target(), "IFCPRESENTATIONSTYLEASSIGNMENT");
        record.set("STYLES", listOf({std::string(what.substr(what.rfind('#')))}));
        return adding.add(record);
    }))};
}

// Of releases that say transparency with rendering alone.
Successor becomesRendering(const Releases& releases, DXSdaiAppInstance& shading) {
    const sdai::EntityDefinition* same = releases.target.entity(shading.entity()->name());
    if (shading.entity()->name() != "IFCSURFACESTYLESHADING" || same == nullptr ||
        same->attributeIndex("TRANSPARENCY") >= 0 || !shading.GetAttr("TRANSPARENCY").isSet())
        return Successor::notHere();
    return Successor::of(releases, "IFCSURFACESTYLERENDERING");
}

constexpr ConversionRule unwrapped{"style-assignment", Effect::Rebuilt,
                                   "Styles that an assignment held together are assigned one by one",
                                   "Releases since IFC4X3 assign styles without it"};
constexpr ConversionRule wrapped{"style-assigned", Effect::Converted,
                                 "A style that is assigned by itself gets a style assignment",
                                 "IFC2X3 assigns styles by assignments alone"};
constexpr ConversionRule rendering{
    "transparent-shading", Effect::Rebuilt, "A shading with transparency becomes a rendering without a method",
    "IFC2X3 says transparency with rendering alone; what else rendering could say stays unset"};

constexpr RebuildRule rebuilds[] = {
    {unwrapped, "IFCPRESENTATIONSTYLEASSIGNMENT", absorbAssignment},
    {rendering, "IFCSURFACESTYLESHADING", becomesRendering},
};

constexpr ValueRule values[] = {
    {unwrapped, unwrap},
    {wrapped, wrap},
};

} // namespace

RuleTable styleRules() {
    return {.rebuild = rebuilds, .values = values};
}

} // namespace velkor::exchange
