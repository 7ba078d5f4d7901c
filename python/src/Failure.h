/// What Python sees as velkor.Error: a line of text with a code that programs tell apart and the place it is about.
#pragma once

#include "velkor/files/OpenError.h"

#include <cstdint>
#include <pybind11/pybind11.h>
#include <stdexcept>
#include <string>

namespace velkor::python {

class Failure : public std::runtime_error {
public:
    /// Where it is; what is empty or 0 is not known.
    struct Place {
        std::string path = {};
        std::uint64_t line = 0;
        std::uint64_t instance = 0;
    };

    Failure(std::string code, const std::string& message);
    Failure(std::string code, const std::string& message, Place place);
    Failure(const files::OpenError& error, const std::string& path);

    /// Of a file that cannot be written.
    static Failure ofWriting(const files::OpenError& error, const std::string& path);

    const std::string& code() const noexcept { return _code; }
    const Place& place() const noexcept { return _place; }

private:
    std::string _code;
    Place _place;
};

/// Declares velkor.Error and has each Failure raised as one.
void declareError(pybind11::module_& module);

} // namespace velkor::python
