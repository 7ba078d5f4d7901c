/// Reads an EXPRESS source (ISO 10303-11).
#pragma once

#include "ExpressSchema.h"

#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::express {

/// Adds what a source declares to `schema`; the source may be a whole schema or declarations alone.
/// The error is "NAME:LINE: expected …, found …".
[[nodiscard]] tl::expected<void, std::string> readExpress(std::string_view text, const std::string& name,
                                                          ExpressSchema& schema);

} // namespace velkor::express
