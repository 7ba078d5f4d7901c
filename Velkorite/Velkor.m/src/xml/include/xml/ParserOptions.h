/// Options as the parser takes them.
#pragma once

#include "velkor/text/QORListValQORUnicodeString.h"

#include <cstddef>

namespace velkor::library {

struct Pair {
    const char* first;
    const char* second;
};

/// Pairs as two parallel lists.
struct ParallelLists {
    template <std::size_t count>
    explicit ParallelLists(const Pair (&pairs)[count]) {
        for (const Pair& pair : pairs) {
            first.Append(pair.first);
            second.Append(pair.second);
        }
    }
    QORListValQORUnicodeString first;
    QORListValQORUnicodeString second;
};

/// How every document is read.
inline constexpr Pair parserOptions[] = {{"QORDoValidation", "false"}, {"QOREnableNameSpaces", "true"}};

} // namespace velkor::library
