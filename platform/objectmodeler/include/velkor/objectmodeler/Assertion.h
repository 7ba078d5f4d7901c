/// Reports of conditions that the code holds impossible. A report is counted and kept; it never
/// stops anything.
#pragma once

#include "velkor/PlatformExport.h"

#include <cstdint>
#include <string>
#include <vector>

/// Reports a failed assertion in a source unit. Any thread may call it. `message`, which may be null,
/// is copied.
VELKOR_PLATFORM_API void __OmyAssertionFailed(const char* sourceUnit, int line, const char* message = nullptr);

/// Reports the source unit, by its path in the project, and the line it stands on.
#define VELKOR_ASSERTION_FAILED() __OmyAssertionFailed(VELKOR_SOURCE_UNIT, __LINE__)
#ifndef VELKOR_SOURCE_UNIT
/// The source unit that is being compiled.
#define VELKOR_SOURCE_UNIT __FILE__
#endif

namespace velkor::objectmodeler {

/// An assertion that did not hold.
struct AssertionReport {
    std::string sourceUnit;
    int line = 0;
    /// Empty for most.
    std::string message;
};

/// Reports since the process began or since clearAssertionReports().
VELKOR_PLATFORM_API std::uint64_t assertionCount() noexcept;
/// The last reports, oldest first; at most 1,000 are kept.
VELKOR_PLATFORM_API std::vector<AssertionReport> assertionReports();
VELKOR_PLATFORM_API void clearAssertionReports() noexcept; ///< Forgets the reports.

} // namespace velkor::objectmodeler
