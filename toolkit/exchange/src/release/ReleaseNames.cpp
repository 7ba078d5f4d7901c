#include "release/ReleaseNames.h"

#include "release/RuleBook.h"
#include "velkor/dictionaries/ReleaseRenames.h"
#include "velkor/text/Unicode.h"

#include <span>

namespace velkor::exchange {

namespace {

const sdai::EntityDefinition* concrete(const ReleaseSchema& schema, std::string_view name) {
    const sdai::EntityDefinition* entity = schema.entity(name);
    return entity != nullptr && !entity->isAbstract() ? entity : nullptr;
}

/// Whether a name stands for an entity or one of its supertypes, or is what they are called in the other release.
bool isKindOf(const sdai::EntityDefinition& entity, std::string_view ancestor) {
    for (const sdai::EntityDefinition* at = &entity; at != nullptr; at = at->supertype())
        if (at->name() == ancestor) return true;
    return false;
}

} // namespace

ReleaseNames::ReleaseNames(const Releases& releases, const PlatformSetup* setup) : _releases(releases) {
    const auto* from = findMappingRelease(&MappingRelease::dictionary, releases.source.name());
    const auto* to = findMappingRelease(&MappingRelease::dictionary, releases.target.name());
    if (setup == nullptr || from == nullptr || to == nullptr) return;
    // Without a document the dictionaries decide alone.
    if (auto document = VersionMapping::load(*setup, *from, *to)) _document.emplace(std::move(*document));
}

ReleaseNames::Entity ReleaseNames::entity(const sdai::EntityDefinition& source) const {
    const ReleaseSchema& target = _releases.target;
    if (_document) {
        const std::string mapped = _document->entityName(source.name());
        if (const auto* entity = mapped.empty() ? nullptr : concrete(target, mapped))
            return {entity, &rules::entityMapped};
    }
    if (!_document || !_document->isDeprecated(source.name()))
        if (const auto* same = concrete(target, source.name())) return {same, nullptr};
    for (const EntityRename& rename : entityRenames) {
        const char* name = rename.before == source.name()                       ? rename.after
                           : rename.isOneToOne && rename.after == source.name() ? rename.before
                                                                                : nullptr;
        if (name == nullptr) continue;
        if (const auto* entity = concrete(target, name)) return {entity, &rules::entityRenamed};
    }
    return {};
}

ReleaseNames::Entity ReleaseNames::supertype(const sdai::EntityDefinition& source) const {
    for (const auto* at = source.supertype(); at != nullptr; at = at->supertype())
        if (const Entity found = entity(*at); found.entity != nullptr) return {found.entity, &rules::supertype};
    return plainElement(source);
}

ReleaseNames::Entity ReleaseNames::plainElement(const sdai::EntityDefinition& source) const {
    // An opening is no solid thing.
    const bool isSolid = !isKindOf(source, "IFCFEATUREELEMENT");
    const char* name = isKindOf(source, "IFCELEMENT") && isSolid ? "IFCBUILDINGELEMENTPROXY"
                       : isKindOf(source, "IFCELEMENTTYPE")      ? "IFCBUILDINGELEMENTPROXYTYPE"
                                                                 : "";
    if (source.name() == name) return {};
    if (const auto* entity = concrete(_releases.target, name)) return {entity, &rules::plainElement};
    return {};
}

ReleaseNames::Slot ReleaseNames::slot(const sdai::EntityDefinition& source, std::string_view attribute) const {
    const int same = source.attributeIndex(attribute);
    bool isMovedAway = false;
    for (std::size_t i = 0; _document && i < source.attributes().size(); ++i) {
        // The document goes from the source's names to the target's.
        const std::string_view name = source.attributes()[i].attribute->name();
        const auto mapped = _document->property(source.name(), name);
        if (!mapped || mapped->second.empty()) continue;
        const std::string property = text::toUpper(mapped->second);
        if (property == attribute) return {static_cast<int>(i), property == name ? nullptr : &rules::attributeMapped};
        isMovedAway = isMovedAway || static_cast<int>(i) == same;
    }
    if (same >= 0 && !isMovedAway) return {same, nullptr};
    return renamedSlot(source, attribute);
}

ReleaseNames::Slot ReleaseNames::renamedSlot(const sdai::EntityDefinition& source, std::string_view attribute) const {
    for (const std::span<const AttributeRename> renames :
         {std::span<const AttributeRename>(attributeRenames), std::span<const AttributeRename>(laterAttributeRenames)})
        for (const AttributeRename& rename : renames) {
            const char* name = rename.after == attribute    ? rename.before
                               : rename.before == attribute ? rename.after
                                                            : nullptr;
            if (name == nullptr || !isKindOf(source, rename.entity)) continue;
            if (const int index = source.attributeIndex(name); index >= 0) return {index, &rules::attributeRenamed};
        }
    return {};
}

std::string ReleaseNames::introduced(const sdai::EntityDefinition& target, std::string_view attribute) const {
    if (_document)
        for (const IntroducedValue& value : _document->introduced())
            if (text::toUpper(value.property) == attribute && isKindOf(target, text::toUpper(value.entity)))
                return value.value;
    return {};
}

} // namespace velkor::exchange
