/// A model that Python objects share: it is closed when the last of them goes.
#pragma once

#include "ProgressCall.h"
#include "velkor/sdai/Model.h"

#include <memory>
#include <mutex>
#include <pybind11/pybind11.h>
#include <string>

namespace velkor::python {

/// One thread at a time may read a model, and long work lets other Python threads run. Whoever has to wait for the
/// model does so without the interpreter, so that neither lock is waited for while the other is held.
class ModelLock {
public:
    explicit ModelLock(std::recursive_mutex& mutex) : _lock(mutex, std::try_to_lock) {
        if (_lock.owns_lock()) return;
        requireNoCall();
        const pybind11::gil_scoped_release released;
        _lock.lock();
    }

private:
    std::unique_lock<std::recursive_mutex> _lock;
};

class OpenModel {
public:
    OpenModel(std::unique_ptr<sdai::Model> model, std::string path)
        : _model(std::move(model)), _path(std::move(path)) {}

    /// To be looked at while it is locked; header, schema and index may be at any time.
    const sdai::Model& model() const noexcept { return *_model; }
    const std::string& path() const noexcept { return _path; }
    [[nodiscard]] ModelLock lock() const { return ModelLock(_mutex); }

    std::recursive_mutex& mutex() const noexcept { return _mutex; }

    /// Long work on the model: other Python threads run meanwhile, but none reads this model.
    template <class Work>
    auto work(Work work) const {
        requireNoCall();
        const pybind11::gil_scoped_release released;
        const std::lock_guard guard(_mutex);
        return work(*_model);
    }

private:
    std::unique_ptr<sdai::Model> _model;
    std::string _path;
    mutable std::recursive_mutex _mutex;
};

/// Holds a model's lock where the interpreter has been released.
class ModelGuard {
public:
    explicit ModelGuard(const OpenModel& model) : _lock(model.mutex()) {}

private:
    std::lock_guard<std::recursive_mutex> _lock;
};

using SharedModel = std::shared_ptr<const OpenModel>;

} // namespace velkor::python
