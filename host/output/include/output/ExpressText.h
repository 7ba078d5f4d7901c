/// EXPRESS laid out for people.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

/// An expression in lines of at most `width` columns where that is possible: what OR and AND connect stands below each
/// other, and what a bracket holds that is too long for the line stands further in. Only blanks are added and taken
/// away.
std::vector<std::string> expressLines(std::string_view expression, std::size_t width);

} // namespace velkor::host
