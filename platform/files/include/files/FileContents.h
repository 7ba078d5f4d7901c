/// Files written as a whole.
#pragma once

#include "text/QORUnicodeString.h"

#include <string>
#include <string_view>

namespace velkor::files {

/// Puts bytes in place of what a file holds, or makes the file, with the permissions it had. Whoever
/// reads it meanwhile sees the old file or the new one; when something fails, the old one stays. Gives why it
/// failed, empty when it did not.
std::string replaceFile(const QORUnicodeString& path, std::string_view bytes);

} // namespace velkor::files
