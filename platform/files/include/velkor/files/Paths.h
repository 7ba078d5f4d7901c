/// Paths: both separators, "/" and "\\", are accepted everywhere and mean the same.
#pragma once

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

#include <string>

/// Takes a path apart at its last separator: what stands before it, and the name behind it. S_OK; E_FAIL and
/// empty outputs when no name stands behind it. A path without a separator has an empty directory.
VELKOR_PLATFORM_API HRESULT QORSplitPath(const QORUnicodeString& path, QORUnicodeString& directory,
                                         QORUnicodeString& file);

namespace velkor::files {

/// The path as the system's calls take it.
VELKOR_PLATFORM_API std::string nativePath(const QORUnicodeString& path);

} // namespace velkor::files
