/// Failures that are reported where they show.
#pragma once

#include "velkor/objectmodeler/Assertion.h"
#include "velkor/objectmodeler/ResultCode.h"

namespace velkor::library {

/// Reports a failure as an assertion of a source unit. The result goes on unchanged.
inline HRESULT reported(HRESULT result, const char* sourceUnit, int line) {
    if (FAILED(result)) __OmyAssertionFailed(sourceUnit, line);
    return result;
}

} // namespace velkor::library

#define REPORTED(result) velkor::library::reported(result, VELKOR_SOURCE_UNIT, __LINE__)
