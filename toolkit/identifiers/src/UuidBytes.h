#pragma once

#include "velkor/identifiers/NamedGuid.h"

namespace velkor::guid {

/// In groups of 8, 4, 4, 4 and 12 digits, in lower case.
std::string hexadecimalText(const Uuid& bytes);

} // namespace velkor::guid
