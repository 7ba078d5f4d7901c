/// What edits of files and of models say alike.
#pragma once

#include "velkor/sdai/Part21Encoding.h"

#include <string>
#include <tl/expected.hpp>
#include <utility>

namespace velkor::sdai::part21 {

/// "#12"; empty for no instance.
inline std::string named(std::uint64_t id) {
    std::string name;
    return appendReference(name, id) ? name : std::string();
}

inline tl::unexpected<std::string> refused(std::string reason) {
    return tl::unexpected<std::string>(std::move(reason));
}

} // namespace velkor::sdai::part21
