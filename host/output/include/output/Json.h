/// JSON as the host writes it: members in the order given, two blanks per level or all in one line, real
/// numbers with 17 significant digits so that they read back as the same double. Units that make JSON
/// include <nlohmann/json.hpp> themselves; it costs seconds to compile.
#pragma once

#include "terminal/TextSink.h"

#include <nlohmann/json_fwd.hpp>
#include <string>

namespace velkor::host {

using Json = nlohmann::ordered_json;

/// Null for an empty text.
Json textOrNull(const std::string& text);

enum class JsonLayout { Indented, Line };

/// Writes a value and a line end, in one line where that is asked for. Infinities and NaN, which JSON lacks, become
/// null. A text that is not UTF-8, such as the name of a file, has its bad bytes replaced by U+FFFD; behind such a
/// member stands one with "_bytes" added to its name that holds the text percent-encoded (RFC 3986). Of a list of texts
/// it holds all of them so.
void writeJson(TextSink out, const Json& value, JsonLayout layout = JsonLayout::Indented);

} // namespace velkor::host
