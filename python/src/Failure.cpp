#include "Failure.h"

#include "Values.h"

namespace py = pybind11;

namespace velkor::python {

namespace {

// Made with the module, which Python never unloads.
PyObject* errorType = nullptr;

const char* codeOf(files::OpenError::Code code) {
    using Code = files::OpenError::Code;
    switch (code) {
    case Code::Missing:
        return "file-missing";
    case Code::Denied:
        return "file-denied";
    case Code::Folder:
        return "file-is-folder";
    case Code::NotRegular:
        return "file-not-regular";
    case Code::Failed:
        return "file-failed";
    case Code::TooLarge:
        return "file-too-large";
    case Code::Empty:
        return "file-empty";
    case Code::NoExchangeStructure:
        return "no-exchange-structure";
    case Code::UnknownSchema:
        return "schema-unknown";
    case Code::DamagedSchema:
        return "schema-damaged";
    case Code::Unsupported:
        return "unsupported";
    }
    return "file-failed";
}

void raise(const Failure& failure) {
    const auto error = py::reinterpret_steal<py::object>(
        PyObject_CallFunctionObjArgs(errorType, toText(failure.what()).ptr(), nullptr));
    if (!error) return;
    error.attr("code") = toText(failure.code());
    error.attr("path") = textOrNone(failure.place().path);
    error.attr("line") = numberOrNone(failure.place().line);
    error.attr("instance") = numberOrNone(failure.place().instance);
    PyErr_SetObject(errorType, error.ptr());
}

} // namespace

Failure::Failure(std::string code, const std::string& message) : Failure(std::move(code), message, Place()) {}

Failure::Failure(std::string code, const std::string& message, Place place)
    : std::runtime_error(message), _code(std::move(code)), _place(std::move(place)) {}

Failure::Failure(const files::OpenError& error, const std::string& path)
    : Failure(codeOf(error.code), error.message, {.path = path}) {}

Failure Failure::ofWriting(const files::OpenError& error, const std::string& path) {
    return {codeOf(error.code), path + ": cannot be written: " + error.message, {.path = path}};
}

void declareError(py::module_& module) {
    py::dict members;
    members["code"] = "";
    members["path"] = py::none();
    members["line"] = py::none();
    members["instance"] = py::none();
    errorType = PyErr_NewExceptionWithDoc("velkor.Error",
                                          "What cannot be done, in one line.\n\n"
                                          "code      -- short stable word, such as 'file-missing' or 'schema-unknown'\n"
                                          "path      -- the file it is about, None when it is about none\n"
                                          "line      -- of the file, counted from 1, or None\n"
                                          "instance  -- id of the instance it is about, or None",
                                          nullptr, members.ptr());
    if (errorType == nullptr) throw py::error_already_set();
    module.add_object("Error", py::reinterpret_borrow<py::object>(errorType));
    py::register_exception_translator([](std::exception_ptr thrown) {
        try {
            if (thrown) std::rethrow_exception(thrown);
        } catch (const Failure& failure) {
            raise(failure);
        }
    });
}

} // namespace velkor::python
