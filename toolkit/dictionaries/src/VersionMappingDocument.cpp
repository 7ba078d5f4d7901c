#include "velkor/dictionaries/VersionMappingDocument.h"

#include "MappingReleases.h"
#include "QORIFCDXXMLServices.h"
#include "ResourceNames.h"
#include "velkor/dictionaries/ReleaseRenames.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"

#include <algorithm>

namespace velkor {

namespace {

namespace names = velkor::names::version;
using sdai::Attribute;
using sdai::AttributeSlot;
using sdai::EntityDefinition;
using sdai::SchemaDefinition;

/// Renames are told from one release to what follows; in the other direction they are read backwards.
enum class Direction { None, Forwards, Backwards };

Direction renameDirection(const SchemaDefinition& before, const SchemaDefinition& after) {
    const bool isFrom = before.name() == renamedRelease, isTo = after.name() == renamedRelease;
    if (isFrom == isTo) return Direction::None;
    return isFrom ? Direction::Forwards : Direction::Backwards;
}

bool hasExplicit(const EntityDefinition& entity, std::string_view name) {
    const int index = entity.attributeIndex(name);
    return index >= 0 && !entity.attributes()[static_cast<std::size_t>(index)].isDerived;
}

class BlockWriter {
public:
    BlockWriter(const QORIDOMDocument_var& document, const SchemaDefinition& before, const SchemaDefinition& after)
        : _document(document), _before(before), _after(after), _direction(renameDirection(before, after)) {}

    void write(const QORIDOMElement_var& root) {
        _version =
            add(root, names::block,
                {{names::from, mappingReleaseText(_before.name())}, {names::to, mappingReleaseText(_after.name())}});
        for (const EntityDefinition* entity : sorted(_before)) addMappings(*entity);
        for (const EntityDefinition* entity : sorted(_before)) addDeprecations(*entity);
        for (const EntityDefinition* entity : sorted(_after)) addIntroductions(*entity);
    }

private:
    using Values = std::vector<std::pair<const char*, std::string_view>>;

    static std::vector<const EntityDefinition*> sorted(const SchemaDefinition& schema) {
        std::vector<const EntityDefinition*> entities(schema.entities().begin(), schema.entities().end());
        std::ranges::sort(entities, {}, &EntityDefinition::name);
        return entities;
    }

    QORIDOMElement_var add(const QORIDOMElement_var& parent, const char* name, const Values& values) {
        QORIDOMElement_var element;
        _document->CreateElement(name, element);
        for (const auto& [attribute, value] : values) element->SetAttribute(attribute, QORUnicodeString(value));
        parent->AppendChild(element);
        return element;
    }

    /// What an entity is called in the later release; null when it is gone.
    const EntityDefinition* successor(const EntityDefinition& entity) const {
        if (const EntityDefinition* same = _after.entity(entity.name())) return same;
        for (const EntityRename& rename : entityRenames) {
            const bool isForwards = _direction == Direction::Forwards;
            if (_direction == Direction::None || (!isForwards && !rename.isOneToOne)) continue;
            if (entity.name() == (isForwards ? rename.before : rename.after))
                return _after.entity(isForwards ? rename.after : rename.before);
        }
        return nullptr;
    }

    /// What an attribute is called in the later release; empty when it is gone.
    std::string_view successor(const EntityDefinition& entity, const EntityDefinition& later,
                               std::string_view name) const {
        if (hasExplicit(later, name)) return name;
        for (const AttributeRename& rename : attributeRenames) {
            const bool isForwards = _direction == Direction::Forwards;
            if (_direction == Direction::None || name != (isForwards ? rename.before : rename.after)) continue;
            const char* renamed = isForwards ? rename.after : rename.before;
            if (entity.isKindOf(rename.entity) && hasExplicit(later, renamed)) return renamed;
        }
        return {};
    }

    template <class Visit>
    static void visitExplicit(const EntityDefinition& entity, Visit visit) {
        for (const AttributeSlot& slot : entity.attributes()) {
            if (!slot.isDerived) visit(*slot.attribute);
        }
    }

    void addMappings(const EntityDefinition& entity) {
        const EntityDefinition* later = successor(entity);
        if (later == nullptr) return;
        const bool isRenamed = later->name() != entity.name();
        if (isRenamed)
            add(_version, names::mapping, {{names::fromEntity, entity.name()}, {names::toEntity, later->name()}});
        visitExplicit(entity, [&](const Attribute& attribute) {
            const std::string_view name = successor(entity, *later, attribute.name());
            if (name.empty() || (!isRenamed && name == attribute.name())) return;
            Values values{{names::fromEntity, entity.name()}, {names::fromProperty, attribute.name()}};
            if (isRenamed) values.emplace_back(names::toEntity, later->name());
            values.emplace_back(names::toProperty, name);
            add(_version, names::mapping, values);
        });
    }

    void addDeprecations(const EntityDefinition& entity) {
        const EntityDefinition* later = successor(entity);
        if (later == nullptr) {
            add(_version, names::deprecation, {{names::entity, entity.name()}});
            return;
        }
        visitExplicit(entity, [&](const Attribute& attribute) {
            if (successor(entity, *later, attribute.name()).empty())
                add(_version, names::deprecation,
                    {{names::entity, entity.name()}, {names::property, attribute.name()}});
        });
    }

    void addIntroductions(const EntityDefinition& entity) {
        const EntityDefinition* earlier = _before.entity(entity.name());
        if (earlier == nullptr) {
            add(_version, names::introduction, {{names::entity, entity.name()}});
            return;
        }
        std::vector<std::string_view> known;
        visitExplicit(*earlier, [&](const Attribute& attribute) {
            known.push_back(successor(*earlier, entity, attribute.name()));
        });
        visitExplicit(entity, [&](const Attribute& attribute) {
            if (std::ranges::find(known, attribute.name()) != known.end()) return;
            Values values{{names::entity, entity.name()}, {names::property, attribute.name()}};
            // The one value that is right of every object.
            const sdai::EnumerationType* enumeration = attribute.type().resolved().asEnumeration();
            if (enumeration != nullptr && enumeration->position("NOTDEFINED") >= 0)
                values.emplace_back(names::propertyValue, "NOTDEFINED");
            add(_version, names::introduction, values);
        });
    }

    const QORIDOMDocument_var& _document;
    const SchemaDefinition& _before;
    const SchemaDefinition& _after;
    Direction _direction;
    QORIDOMElement_var _version;
};

} // namespace

std::string_view mappingReleaseText(std::string_view schemaName) {
    const MappingRelease* release = findMappingRelease(&MappingRelease::dictionary, schemaName);
    return release != nullptr ? release->text : std::string_view();
}

std::string versionMappingDocument(const std::vector<ReleasePair>& pairs) {
    QORIDOMDocument_var document;
    QORIDOMElement_var root;
    QORIFCDXXMLServices::CreateDOMDocument("IfcVersionMapping", document);
    document->GetDocumentElement(root);
    for (const auto& [before, after] : pairs) BlockWriter(document, *before, *after).write(root);

    QORIXMLDOMDocumentBuilder_var builder;
    CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, builder);
    QORListValQORUnicodeString names, values;
    names.Append("QORIndentation");
    values.Append("2");
    QORUnicodeString text;
    builder->WriteToText(document, text, names, values);
    return std::string(text.utf8());
}

} // namespace velkor
