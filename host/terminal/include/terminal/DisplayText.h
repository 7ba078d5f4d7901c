/// Text laid out for a page that people read on a terminal.
#pragma once

#include "terminal/TextSink.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

/// Columns that printable text takes on a terminal.
std::size_t displayWidth(std::string_view text);

/// Takes what a reader sees as one character off a text that is not empty, and gives its columns.
std::size_t takeCharacter(std::string_view& text);

/// Text made printable, its end cut off and "…" in its place when it takes more columns than `width`. A text of any
/// length costs no more than what is seen of it.
std::string shortened(std::string_view text, std::size_t width);

/// Text for `out`: shortened on a terminal, all of it where there is none.
std::string shortenedOn(TextSink out, std::string_view text, std::size_t width);

/// Text made printable, in lines of at most `width` columns, broken at blanks; a word that is wider is a line of its
/// own, but one of wide characters is broken before any of them. What does not fit into `maxLines` is cut off, and "…"
/// tells so, never inside what a reader sees as one character. Empty text gives no line.
std::vector<std::string> wrapped(std::string_view text, std::size_t width, std::size_t maxLines);

/// A cell of a table in lines of at most `width` columns: broken at blanks, a word that is wider cut off. Not more than
/// `maxLines`.
std::vector<std::string> cellLines(std::string_view text, std::size_t width, std::size_t maxLines);

/// Columns of the widest word.
std::size_t widestWord(std::string_view text);

} // namespace velkor::host
