/// JSON as the host writes it: members in the order given, two blanks per level, real
/// numbers with 17 significant digits so that they read back as the same double. Units that make JSON
/// include <nlohmann/json.hpp> themselves; it costs seconds to compile.
#pragma once

#include <iosfwd>
#include <nlohmann/json_fwd.hpp>

namespace velkor::host {

using Json = nlohmann::ordered_json;

/// Writes a value and a line end. Infinities and NaN, which JSON lacks, become null; text that is
/// not UTF-8 has its bad bytes replaced.
void writeJson(std::ostream& out, const Json& value);

} // namespace velkor::host
