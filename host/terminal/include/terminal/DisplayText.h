/// Text laid out for a page that people read on a terminal.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

/// Columns that printable text takes on a terminal.
std::size_t displayWidth(std::string_view text);

/// Text made printable, its end cut off and "…" in its place when it takes more columns than `width`. A text of any
/// length costs no more than what is seen of it.
std::string shortened(std::string_view text, std::size_t width);

/// Text made printable, in lines of at most `width` columns, broken at blanks where that is possible and
/// never inside what a reader sees as one character. What does not fit into `maxLines` is cut
/// off, and "…" tells so. Empty text gives no line.
std::vector<std::string> wrapped(std::string_view text, std::size_t width, std::size_t maxLines);

} // namespace velkor::host
