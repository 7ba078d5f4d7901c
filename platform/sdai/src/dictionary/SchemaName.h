/// Which of several schemas a file means that names its schema loosely.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace velkor::sdai {

/// The name out of `known` that DXSdaiDictionaryRepo::match describes, or empty.
std::string matchSchemaName(std::span<const std::string> known, std::string_view nameInFile);

} // namespace velkor::sdai
