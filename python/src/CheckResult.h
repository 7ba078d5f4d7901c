/// What the results of all checks that end in a list of problems have.
#pragma once

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

namespace velkor::python {

template <class Check>
void declareResult(pybind11::class_<Check>& check) {
    check
        .def_property_readonly(
            "findings", [](const Check& self) { return self.result.problems; },
            "In file order, no more than the limit.")
        .def_property_readonly(
            "total", [](const Check& self) { return self.result.total; }, "Their full count.")
        .def_property_readonly(
            "is_complete", [](const Check& self) { return self.result.isComplete; },
            "False when the progress callback has ended the check.");
}

} // namespace velkor::python
