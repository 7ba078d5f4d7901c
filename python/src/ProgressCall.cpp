#include "ProgressCall.h"

#include "Failure.h"
#include "Values.h"

namespace py = pybind11;

namespace velkor::python {

namespace {

constexpr std::chrono::milliseconds interval{50};

thread_local bool isInCall = false;

class InCall {
public:
    InCall() noexcept { isInCall = true; }
    ~InCall() { isInCall = false; }
    InCall(const InCall&) = delete;
    InCall& operator=(const InCall&) = delete;
};

} // namespace

bool ProgressCall::isCalling() noexcept {
    return isInCall;
}

bool ProgressCall::isDue(const ProgressStep& step) {
    const auto now = Clock::now();
    const bool isNew = !_last || step.work != _work;
    if (!isNew && step.done != step.total && now - *_last < interval) return false;
    if (isNew) _work = step.work;
    _last = now;
    return true;
}

void ProgressCall::call(const ProgressStep& step) {
    if (PyErr_CheckSignals() != 0) throw py::error_already_set();
    if (_callable.is_none()) return;
    const InCall inCall;
    const py::object answer = _callable(toText(step.work), step.done, step.total);
    _isEnded = answer.ptr() == Py_False;
}

bool ProgressCall::goesOn(const ProgressStep& step) {
    if (_isEnded) return false;
    if (!isDue(step)) return true;
    const py::gil_scoped_acquire acquired;
    try {
        call(step);
    } catch (const py::error_already_set&) {
        _raised = std::current_exception();
        _isEnded = true;
    }
    return !_isEnded;
}

void requireNoCall() {
    if (ProgressCall::isCalling())
        throw Failure("busy", "a progress callback may not begin work on models or wait for one that is in use");
}

} // namespace velkor::python
