/// How a Python callable follows long work, and ends it.
///
///     ProgressCall progress(callable);
///     options.progress = progress.follower();
///     auto answer = model.work(…);
///     progress.raise();
#pragma once

#include "velkor/model/Progress.h"

#include <chrono>
#include <exception>
#include <optional>
#include <pybind11/pybind11.h>
#include <string>

namespace velkor::python {

/// The callable gets what is done, how much of it and of how much, at most twenty times a second and at the begin and
/// end of each piece of work. The work ends when it answers False, when it raises, and when a signal does, as Ctrl-C
/// does.
class ProgressCall {
public:
    /// None for work that only signals may end.
    explicit ProgressCall(pybind11::object callable) : _callable(std::move(callable)) {}
    ProgressCall(const ProgressCall&) = delete;
    ProgressCall& operator=(const ProgressCall&) = delete;

    /// Good as long as this object is. To be called without the interpreter.
    Progress follower() {
        return [this](const ProgressStep& step) { return goesOn(step); };
    }
    bool isEnded() const noexcept { return _isEnded; }
    /// Raises what was raised in the middle of the work.
    void raise() const {
        if (_raised) std::rethrow_exception(_raised);
    }

    /// Whether this thread is in a callable: it holds a model then, and must not wait for another.
    static bool isCalling() noexcept;

private:
    using Clock = std::chrono::steady_clock;

    bool goesOn(const ProgressStep& step);
    bool isDue(const ProgressStep& step);
    void call(const ProgressStep& step);

    pybind11::object _callable;
    std::string _work;
    std::optional<Clock::time_point> _last;
    std::exception_ptr _raised;
    bool _isEnded = false;
};

/// A Failure in a progress callable, where long work must not begin.
void requireNoCall();

} // namespace velkor::python
