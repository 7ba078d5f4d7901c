#include "QORIFC_SIUnit_HashTable.h"

#include "foundation/TableEntries.h"
#include "velkor/containers/QORSysSimpleHashTable.h"
#include "velkor/sdai/DXSdaiAppInstance.h"

namespace {

/// The enumerator that an attribute has; empty when it has none or is no enumeration.
QORUnicodeString enumerator(const DXSdaiAppInstance& instance, const char* attributeName) {
    return QORUnicodeString(instance.GetAttr(attributeName).asEnumeration().text());
}

/// A unit's prefix and name, each where the unit has it as an enumerator.
QORUnicodeString prefixAndName(const DXSdaiAppInstance& unit) {
    return enumerator(unit, "PREFIX") + enumerator(unit, "NAME");
}

/// The text that a unit is found by.
QORUnicodeString keyText(const DXSdaiAppInstance& unit) {
    if (unit.IsKindOf("IFCSIUNIT")) return prefixAndName(unit);
    if (unit.IsKindOf("IFCDERIVEDUNIT")) return enumerator(unit, "UNITTYPE");
    QORUnicodeString text;
    if (!unit.IsKindOf("IFCDERIVEDUNITELEMENT")) return text;
    if (const DXSdaiAppInstance* base = unit.GetAttr("UNIT").asInstance()) text = prefixAndName(*base);
    QORUnicodeString exponent;
    exponent.BuildFromNum(static_cast<int>(unit.GetAttr("EXPONENT").asInteger().value_or(0)));
    return text + "_" + exponent;
}

} // namespace

QORSysSimpleHashTable* QORIFC_SIUnit_HashTable::_pSIUnit_HashTable = nullptr;

QORIFC_SIUnit_HashTable::QORIFC_SIUnit_HashTable() = default;
QORIFC_SIUnit_HashTable::~QORIFC_SIUnit_HashTable() = default;

HRESULT QORIFC_SIUnit_HashTable::Initialize() {
    if (_pSIUnit_HashTable == nullptr) _pSIUnit_HashTable = velkor::library::makeTable(GetHashKey, Compare);
    return _pSIUnit_HashTable != nullptr ? S_OK : E_FAIL;
}

void QORIFC_SIUnit_HashTable::InsertSIUnit(DXSdaiAppInstance* unit) {
    if (_pSIUnit_HashTable != nullptr && unit != nullptr) _pSIUnit_HashTable->Insert(unit);
}

DXSdaiAppInstance* QORIFC_SIUnit_HashTable::LocateSIUnit(QORUnicodeString& name) {
    if (_pSIUnit_HashTable == nullptr || name.IsEmpty()) return nullptr;
    return static_cast<DXSdaiAppInstance*>(_pSIUnit_HashTable->KeyLocate(name.ComputeHashKey()));
}

void QORIFC_SIUnit_HashTable::DeleteHashTable() {
    if (_pSIUnit_HashTable == nullptr) return;
    if (_pSIUnit_HashTable->Size() > 0) _pSIUnit_HashTable->RemoveAll();
    delete _pSIUnit_HashTable;
    _pSIUnit_HashTable = nullptr;
}

unsigned int QORIFC_SIUnit_HashTable::GetHashKey(void* unit) {
    const QORUnicodeString text = keyText(*static_cast<const DXSdaiAppInstance*>(unit));
    return text.IsEmpty() ? 0 : text.ComputeHashKey();
}

int QORIFC_SIUnit_HashTable::Compare(void* a, void* b) {
    return GetHashKey(a) == GetHashKey(b) ? 1 : 0;
}
