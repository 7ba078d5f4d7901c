/// How the services that read mappings tell entries apart, and what an include of PLM attributes brings in: for the
/// services themselves and for whoever explains or judges their files.
#pragma once

#include "velkor/text/QORUnicodeString.h"

#include <cstddef>

namespace velkor {

/// Entries whose keys, the parts one behind the other, have the same hash are the same to the services, which is why
/// "AB" and "C" is "A" and "BC". Letter case does not count.
inline unsigned int mappingKeyHash(QORUnicodeString key) {
    key.ToUpper();
    return key.ComputeHashKey();
}

/// What an include in the group `including`, of `count` in the order of the document, takes in: the lines of all groups
/// that are complete, whichever is named; and of those from the including one on that are `isNamedAndOpen`, named by
/// the include and not complete, their own lines. A group is complete once it has been built with at least one line,
/// unless one of its id is.
template <class TakeComplete, class IsNamedAndOpen, class TakeOwnLines>
void takeIncludedPLMGroups(std::size_t including, std::size_t count, TakeComplete takeComplete,
                           IsNamedAndOpen isNamedAndOpen, TakeOwnLines takeOwnLines) {
    takeComplete();
    for (std::size_t group = including; group < count; ++group) {
        if (isNamedAndOpen(group)) takeOwnLines(group);
    }
}

} // namespace velkor
