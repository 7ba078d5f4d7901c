/// What `velkor --version` answers.
#pragma once

#include <string>

namespace velkor::host {

/// In a format, "text" or "json".
std::string versionText(const std::string& format);

} // namespace velkor::host
