/// How faults of definitions put what they are about.
#pragma once

#include "velkor/propertysets/DefinitionFile.h"
#include "velkor/text/Printable.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor {

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

/// Blanks and line ends, as XML counts them.
inline std::string_view trimmed(std::string_view text) noexcept {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace velkor
