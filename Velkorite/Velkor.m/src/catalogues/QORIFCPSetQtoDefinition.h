/// What a definition file says about one property set or quantity set.
#pragma once

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORDXUnicodeString.h"
#include "velkor/text/QORListValQORUnicodeString.h"

#include <unordered_map>

class DXSdaiAppInstance;

class QORIFCPSetQtoDefinition {
public:
    virtual ~QORIFCPSetQtoDefinition();

    /// Adds what a file holds. The parser's result.
    [[nodiscard]] HRESULT read(const QORUnicodeString& path);

    /// True for a class that the set applies to, letter case ignored, and for an instance of a kind of one; null is
    /// none.
    bool appliesTo(QORUnicodeString className, const DXSdaiAppInstance* instance) const;
    /// True for a property of the set, letter case ignored.
    bool hasProperty(QORUnicodeString propertyName) const;

private:
    // Both in upper case.
    QORListValQORUnicodeString _applicableClasses;
    std::unordered_map<QORDXUnicodeString, QORDXUnicodeString> _propertyNames;
};
