/// How type objects are named after what they describe.
#pragma once

#include "velkor/text/Unicode.h"

#include <string_view>

namespace velkor {

inline constexpr std::string_view typeEndings[] = {"TYPE", "STYLE"};

/// "IfcDoor" for both "IfcDoorType" and "IfcDoorStyle"; empty for other names.
inline std::string_view describedName(std::string_view typeName) {
    for (const std::string_view ending : typeEndings) {
        if (typeName.size() <= ending.size()) continue;
        const std::size_t rest = typeName.size() - ending.size();
        if (text::equalIgnoringCase(typeName.substr(rest), ending)) return typeName.substr(0, rest);
    }
    return {};
}

} // namespace velkor
