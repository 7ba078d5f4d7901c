/// How faults of definitions put what they are about.
#pragma once

#include "velkor/propertysets/DefinitionFile.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Unicode.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor::definitions {

/// A text of a definition for people: one line, not too long.
inline std::string shown(std::string_view text) {
    constexpr std::size_t longest = 80;
    std::string result("\"");
    return result.append(text::excerpt(text, longest)).append("\"");
}

/// What is found, a colon, and what becomes of it.
inline void addFault(std::vector<DefinitionFault>& faults, int line, std::string_view kind, std::string found,
                     std::string_view becomes) {
    faults.push_back({line, std::string(kind), std::move(found.append(": ").append(becomes))});
}

using text::trimmed;

} // namespace velkor::definitions
