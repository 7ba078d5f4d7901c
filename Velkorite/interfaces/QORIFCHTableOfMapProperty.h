/// The process's table of mapped properties, which the host fills and reads.
///
///     QORIFCHTableOfMapProperty::Initialize();
///     QORIFCHTableOfMapProperty::AddAttribute("FireRating", "Pset_WallCommon", …);
///     QORIFCMapProperty* property = nullptr;
///     if (SUCCEEDED(QORIFCHTableOfMapProperty::Locate("FireRating", property))) use(*property);
///     QORIFCHTableOfMapProperty::Terminate();
///
/// Names are told apart letter case included. Calls from one thread.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORUnicodeString.h"

class QORIFCMapProperty;
class QORSysSimpleHashTable;

class VELKOR_API QORIFCHTableOfMapProperty {
public:
    /// Makes the table; one that is there already stays as it is. S_OK always, also without memory for a
    /// table; there is none then.
    static HRESULT Initialize();

    /// Adds a row to the property with this name, which is made with its first row. S_OK; E_FAIL when there is no
    /// table.
    static HRESULT AddAttribute(const QORUnicodeString& name, const QORUnicodeString& a1, const QORUnicodeString& a2,
                                const QORUnicodeString& a3, const QORUnicodeString& a4, const QORUnicodeString& a5);
    /// The property with this name, which stays the table's and there until Terminate. E_FAIL, and null, when there is
    /// none; E_FAIL, and `record` untouched, when there is no table.
    static HRESULT Locate(const QORUnicodeString& name, QORIFCMapProperty*& record);

    /// Destroys the properties and the table; nothing when there is none. S_OK.
    static HRESULT Terminate();

private:
    QORIFCHTableOfMapProperty();
    virtual ~QORIFCHTableOfMapProperty();

    static QORSysSimpleHashTable* _pHListOfMapProperty;
};
