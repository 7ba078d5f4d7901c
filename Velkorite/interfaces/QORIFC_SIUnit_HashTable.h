/// The unit instances of a model, found by the text that IFC would write for them.
///
///     QORIFC_SIUnit_HashTable::Initialize();
///     for (DXSdaiAppInstance* unit : units) QORIFC_SIUnit_HashTable::InsertSIUnit(unit);
///     QORUnicodeString name("MILLIMETRE");
///     DXSdaiAppInstance* millimetre = QORIFC_SIUnit_HashTable::LocateSIUnit(name);
///     …
///     QORIFC_SIUnit_HashTable::DeleteHashTable(); // before the model is closed
///
///     a kind of              is found by
///     IFCSIUNIT              prefix and name without a separator: "MILLIMETRE", "METRE"
///     IFCDERIVEDUNIT         its unit type: "VOLUMETRICFLOWRATEUNIT"
///     IFCDERIVEDUNITELEMENT  prefix and name of its unit, "_" and the exponent: "CENTIMETRE_2", "SECOND_-1"
///     anything else          nothing; all such instances are one entry
///
/// Only the hash of the text is kept: texts whose hashes are the same are the same entry. One table per
/// process; calls from one thread. The instances stay the model's, and every operation but DeleteHashTable
/// may read those that are in the table.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORUnicodeString.h"

class DXSdaiAppInstance;
class QORSysSimpleHashTable;

class VELKOR_API QORIFC_SIUnit_HashTable {
public:
    QORIFC_SIUnit_HashTable();
    virtual ~QORIFC_SIUnit_HashTable();

    /// Makes the table; one that is there already stays as it is. S_OK; E_FAIL when there is no memory for it.
    static HRESULT Initialize();

    /// Adds a unit. Nothing when there is no table, for null, and for a unit whose text is that of an entry.
    static void InsertSIUnit(DXSdaiAppInstance* unit);
    /// The unit with this text, letter case included; null when there is none, no table, or the text is empty.
    static DXSdaiAppInstance* LocateSIUnit(QORUnicodeString& name);

    /// Takes all units out and destroys the table; nothing when there is none.
    static void DeleteHashTable();

private:
    static unsigned int GetHashKey(void* unit);
    static int Compare(void* a, void* b);

    static QORSysSimpleHashTable* _pSIUnit_HashTable;
};
