/// Which findings of a check count, by their codes.
///
///     const CodeFilter codes{.only = {}, .ignore = {"integer-for-real"}};
///     if (codes.takes("wrong-type")) …
#pragma once

#include "velkor/ToolkitExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor {

struct VELKOR_TOOLKIT_API CodeFilter {
    /// Only these; empty for all.
    std::vector<std::string> only = {};
    /// All but these; stronger than `only`.
    std::vector<std::string> ignore = {};

    bool takes(std::string_view code) const; ///< True when problems of the code are wanted.
    bool takesAll() const noexcept { return only.empty() && ignore.empty(); } ///< True when nothing is left out.
};

} // namespace velkor
