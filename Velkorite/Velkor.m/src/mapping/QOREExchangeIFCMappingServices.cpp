#include "mapping/QOREExchangeIFCMappingServices.h"

#include "foundation/Results.h"
#include "MappingReleases.h"
#include "QORIFCOptionsFromXCAD.h"
#include "ResourceKeys.h"
#include "ResourceNames.h"
#include "resources/ResourceDocument.h"
#include "velkor/containers/QORHashTable.h"
#include "VelkorComponents.h"
#include "xml/XmlNodes.h"

#include <memory>
#include <optional>

VELKOR_IMPLEMENT_CLASS(QOREExchangeIFCMappingServices, QORIExchangeIFCMappingServices, "QORNull", "Velkorite")
VELKOR_IMPLEMENT_BOA(VELKOR_API, QORIExchangeIFCMappingServices, QOREExchangeIFCMappingServices)

namespace {

using namespace velkor::library;
namespace names = velkor::names::version;

// Every unit that deals with resource paths has its own pair; the search that reads them is shared.
[[maybe_unused]] const QORUnicodeString pathListSeparator = ";";
[[maybe_unused]] const QORUnicodeString folderSeparator = "\\";

/// One usable child of the Version element that governs the table.
struct VersionMappingEntry {
    QORUnicodeString Key;
    unsigned int HashKey = 0;
    QORUnicodeString Kind;
    QORUnicodeString ToEntity;
    QORUnicodeString ToProperty;
};

unsigned int entryHash(void* entry) {
    return entry != nullptr ? static_cast<const VersionMappingEntry*>(entry)->HashKey : 0;
}

// The hash alone tells entries apart.
int compareEntries(void* a, void* b) {
    return a != nullptr && b != nullptr && entryHash(a) == entryHash(b) ? 0 : 1;
}

/// Owns its entries.
class VersionMappingTable {
public:
    explicit VersionMappingTable(int dimension) : _entries(entryHash, compareEntries, dimension) {}
    virtual ~VersionMappingTable() {
        int bucket = 1, place = 0;
        while (void* entry = _entries.Next(bucket, place)) delete static_cast<VersionMappingEntry*>(entry);
        _entries.RemoveAll();
    }
    VersionMappingTable(const VersionMappingTable&) = delete;
    VersionMappingTable& operator=(const VersionMappingTable&) = delete;

    /// The first entry of a hash stays.
    void insert(std::unique_ptr<VersionMappingEntry> entry) {
        entry->HashKey = velkor::mappingKeyHash(entry->Key);
        const int before = _entries.Size();
        _entries.Insert(entry.get());
        if (_entries.Size() > before) static_cast<void>(entry.release());
    }
    const VersionMappingEntry* locate(const QORUnicodeString& key) const {
        VersionMappingEntry pattern;
        pattern.HashKey = key.ComputeHashKey();
        return static_cast<const VersionMappingEntry*>(_entries.Locate(&pattern));
    }

private:
    QORHashTable _entries;
};

QORIDOMDocument_var versionMappingDocument;
VersionMappingTable* versionMappingTable = nullptr;

HRESULT VersionCodeToText(int code, QORUnicodeString& text) {
    const velkor::MappingRelease* release = velkor::findMappingRelease(&velkor::MappingRelease::code, code);
    if (release == nullptr) return reported(E_FAIL);
    text = QORUnicodeString(release->text);
    return S_OK;
}

HRESULT loadDocument() {
    return reported(readResource(velkor::versionMappingResource, versionMappingDocument));
}

const QORUnicodeString& mappingName() {
    static const QORUnicodeString name = names::mapping;
    return name;
}
const QORUnicodeString& deprecationName() {
    static const QORUnicodeString name = names::deprecation;
    return name;
}
const QORUnicodeString& introductionName() {
    static const QORUnicodeString name = names::introduction;
    return name;
}

/// The first Version element from one release to another; S_FALSE when there is none.
HRESULT FindVersionElement(int iFromVersion, int iToVersion, QORIDOMElement_var& version) {
    QORUnicodeString from, to;
    RETURN_IF_FAILED(VersionCodeToText(iFromVersion, from));
    if (versionMappingDocument.IsNull()) RETURN_IF_FAILED(loadDocument());
    QORIDOMElement_var root;
    RETURN_IF_FAILED(reported(versionMappingDocument->GetDocumentElement(root)));
    QORIDOMNodeIterator_var iterator;
    RETURN_IF_FAILED(elementIterator(versionMappingDocument, root, {}, iterator));
    RETURN_IF_FAILED(VersionCodeToText(iToVersion, to));

    QORIDOMNode_var node;
    while (SUCCEEDED(iterator->NextNode(node)) && !node.IsNull()) {
        const QORIDOMElement_var element = node;
        if (element.IsNull()) continue;
        QORUnicodeString text;
        RETURN_IF_FAILED(tagName(element, text));
        if (text != names::block) continue;
        RETURN_IF_FAILED(attribute(element, names::from, text));
        if (text != from) continue;
        RETURN_IF_FAILED(attribute(element, names::to, text));
        if (text != to) continue;
        version = element;
        return S_OK;
    }
    return S_FALSE;
}

/// Goes through the children that count. `visit` gets an element that has one of the names, and ends the walk with a
/// failure.
template <class Wants, class Visit>
HRESULT walk(const NodeRange& children, Wants wants, Visit visit) {
    for (const ListedNode& child : children) {
        QORUnicodeString name;
        if (FAILED(nodeName(child, name)) || !wants(name)) continue;
        QORIDOMElement_var element;
        RETURN_IF_FAILED(asElement(child.node, element));
        RETURN_IF_FAILED(visit(element, name));
    }
    return S_OK;
}

/// The search and the walk of the three operations that read the document at every call.
template <class Visit>
HRESULT visitChanges(int iFromVersion, int iToVersion, const QORUnicodeString& wanted, Visit visit) {
    QORIDOMElement_var version;
    if (const HRESULT found = FindVersionElement(iFromVersion, iToVersion, version); found != S_OK) return found;
    const NodeRange children = childrenBehindFirst(version);
    RETURN_IF_FAILED(children.result());
    return walk(
        children, [&](const QORUnicodeString& name) { return name == wanted; },
        [&](const QORIDOMElement_var& element, const QORUnicodeString&) { return visit(element); });
}

/// A deprecated or introduced entity or property.
HRESULT changeEntry(const QORIDOMElement_var& element, bool isDeprecation,
                    std::unique_ptr<VersionMappingEntry>& entry) {
    QORUnicodeString entity;
    RETURN_IF_FAILED(attribute(element, names::entity, entity));
    std::optional<QORUnicodeString> property;
    if (entity.IsEmpty() || FAILED(attribute(element, names::property, property))) return S_OK;
    entry = std::make_unique<VersionMappingEntry>();
    entry->Key = property ? entity + *property : entity;
    if (isDeprecation)
        entry->Kind = property ? "DEPRECATED_PROPERTY" : "DEPRECATED_ENTITY";
    else
        entry->Kind = property ? "INTRODUCED_PROPERTY" : "INTRODUCED_ENTITY";
    return S_OK;
}

/// A renamed property. Renames of entities alone are no entries: GetMappedEntityName serves them.
HRESULT mapEntry(const QORIDOMElement_var& element, std::unique_ptr<VersionMappingEntry>& entry) {
    QORUnicodeString fromEntity;
    RETURN_IF_FAILED(attribute(element, names::fromEntity, fromEntity));
    if (fromEntity.IsEmpty()) return S_OK;
    std::optional<QORUnicodeString> fromProperty, toEntity, toProperty;
    if (FAILED(attribute(element, names::fromProperty, fromProperty)) || !fromProperty || fromProperty->IsEmpty())
        return S_OK;
    if (FAILED(attribute(element, names::toEntity, toEntity)) ||
        FAILED(attribute(element, names::toProperty, toProperty)))
        return S_OK;
    entry = std::make_unique<VersionMappingEntry>();
    entry->Key = fromEntity + *fromProperty;
    entry->Kind = "MAP";
    entry->ToEntity = toEntity.value_or(QORUnicodeString());
    entry->ToProperty = toProperty.value_or(*fromProperty);
    return S_OK;
}

HRESULT BuildVersionMappingTable(int iFromVersion, int iToVersion) {
    QORIDOMElement_var version;
    if (const HRESULT found = FindVersionElement(iFromVersion, iToVersion, version); found != S_OK) return found;
    const NodeRange children = childrenBehindFirst(version);
    RETURN_IF_FAILED(children.result());
    if (children.length() == 0) return S_OK;
    auto table = std::make_unique<VersionMappingTable>(static_cast<int>(children.length()));
    const auto wants = [](const QORUnicodeString& name) {
        return name == deprecationName() || name == introductionName() || name == mappingName();
    };
    const auto visit = [&table](const QORIDOMElement_var& element, const QORUnicodeString& name) {
        std::unique_ptr<VersionMappingEntry> entry;
        const HRESULT read =
            name == mappingName() ? mapEntry(element, entry) : changeEntry(element, name == deprecationName(), entry);
        if (entry != nullptr) table->insert(std::move(entry));
        return read;
    };
    // Of a walk that fails, the entries before stay.
    const HRESULT result = walk(children, wants, visit);
    versionMappingTable = table.release();
    return result;
}

HRESULT statusOf(const QORUnicodeString& kind) {
    if (kind == "DEPRECATED_ENTITY") return IFC_MAPPING_DEPRECATED_ENTITY;
    if (kind == "DEPRECATED_PROPERTY") return IFC_MAPPING_DEPRECATED_PROPERTY;
    if (kind == "INTRODUCED_ENTITY") return IFC_MAPPING_INTRODUCED_ENTITY;
    if (kind == "INTRODUCED_PROPERTY") return IFC_MAPPING_INTRODUCED_PROPERTY;
    return E_FAIL;
}

} // namespace

HRESULT QOREExchangeIFCMappingServices::GetVersionMapping(int iFromVersion, int iToVersion,
                                                          const QORUnicodeString& iEntity,
                                                          const QORUnicodeString& iProperty, QORUnicodeString& oEntity,
                                                          QORUnicodeString& oProperty) {
    QORIFCOptionsFromXCAD* options = QORIFCOptionsFromXCAD::GetInstance();
    if (options != nullptr && options->GetValueIFCVersionMapping() == S_OK) return IFC_MAPPING_NONE;
    if (versionMappingTable == nullptr) BuildVersionMappingTable(iFromVersion, iToVersion);
    if (versionMappingTable == nullptr) return E_FAIL;

    QORUnicodeString key = iEntity + iProperty;
    key.ToUpper();
    const VersionMappingEntry* entry = versionMappingTable->locate(key);
    if (entry == nullptr) return IFC_MAPPING_NONE;
    if (entry->Kind != "MAP") return statusOf(entry->Kind);
    oEntity = entry->ToEntity.IsEmpty() ? iEntity : entry->ToEntity;
    oProperty = entry->ToProperty;
    return IFC_MAPPING_MAPPED;
}

HRESULT QOREExchangeIFCMappingServices::GetIntroducedPropertyValues(int iFromVersion, int iToVersion,
                                                                    QORListValQORUnicodeString& oEntities,
                                                                    QORListValQORUnicodeString& oProperties,
                                                                    QORListValQORUnicodeString& oPropertyValues) {
    const auto visit = [&](const QORIDOMElement_var& element) -> HRESULT {
        QORUnicodeString entity;
        RETURN_IF_FAILED(attribute(element, names::entity, entity));
        std::optional<QORUnicodeString> property, value;
        if (FAILED(attribute(element, names::property, property)) || !property || property->IsEmpty()) return S_OK;
        if (FAILED(attribute(element, names::propertyValue, value)) || !value || value->IsEmpty()) return S_OK;
        oEntities.Append(entity);
        oProperties.Append(*property);
        oPropertyValues.Append(*value);
        return S_OK;
    };
    return visitChanges(iFromVersion, iToVersion, introductionName(), visit);
}

HRESULT QOREExchangeIFCMappingServices::GetDeprecatedEntities(int iFromVersion, int iToVersion,
                                                              QORListValQORUnicodeString& oEntities) {
    const auto visit = [&](const QORIDOMElement_var& element) -> HRESULT {
        QORUnicodeString entity;
        RETURN_IF_FAILED(attribute(element, names::entity, entity));
        std::optional<QORUnicodeString> property;
        if (FAILED(attribute(element, names::property, property)) || property || entity.IsEmpty()) return S_OK;
        entity.ToUpper();
        oEntities.Append(entity);
        return S_OK;
    };
    return visitChanges(iFromVersion, iToVersion, deprecationName(), visit);
}

HRESULT QOREExchangeIFCMappingServices::GetMappedEntityName(int iFromVersion, int iToVersion,
                                                            QORUnicodeString& ioEntity) {
    const auto visit = [&](const QORIDOMElement_var& element) -> HRESULT {
        QORUnicodeString from, to;
        RETURN_IF_FAILED(attribute(element, names::fromEntity, from));
        from.ToUpper();
        ioEntity.ToUpper();
        if (from != ioEntity) return S_OK;
        RETURN_IF_FAILED(attribute(element, names::toEntity, to));
        // Renames go on in the order of the document.
        if (!to.IsEmpty()) ioEntity = to;
        return S_OK;
    };
    return visitChanges(iFromVersion, iToVersion, mappingName(), visit);
}

HRESULT QOREExchangeIFCMappingServices::LoadVersionMappingDocument() {
    return loadDocument();
}

HRESULT QOREExchangeIFCMappingServices::ResetVersionMappingTable() {
    delete versionMappingTable;
    versionMappingTable = nullptr;
    return S_OK;
}
