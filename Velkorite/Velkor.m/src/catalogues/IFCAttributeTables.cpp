#include "IFCAttributeTables.h"

#include "foundation/TableEntries.h"

#include <memory>

namespace {

/// How many entries the tables have room for at first.
constexpr int generalSize = 180;
constexpr int ifc4AndAboveSize = 160;
constexpr int ifc2x3Size = 30;

unsigned int hashOf(void* record) {
    const auto& attribute = *static_cast<const IFCAttributeRecord*>(record);
    const QORUnicodeString key = attribute.Name + attribute.PropertySet + attribute.Entity;
    return key.IsEmpty() ? 0xFFFFFFFFU : key.ComputeHashKey();
}

int areSame(void* a, void* b) {
    const auto& first = *static_cast<const IFCAttributeRecord*>(a);
    const auto& second = *static_cast<const IFCAttributeRecord*>(b);
    return first.Name == second.Name && first.PropertySet == second.PropertySet && first.Entity == second.Entity ? 1
                                                                                                                 : 0;
}

} // namespace

IFCAttributeTables::IFCAttributeTables()
    : _general(generalSize, hashOf, areSame), _ifc4AndAbove(ifc4AndAboveSize, hashOf, areSame),
      _ifc2x3(ifc2x3Size, hashOf, areSame) {}

IFCAttributeTables::~IFCAttributeTables() {
    for (QORSysSimpleHashTable* table : {&_general, &_ifc4AndAbove, &_ifc2x3})
        velkor::library::destroyEntries<IFCAttributeRecord>(*table);
}

void IFCAttributeTables::insert(const IFCAttributeRecord& record, IfcLevel level) {
    QORSysSimpleHashTable& table = level == IfcLevel2X3         ? _ifc2x3
                                   : level == IfcLevel4AndAbove ? _ifc4AndAbove
                                                                : _general;
    auto entry = std::make_unique<IFCAttributeRecord>(record);
    // The table has the entry now.
    if (table.Insert(entry.get()) == 1) static_cast<void>(entry.release());
}

const IFCAttributeRecord* IFCAttributeTables::locate(IFCAttributeRecord& pattern, IfcLevel level) const {
    void* found = nullptr;
    if (level == IfcLevel4AndAbove) found = _ifc4AndAbove.Locate(&pattern);
    if (level == IfcLevel2X3) found = _ifc2x3.Locate(&pattern);
    if (found == nullptr) found = _general.Locate(&pattern);
    return static_cast<const IFCAttributeRecord*>(found);
}
