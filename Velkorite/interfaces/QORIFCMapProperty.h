/// A mapped property: a name, and rows of five texts whose meaning is the host's.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORListValQORUnicodeString.h"

class VELKOR_API QORIFCMapProperty {
public:
    /// A property without rows.
    QORIFCMapProperty(const QORUnicodeString& name);
    virtual ~QORIFCMapProperty();

    QORUnicodeString GetName() const; ///< The name that it was made with.

    /// Adds a row behind the others, also one that is there already. S_OK.
    HRESULT AppendAttribute(const QORUnicodeString& a1, const QORUnicodeString& a2, const QORUnicodeString& a3,
                            const QORUnicodeString& a4, const QORUnicodeString& a5);
    int GetNumberOfAttributes() const; ///< Number of rows.
    /// The row at a position counted from 1. E_FAIL, and untouched outputs, when there is none.
    HRESULT GetAttributeAt(int index, QORUnicodeString& a1, QORUnicodeString& a2, QORUnicodeString& a3,
                           QORUnicodeString& a4, QORUnicodeString& a5);

    /// Hash of a property's name for a hash table; 0 for null.
    static unsigned int GetHashKey(void* record);
    /// 1 when two properties have the same name, letter case included, else 0. Null is a property with an empty name.
    static int Compare(void* a, void* b);

private:
    QORUnicodeString _name;
    // Parallel: a row is the items at one position.
    QORListValQORUnicodeString _attributes1;
    QORListValQORUnicodeString _attributes2;
    QORListValQORUnicodeString _attributes3;
    QORListValQORUnicodeString _attributes4;
    QORListValQORUnicodeString _attributes5;
};
