/// The entries of attribute catalogues, one table per level.
#pragma once

#include "IFCAttributeList.h"
#include "velkor/containers/QORSysSimpleHashTable.h"
#include "velkor/text/QORUnicodeString.h"

/// One entry. Name, property set and entity are its key.
struct IFCAttributeRecord {
    /// Reserved; always empty.
    QORUnicodeString unused;
    QORUnicodeString PropertySet;
    QORUnicodeString Entity;
    QORUnicodeString Name;
    QORUnicodeString Value;
};

class IFCAttributeTables {
public:
    IFCAttributeTables();
    ~IFCAttributeTables();
    IFCAttributeTables(const IFCAttributeTables&) = delete;
    IFCAttributeTables& operator=(const IFCAttributeTables&) = delete;

    /// Adds an entry to the table of a level, unless the table has one with its key.
    void insert(const IFCAttributeRecord& record, IfcLevel level);
    /// The entry with the key of `pattern`: that of the level, else that of the general level. Null when there is
    /// none.
    const IFCAttributeRecord* locate(IFCAttributeRecord& pattern, IfcLevel level) const;

private:
    QORSysSimpleHashTable _general;
    QORSysSimpleHashTable _ifc4AndAbove;
    QORSysSimpleHashTable _ifc2x3;
};
