/// What setup data call a resource.
#pragma once

#include "velkor/text/QORUnicodeString.h"

namespace velkor::library {

inline QORUnicodeString resourceKey(const QORUnicodeString& resourceSet, const QORUnicodeString& category) {
    return resourceSet + "|" + category;
}

} // namespace velkor::library
