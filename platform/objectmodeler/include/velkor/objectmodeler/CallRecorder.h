/// A record of what libraries asked of the platform, in order: module construction, registrations,
/// metaclass creations, exit callbacks, schema registrations and restores, and where a registration
/// table was not as it has to be. Off until started; then each call is one line of text.
#pragma once

#include "velkor/PlatformExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::objectmodeler {

/// Starts with an empty record.
VELKOR_PLATFORM_API void startRecording();
VELKOR_PLATFORM_API void stopRecording(); ///< Calls are no longer recorded; what was recorded stays.
/// What was called since the recording began, in its order.
VELKOR_PLATFORM_API std::vector<std::string> recordedCalls();

/// True while recording; asked before a line is put together.
VELKOR_PLATFORM_API bool isRecording() noexcept;
/// Adds a line, when recording.
VELKOR_PLATFORM_API void recordCall(std::string_view line);

} // namespace velkor::objectmodeler
