/// How a caller follows work on a whole model, and ends it early.
///
///     const Progress bar = [&](const ProgressStep& step) { show(step); return !isCancelled; };
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace velkor {

/// How far some work is.
struct ProgressStep {
    /// What is being done, for people: "Checking the instances".
    std::string_view work;
    std::uint64_t done = 0;
    std::uint64_t total = 0;
};

/// Called on the thread that does the work, each time some thousandth of a second's worth is done; false ends the work.
/// Its answer then holds what has been found so far and says that it is not complete. May be empty.
using Progress = std::function<bool(const ProgressStep&)>;

/// Whether the work goes on.
inline bool goesOn(const Progress& progress, const ProgressStep& step) {
    return !progress || progress(step);
}

} // namespace velkor
