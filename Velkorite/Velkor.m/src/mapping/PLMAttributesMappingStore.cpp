#include "PLMAttributesMappingStore.h"

#include "QORIFCDXXMLServices.h"
#include "TableEntries.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace velkor::library {

namespace {

using Services = QORIFCDXXMLServices;

constexpr const char* mappingPath = "IfcPLMMappingAttr/IfcPLMMapping";
constexpr const char* linePath = "IfcPLMMappingAttr/IfcPLMMapping/fromAttributes";
constexpr const char* includedLinePath = "IfcPLMMappingAttr/PLMAttrIncluded/fromAttributes";
constexpr const char* includePath = "IfcPLMMappingAttr/IfcPLMMapping/PLMAttrInclude";
constexpr const char* groupPath = "IfcPLMMappingAttr/PLMAttrIncluded";

unsigned int hashOf(QORUnicodeString key) {
    key.ToUpper();
    return key.ComputeHashKey();
}

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

unsigned int select(const QORIDOMDocument_var& document, const char* xpath, QORIDOMNodeList_var& nodes) {
    unsigned int length = 0;
    if (SUCCEEDED(Services::GetNodeList(document, xpath, nodes)) && !nodes.IsNull()) nodes->GetLength(length);
    return length;
}
unsigned int count(const QORIDOMDocument_var& document, const char* xpath) {
    QORIDOMNodeList_var nodes;
    return select(document, xpath, nodes);
}

QORUnicodeString attribute(const QORIDOMNode_var& node, const char* name) {
    QORUnicodeString value;
    Services::GetAttributeValue(node, name, value);
    return value;
}

/// Calls `visit` with each child element and its tag name.
template <class Visit>
void visitElements(const QORIDOMNode_var& parent, Visit visit) {
    QORIDOMNodeList_var children;
    unsigned int length = 0;
    if (parent.IsNull() || FAILED(parent->GetChildNodes(children)) || children.IsNull()) return;
    children->GetLength(length);
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var child;
        children->Item(i, child);
        const QORIDOMElement_var element = child;
        QORUnicodeString tag;
        if (!element.IsNull() && SUCCEEDED(element->GetTagName(tag))) visit(child, tag);
    }
}

/// A line that counts for export; else E_FAIL and untouched outputs.
HRESULT ReadExposedAttribute(const QORIDOMNode_var& line, QORUnicodeString& plmProperty, QORUnicodeString& set,
                             QORUnicodeString& property) {
    const QORUnicodeString exposed = attribute(line, "propExpose");
    if (exposed != "Both" && exposed != "Export_Only" && !exposed.IsEmpty()) return E_FAIL;
    plmProperty = attribute(line, "plmProp");
    set = attribute(line, "propSetName");
    property = attribute(line, "ifcProp");
    return S_OK;
}

void appendLine(const QORIDOMNode_var& line, PLMAttrIncludedGroup& group) {
    QORUnicodeString plmProperty, set, property;
    if (FAILED(ReadExposedAttribute(line, plmProperty, set, property))) return;
    group.append(plmProperty, set, property);
}
void appendLines(const QORIDOMNode_var& parent, PLMAttrIncludedGroup& group) {
    visitElements(parent, [&](const QORIDOMNode_var& child, const QORUnicodeString& tag) {
        if (tag == "fromAttributes") appendLine(child, group);
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
    Services::GetDOMDocument(path, _document);
    const HRESULT result = LoadMappingDocument();
    // An id means a group of its own file.
    release<PLMAttrIncludedGroup>(_groups);
    return result;
}

const PLMAttrMappingRecord* PLMAttributesMappingStore::find(const QORUnicodeString& type,
                                                            const QORUnicodeString& attribute) const {
    if (_records == nullptr) return nullptr;
    PLMAttrMappingRecord pattern{type, attribute, {}, {}, hashOf(type + attribute)};
    return static_cast<const PLMAttrMappingRecord*>(_records->Locate(&pattern));
}

HRESULT PLMAttributesMappingStore::LoadMappingDocument() {
    if (_document.IsNull()) return E_FAIL;
    QORIDOMNodeList_var mappings;
    const unsigned int mappingCount = select(_document, mappingPath, mappings);
    if (mappingCount == 0) return E_FAIL;
    const unsigned int lines = count(_document, linePath);
    const unsigned int includedLines = count(_document, includedLinePath);
    const unsigned int includes = count(_document, includePath);
    if (includedLines >= 1) BuildIncludedGroups();
    if (_records == nullptr) {
        const auto size = static_cast<unsigned long long>(includedLines) * includes + lines;
        constexpr unsigned long long mostExpected = 1U << 20U;
        _records = std::make_unique<QORSysSimpleHashTable>(static_cast<int>(std::min(size, mostExpected)),
                                                           hashKey<PLMAttrMappingRecord>, isSameRecord);
    }
    HRESULT result = E_FAIL;
    for (unsigned int i = 0; i < mappingCount; ++i) {
        QORIDOMNode_var mapping;
        mappings->Item(i, mapping);
        if (addMapping(mapping) == S_OK) result = S_OK;
    }
    return result;
}

HRESULT PLMAttributesMappingStore::addMapping(const QORIDOMNode_var& mapping) {
    HRESULT result = E_FAIL;
    const QORUnicodeString name = attribute(mapping, "Name");
    visitElements(mapping, [&](const QORIDOMNode_var& child, const QORUnicodeString& tag) {
        if (tag == "fromAttributes") {
            QORUnicodeString plmProperty, set, property;
            if (FAILED(ReadExposedAttribute(child, plmProperty, set, property))) return;
            add(name, plmProperty, set, property);
            result = S_OK;
        } else if (tag == "PLMAttrInclude") {
            const PLMAttrIncludedGroup* included = group(attribute(child, "IncludedId"));
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
    QORIDOMNodeList_var nodes;
    const unsigned int length = select(_document, groupPath, nodes);
    if (nodes.IsNull()) return;
    _groups =
        std::make_unique<QORSysSimpleHashTable>(static_cast<int>(length), hashKey<PLMAttrIncludedGroup>, isSameGroup);
    std::vector<QORIDOMNode_var> groups(length);
    std::vector<QORUnicodeString> ids;
    for (unsigned int i = 0; i < length; ++i) {
        nodes->Item(i, groups[i]);
        ids.push_back(attribute(groups[i], "id"));
    }
    // All lines of the groups that are complete: an include brings them in, whatever it names.
    PLMAttrIncludedGroup complete;
    for (unsigned int i = 0; i < length; ++i) {
        auto made = std::make_unique<PLMAttrIncludedGroup>();
        made->Id = ids[i];
        made->HashKey = hashOf(made->Id);
        bool hasComplete = false;
        visitElements(groups[i], [&](const QORIDOMNode_var& child, const QORUnicodeString& tag) {
            if (tag == "fromAttributes") appendLine(child, *made);
            if (tag != "PLMAttrInclude") return;
            if (!hasComplete) made->append(complete);
            hasComplete = true;
            // Of a group that is not complete, only its own lines come.
            const QORUnicodeString wanted = attribute(child, "IncludedId");
            for (unsigned int k = i; k < length; ++k) {
                if (ids[k].Compare(wanted) != 0 && group(ids[k]) == nullptr) appendLines(groups[k], *made);
            }
        });
        if (made->PLMProperties.Size() == 0) continue;
        if (const PLMAttrIncludedGroup* inserted = insert(*_groups, std::move(made))) complete.append(*inserted);
    }
}

const PLMAttrIncludedGroup* PLMAttributesMappingStore::group(const QORUnicodeString& id) const {
    if (_groups == nullptr) return nullptr;
    PLMAttrIncludedGroup pattern;
    pattern.Id = id;
    pattern.HashKey = hashOf(id);
    return static_cast<const PLMAttrIncludedGroup*>(_groups->Locate(&pattern));
}

void PLMAttributesMappingStore::add(const QORUnicodeString& type, const QORUnicodeString& attribute,
                                    const QORUnicodeString& set, const QORUnicodeString& property) {
    insert(*_records, std::make_unique<PLMAttrMappingRecord>(
                          PLMAttrMappingRecord{type, attribute, set, property, hashOf(type + attribute)}));
}

} // namespace velkor::library
