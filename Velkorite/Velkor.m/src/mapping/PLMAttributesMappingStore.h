/// The records that answer under which property a PLM attribute is written.
#pragma once

#include "velkor/containers/QORSysSimpleHashTable.h"
#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/xml/DomTypes.h"

#include <memory>
#include <unordered_set>

namespace velkor::library {

/// One resolved line of a document.
struct PLMAttrMappingRecord {
    QORUnicodeString MappingName;
    QORUnicodeString PLMProperty;
    QORUnicodeString PropertySetName;
    QORUnicodeString IFCProperty;
    unsigned int HashKey = 0;
};

/// Lines that mappings of the same document include. The lists are parallel.
struct PLMAttrIncludedGroup {
    QORUnicodeString Id;
    QORListValQORUnicodeString PLMProperties;
    QORListValQORUnicodeString PropertySetNames;
    QORListValQORUnicodeString IFCProperties;
    unsigned int HashKey = 0;
    /// The attributes that have a line, as they are written. Later lines of one would never answer, and includes
    /// of includes would multiply them without end.
    std::unordered_set<QORUnicodeString> attributes;

    void append(const QORUnicodeString& plmProperty, const QORUnicodeString& set, const QORUnicodeString& property);
    void append(const PLMAttrIncludedGroup& other);
};

class PLMAttributesMappingStore {
public:
    PLMAttributesMappingStore() = default;
    ~PLMAttributesMappingStore();
    PLMAttributesMappingStore(const PLMAttributesMappingStore&) = delete;
    PLMAttributesMappingStore& operator=(const PLMAttributesMappingStore&) = delete;

    /// Reads a file and adds its lines; the first one of a type and attribute stays. E_FAIL when that gave
    /// none; a file that cannot be read contributes nothing.
    HRESULT load(const QORUnicodeString& path);
    /// Null when nothing is known of the attribute.
    const PLMAttrMappingRecord* find(const QORUnicodeString& type, const QORUnicodeString& attribute) const;

private:
    HRESULT LoadMappingDocument();
    void BuildIncludedGroups();
    HRESULT addMapping(const QORIDOMNode_var& mapping);
    const PLMAttrIncludedGroup* group(const QORUnicodeString& id) const;
    void add(const QORUnicodeString& type, const QORUnicodeString& attribute, const QORUnicodeString& set,
             const QORUnicodeString& property);

    QORIDOMDocument_var _document;
    std::unique_ptr<QORSysSimpleHashTable> _groups;
    std::unique_ptr<QORSysSimpleHashTable> _records;
};

} // namespace velkor::library
