/// Memory that others than operator new do not get.
#pragma once

#include "velkor/PlatformExport.h"

namespace velkor::objectmodeler {

/// Does what operator new does: tells the new-handler of the process, where there is one, and throws std::bad_alloc.
[[noreturn]] VELKOR_PLATFORM_API void outOfMemory();

} // namespace velkor::objectmodeler
