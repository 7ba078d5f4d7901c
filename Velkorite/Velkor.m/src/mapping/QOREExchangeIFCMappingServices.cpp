#include "QOREExchangeIFCMappingServices.h"

#include "FirstResource.h"
#include "QORIFCDXXMLServices.h"
#include "QORIFCOptionsFromXCAD.h"
#include "ReportedResult.h"
#include "velkor/containers/QORHashTable.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/xml/QORIDOMAttr.h"
#include "velkor/xml/QORIDOMDocumentTraversal.h"
#include "velkor/xml/QORIDOMNodeFilter.h"
#include "velkor/xml/QORIDOMNodeIterator.h"
#include "VelkorComponents.h"

#include <iterator>
#include <memory>

VELKOR_IMPLEMENT_CLASS(QOREExchangeIFCMappingServices, QORIExchangeIFCMappingServices, "QORNull", "Velkorite")
VELKOR_IMPLEMENT_BOA(VELKOR_API, QORIExchangeIFCMappingServices, QOREExchangeIFCMappingServices)

namespace {

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
        entry->Key.ToUpper();
        entry->HashKey = entry->Key.ComputeHashKey();
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
    constexpr const char* texts[] = {"2x1", "2x2", "2x3", "4", "2x5", "4x2"};
    if (code < 1 || code > static_cast<int>(std::size(texts))) return REPORTED(E_FAIL);
    text = texts[code - 1];
    return S_OK;
}

HRESULT loadDocument() {
    versionMappingDocument = {};
    QORUnicodeString path;
    const HRESULT result = velkor::library::findFirstResource(velkor::versionMappingResource, path);
    if (FAILED(result)) return REPORTED(result);
    return QORIFCDXXMLServices::GetDOMDocument(path, versionMappingDocument);
}

HRESULT GetVersionMappingDocument(QORIDOMDocument_var& document) {
    if (versionMappingDocument.IsNull()) {
        const HRESULT result = loadDocument();
        if (FAILED(result)) return result;
    }
    document = versionMappingDocument;
    return document.IsNull() ? REPORTED(E_UNEXPECTED) : S_OK;
}

const QORUnicodeString& mappingName() {
    static const QORUnicodeString name = "Mapping";
    return name;
}
const QORUnicodeString& deprecationName() {
    static const QORUnicodeString name = "Deprecation";
    return name;
}
const QORUnicodeString& introductionName() {
    static const QORUnicodeString name = "Introduction";
    return name;
}

/// The first Version element from one release to another; S_FALSE when there is none.
HRESULT FindVersionElement(int iFromVersion, int iToVersion, QORIDOMElement_var& version) {
    QORUnicodeString from, to;
    HRESULT result = VersionCodeToText(iFromVersion, from);
    if (FAILED(result)) return result;
    QORIDOMDocument_var document;
    result = GetVersionMappingDocument(document);
    if (FAILED(result)) return result;
    QORIDOMElement_var root;
    result = document->GetDocumentElement(root);
    if (FAILED(result)) return REPORTED(result);
    const QORIDOMDocumentTraversal_var traversal = document;
    if (traversal.IsNull()) return REPORTED(E_UNEXPECTED);
    QORIDOMNodeIterator_var iterator;
    result =
        traversal->CreateNodeIterator(root, QORDOMNodeFilterType::SHOW_ELEMENT | QORDOMNodeFilterType::SHOW_ATTRIBUTE,
                                      QORIDOMNodeFilter_var(), true, iterator);
    if (FAILED(result)) return REPORTED(result);
    if (iterator.IsNull()) return REPORTED(E_UNEXPECTED);
    result = VersionCodeToText(iToVersion, to);
    if (FAILED(result)) return result;

    QORIDOMNode_var node;
    while (SUCCEEDED(iterator->NextNode(node)) && !node.IsNull()) {
        const QORIDOMElement_var element = node;
        if (element.IsNull()) continue;
        QORUnicodeString text;
        result = element->GetTagName(text);
        if (FAILED(result)) return REPORTED(result);
        if (text != "Version") continue;
        result = element->GetAttribute("from", text);
        if (FAILED(result)) return REPORTED(result);
        if (text != from) continue;
        result = element->GetAttribute("to", text);
        if (FAILED(result)) return REPORTED(result);
        if (text != to) continue;
        version = element;
        return S_OK;
    }
    return S_FALSE;
}

/// Goes through the children from the second one on; the first is never looked at. `visit` gets an element
/// that has one of the names, and ends the walk with a failure.
template <class Wants, class Visit>
HRESULT walkChildren(const QORIDOMNodeList_var& children, unsigned int length, Wants wants, Visit visit) {
    for (unsigned int i = 1; i < length; ++i) {
        QORIDOMNode_var child;
        if (FAILED(children->Item(i, child)) || child.IsNull()) {
            REPORTED(E_UNEXPECTED);
            continue;
        }
        QORUnicodeString name;
        if (FAILED(child->GetNodeName(name))) {
            REPORTED(E_UNEXPECTED);
            continue;
        }
        if (!wants(name)) continue;
        const QORIDOMElement_var element = child;
        if (element.IsNull()) return REPORTED(E_UNEXPECTED);
        const HRESULT result = visit(element, name);
        if (FAILED(result)) return result;
    }
    return S_OK;
}

HRESULT childrenOf(const QORIDOMElement_var& version, QORIDOMNodeList_var& children, unsigned int& length) {
    HRESULT result = version->GetChildNodes(children);
    if (FAILED(result)) return REPORTED(result);
    if (children.IsNull()) return REPORTED(E_UNEXPECTED);
    result = children->GetLength(length);
    return FAILED(result) ? REPORTED(result) : S_OK;
}

/// The search and the walk of the three operations that read the document at every call.
template <class Visit>
HRESULT visitChanges(int iFromVersion, int iToVersion, const QORUnicodeString& wanted, Visit visit) {
    QORIDOMElement_var version;
    HRESULT result = FindVersionElement(iFromVersion, iToVersion, version);
    if (result != S_OK) return result;
    QORIDOMNodeList_var children;
    unsigned int length = 0;
    result = childrenOf(version, children, length);
    if (FAILED(result)) return result;
    return walkChildren(
        children, length, [&](const QORUnicodeString& name) { return name == wanted; },
        [&](const QORIDOMElement_var& element, const QORUnicodeString&) { return visit(element); });
}

HRESULT read(const QORIDOMElement_var& element, const char* name, QORUnicodeString& value) {
    const HRESULT result = element->GetAttribute(name, value);
    return FAILED(result) ? REPORTED(result) : S_OK;
}

/// An attribute that may be absent. False after a failing read, which has been reported.
bool readOptional(const QORIDOMElement_var& element, const char* name, bool& isPresent, QORUnicodeString& value) {
    QORIDOMAttr_var attribute;
    isPresent = false;
    if (FAILED(element->GetAttributeNode(name, attribute))) {
        REPORTED(E_UNEXPECTED);
        return false;
    }
    if (attribute.IsNull()) return true;
    isPresent = true;
    if (SUCCEEDED(attribute->GetValue(value))) return true;
    REPORTED(E_UNEXPECTED);
    return false;
}

/// A deprecated or introduced entity or property.
HRESULT changeEntry(const QORIDOMElement_var& element, bool isDeprecation,
                    std::unique_ptr<VersionMappingEntry>& entry) {
    QORUnicodeString entity, property;
    const HRESULT result = read(element, "entity", entity);
    if (FAILED(result) || entity.IsEmpty()) return result;
    bool isPresent = false;
    if (!readOptional(element, "property", isPresent, property)) return S_OK;
    entry = std::make_unique<VersionMappingEntry>();
    entry->Key = isPresent ? entity + property : entity;
    if (isDeprecation)
        entry->Kind = isPresent ? "DEPRECATED_PROPERTY" : "DEPRECATED_ENTITY";
    else
        entry->Kind = isPresent ? "INTRODUCED_PROPERTY" : "INTRODUCED_ENTITY";
    return S_OK;
}

/// A renamed property. Renames of entities alone are no entries: GetMappedEntityName serves them.
HRESULT mapEntry(const QORIDOMElement_var& element, std::unique_ptr<VersionMappingEntry>& entry) {
    QORUnicodeString fromEntity, fromProperty;
    const HRESULT result = read(element, "fromEntity", fromEntity);
    if (FAILED(result) || fromEntity.IsEmpty()) return result;
    bool isPresent = false;
    if (!readOptional(element, "fromProperty", isPresent, fromProperty) || fromProperty.IsEmpty()) return S_OK;
    auto made = std::make_unique<VersionMappingEntry>();
    if (!readOptional(element, "toEntity", isPresent, made->ToEntity)) return S_OK;
    if (!readOptional(element, "toProperty", isPresent, made->ToProperty)) return S_OK;
    if (!isPresent) made->ToProperty = fromProperty;
    made->Key = fromEntity + fromProperty;
    made->Kind = "MAP";
    entry = std::move(made);
    return S_OK;
}

HRESULT BuildVersionMappingTable(int iFromVersion, int iToVersion) {
    QORIDOMElement_var version;
    HRESULT result = FindVersionElement(iFromVersion, iToVersion, version);
    if (result != S_OK) return result;
    QORIDOMNodeList_var children;
    unsigned int length = 0;
    result = childrenOf(version, children, length);
    if (FAILED(result)) return result;
    if (length == 0) return S_OK;
    auto table = std::make_unique<VersionMappingTable>(static_cast<int>(length));
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
    result = walkChildren(children, length, wants, visit);
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
    return visitChanges(iFromVersion, iToVersion, introductionName(), [&](const QORIDOMElement_var& element) {
        QORUnicodeString entity, property, value;
        const HRESULT result = read(element, "entity", entity);
        if (FAILED(result)) return result;
        bool isPresent = false;
        if (!readOptional(element, "property", isPresent, property) || property.IsEmpty()) return S_OK;
        if (!readOptional(element, "propertyValue", isPresent, value) || value.IsEmpty()) return S_OK;
        oEntities.Append(entity);
        oProperties.Append(property);
        oPropertyValues.Append(value);
        return S_OK;
    });
}

HRESULT QOREExchangeIFCMappingServices::GetDeprecatedEntities(int iFromVersion, int iToVersion,
                                                              QORListValQORUnicodeString& oEntities) {
    return visitChanges(iFromVersion, iToVersion, deprecationName(), [&](const QORIDOMElement_var& element) {
        QORUnicodeString entity, property;
        const HRESULT result = read(element, "entity", entity);
        if (FAILED(result)) return result;
        bool isPresent = false;
        if (!readOptional(element, "property", isPresent, property) || isPresent || entity.IsEmpty()) return S_OK;
        entity.ToUpper();
        oEntities.Append(entity);
        return S_OK;
    });
}

HRESULT QOREExchangeIFCMappingServices::GetMappedEntityName(int iFromVersion, int iToVersion,
                                                            QORUnicodeString& ioEntity) {
    return visitChanges(iFromVersion, iToVersion, mappingName(), [&](const QORIDOMElement_var& element) {
        QORUnicodeString from, to;
        HRESULT result = read(element, "fromEntity", from);
        if (FAILED(result)) return result;
        from.ToUpper();
        ioEntity.ToUpper();
        if (from != ioEntity) return S_OK;
        result = read(element, "toEntity", to);
        if (FAILED(result)) return result;
        // Renames go on in the order of the document.
        if (!to.IsEmpty()) ioEntity = to;
        return S_OK;
    });
}

HRESULT QOREExchangeIFCMappingServices::LoadVersionMappingDocument() {
    return loadDocument();
}

HRESULT QOREExchangeIFCMappingServices::ResetVersionMappingTable() {
    delete versionMappingTable;
    versionMappingTable = nullptr;
    return S_OK;
}
