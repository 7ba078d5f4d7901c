/// Results of steps: a step that fails is left early, and reported where it shows.
///
///     QORIDOMNode_var parent;
///     RETURN_IF_FAILED(reported(given(element->GetParentNode(parent), parent)));
#pragma once

#include "velkor/objectmodeler/Assertion.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/objectmodeler/ResultCode.h"

namespace velkor::library {

/// A line of a source unit; as a default argument, that of the call.
struct SourcePlace {
    const char* unit;
    int line;

    static constexpr SourcePlace here(const char* unit = __builtin_FILE(), int line = __builtin_LINE()) noexcept {
        return {unit, line};
    }
};

/// Reports a failure as an assertion of a source unit. The result goes on unchanged.
[[nodiscard]] inline HRESULT reported(HRESULT result, SourcePlace place = SourcePlace::here(),
                                      const char* message = nullptr) {
    if (FAILED(result)) __OmyAssertionFailed(place.unit, place.line, message);
    return result;
}

/// What became of a step that was to give an object: E_UNEXPECTED when it succeeded without one.
[[nodiscard]] inline HRESULT given(HRESULT result, const QORBaseUnknown_var& object) noexcept {
    if (FAILED(result)) return result;
    return object.IsNull() ? E_UNEXPECTED : S_OK;
}

} // namespace velkor::library

/// Leaves the function that it stands in with the result of a step, when that is a failure.
#define RETURN_IF_FAILED(step)                                                                                         \
    if (const HRESULT failure = (step); FAILED(failure)) return failure
