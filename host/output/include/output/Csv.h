/// Comma-separated values as RFC 4180 has them.
#pragma once

#include <string>
#include <string_view>

namespace velkor::host {

/// A field for a text that a file holds. Spreadsheets take what begins with "=", "+", "-", "@", a tab or a carriage
/// return for a formula: an apostrophe is put before those.
std::string csvField(std::string_view text);

} // namespace velkor::host
