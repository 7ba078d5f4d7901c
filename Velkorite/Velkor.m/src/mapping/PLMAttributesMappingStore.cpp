#include "PLMAttributesMappingStore.h"

#include "foundation/TableEntries.h"
#include "QORIFCDXXMLServices.h"
#include "ResourceKeys.h"
#include "ResourceNames.h"
#include "xml/XmlNodes.h"

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

namespace velkor::library {

namespace {

namespace names = velkor::names::plm;

template <class Entry>
unsigned int hashKey(void* entry) {
    return static_cast<const Entry*>(entry)->HashKey;
}

int isSameRecord(void* a, void* b) {
    const auto& one = *static_cast<const PLMAttrMappingRecord*>(a);
    const auto& other = *static_cast<const PLMAttrMappingRecord*>(b);
    return one.MappingName.Compare(other.MappingName) != 0 && one.PLMProperty.Compare(other.PLMProperty) != 0 ? 1 : 0;
}

int isSameGroup(void* a, void* b) {
    return static_cast<const PLMAttrIncludedGroup*>(a)->Id.Compare(static_cast<const PLMAttrIncludedGroup*>(b)->Id) != 0
               ? 1
               : 0;
}

/// Destroys a table and its entries.
template <class Entry>
void release(std::unique_ptr<QORSysSimpleHashTable>& table) {
    if (table != nullptr) destroyEntries<Entry>(*table);
    table.reset();
}

/// Inserts an entry and gives it; null for one that the table refuses, which goes.
template <class Entry>
const Entry* insert(QORSysSimpleHashTable& table, std::unique_ptr<Entry> entry) {
    return table.Insert(entry.get()) == 1 ? entry.release() : nullptr;
}

unsigned int count(const QORIDOMDocument_var& document, std::initializer_list<const char*> path) {
    return select(document, path).length();
}

/// An attribute that cannot be had is reported and counts as absent.
QORUnicodeString value(const QORIDOMNode_var& node, const char* name) {
    QORUnicodeString text;
    QORIDOMElement_var element;
    if (FAILED(asElement(node, element)) || FAILED(attribute(element, name, text))) return {};
    return text;
}

/// Calls `visit` with each child element and its tag name.
template <class Visit>
void visitElements(const QORIDOMNode_var& parent, Visit visit) {
    for (const QORIDOMElement_var& element : childElements(parent)) {
        QORUnicodeString tag;
        if (SUCCEEDED(element->GetTagName(tag))) visit(element, tag);
    }
}

/// A line that counts for export; else E_FAIL and untouched outputs.
HRESULT ReadExposedAttribute(const QORIDOMElement_var& line, QORUnicodeString& plmProperty, QORUnicodeString& set,
                             QORUnicodeString& property) {
    if (!names::isExported(value(line, names::direction).utf8())) return E_FAIL;
    plmProperty = value(line, names::plmAttribute);
    set = value(line, names::propertySet);
    property = value(line, names::property);
    return S_OK;
}

void appendLine(const QORIDOMElement_var& line, PLMAttrIncludedGroup& group) {
    QORUnicodeString plmProperty, set, property;
    if (FAILED(ReadExposedAttribute(line, plmProperty, set, property))) return;
    group.append(plmProperty, set, property);
}
void appendLines(const QORIDOMNode_var& parent, PLMAttrIncludedGroup& group) {
    visitElements(parent, [&](const QORIDOMElement_var& child, const QORUnicodeString& tag) {
        if (tag == names::line) appendLine(child, group);
    });
}

} // namespace

void PLMAttrIncludedGroup::append(const QORUnicodeString& plmProperty, const QORUnicodeString& set,
                                  const QORUnicodeString& property) {
    if (!attributes.insert(plmProperty).second) return;
    PLMProperties.Append(plmProperty);
    PropertySetNames.Append(set);
    IFCProperties.Append(property);
}

void PLMAttrIncludedGroup::append(const PLMAttrIncludedGroup& other) {
    for (int k = 1; k <= other.PLMProperties.Size(); ++k) {
        append(other.PLMProperties[k], other.PropertySetNames[k], other.IFCProperties[k]);
    }
}

PLMAttributesMappingStore::~PLMAttributesMappingStore() {
    release<PLMAttrIncludedGroup>(_groups);
    release<PLMAttrMappingRecord>(_records);
}

HRESULT PLMAttributesMappingStore::load(const QORUnicodeString& path) {
    // Forgotten first, so that a file that cannot be read does not bring the one before once more.
    _document = {};
    QORIFCDXXMLServices::GetDOMDocument(path, _document);
    const HRESULT result = LoadMappingDocument();
    // An id means a group of its own file.
    release<PLMAttrIncludedGroup>(_groups);
    return result;
}

const PLMAttrMappingRecord* PLMAttributesMappingStore::find(const QORUnicodeString& type,
                                                            const QORUnicodeString& attribute) const {
    if (_records == nullptr) return nullptr;
    PLMAttrMappingRecord pattern{type, attribute, {}, {}, mappingKeyHash(type + attribute)};
    return static_cast<const PLMAttrMappingRecord*>(_records->Locate(&pattern));
}

HRESULT PLMAttributesMappingStore::LoadMappingDocument() {
    if (_document.IsNull()) return E_FAIL;
    const NodeRange mappings = select(_document, {names::root, names::mapping});
    if (mappings.length() == 0) return E_FAIL;
    const unsigned int lines = count(_document, {names::root, names::mapping, names::line});
    const unsigned int includedLines = count(_document, {names::root, names::group, names::line});
    const unsigned int includes = count(_document, {names::root, names::mapping, names::include});
    if (includedLines >= 1) BuildIncludedGroups();
    if (_records == nullptr) {
        const auto size = static_cast<unsigned long long>(includedLines) * includes + lines;
        constexpr unsigned long long mostExpected = 1U << 20U;
        _records = std::make_unique<QORSysSimpleHashTable>(static_cast<int>(std::min(size, mostExpected)),
                                                           hashKey<PLMAttrMappingRecord>, isSameRecord);
    }
    HRESULT result = E_FAIL;
    for (const ListedNode& mapping : mappings) {
        if (addMapping(mapping.node) == S_OK) result = S_OK;
    }
    return result;
}

HRESULT PLMAttributesMappingStore::addMapping(const QORIDOMNode_var& mapping) {
    HRESULT result = E_FAIL;
    const QORUnicodeString name = value(mapping, names::type);
    visitElements(mapping, [&](const QORIDOMElement_var& child, const QORUnicodeString& tag) {
        if (tag == names::line) {
            QORUnicodeString plmProperty, set, property;
            if (FAILED(ReadExposedAttribute(child, plmProperty, set, property))) return;
            add(name, plmProperty, set, property);
            result = S_OK;
        } else if (tag == names::include) {
            const PLMAttrIncludedGroup* included = group(value(child, names::includedId));
            if (included == nullptr) return;
            for (int k = 1; k <= included->PLMProperties.Size(); ++k) {
                add(name, included->PLMProperties[k], included->PropertySetNames[k], included->IFCProperties[k]);
            }
            result = S_OK;
        }
    });
    return result;
}

void PLMAttributesMappingStore::BuildIncludedGroups() {
    const NodeRange nodes = select(_document, {names::root, names::group});
    if (FAILED(nodes.result())) return;
    _groups = std::make_unique<QORSysSimpleHashTable>(static_cast<int>(nodes.length()), hashKey<PLMAttrIncludedGroup>,
                                                      isSameGroup);
    std::vector<QORIDOMNode_var> groups;
    std::vector<QORUnicodeString> ids;
    for (const ListedNode& listed : nodes) {
        groups.push_back(listed.node);
        ids.push_back(value(listed.node, names::id));
    }
    // All lines of the groups that are complete: an include brings them in, whatever it names.
    PLMAttrIncludedGroup complete;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        auto made = std::make_unique<PLMAttrIncludedGroup>();
        made->Id = ids[i];
        made->HashKey = mappingKeyHash(made->Id);
        bool hasComplete = false;
        visitElements(groups[i], [&](const QORIDOMElement_var& child, const QORUnicodeString& tag) {
            if (tag == names::line) appendLine(child, *made);
            if (tag != names::include) return;
            const QORUnicodeString wanted = value(child, names::includedId);
            takeIncludedPLMGroups(
                i, groups.size(),
                [&] {
                    if (!hasComplete) made->append(complete);
                    hasComplete = true;
                },
                [&](std::size_t k) { return ids[k].Compare(wanted) != 0 && group(ids[k]) == nullptr; },
                [&](std::size_t k) { appendLines(groups[k], *made); });
        });
        if (made->PLMProperties.Size() == 0) continue;
        if (const PLMAttrIncludedGroup* inserted = insert(*_groups, std::move(made))) complete.append(*inserted);
    }
}

const PLMAttrIncludedGroup* PLMAttributesMappingStore::group(const QORUnicodeString& id) const {
    if (_groups == nullptr) return nullptr;
    PLMAttrIncludedGroup pattern;
    pattern.Id = id;
    pattern.HashKey = mappingKeyHash(id);
    return static_cast<const PLMAttrIncludedGroup*>(_groups->Locate(&pattern));
}

void PLMAttributesMappingStore::add(const QORUnicodeString& type, const QORUnicodeString& attribute,
                                    const QORUnicodeString& set, const QORUnicodeString& property) {
    insert(*_records, std::make_unique<PLMAttrMappingRecord>(
                          PLMAttrMappingRecord{type, attribute, set, property, mappingKeyHash(type + attribute)}));
}

} // namespace velkor::library
