/// Values of a model as Python has them.
#pragma once

#include "OpenModel.h"
#include "velkor/sdai/Value.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <pybind11/pybind11.h>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::python {

/// An instance with the model that it is of.
struct Instance {
    SharedModel model;
    DXSdaiAppInstance* instance = nullptr;

    bool operator==(const Instance& other) const noexcept { return instance == other.instance; }
};

/// A value with the defined type that stands before it: IFCLABEL('x').
struct TypedValue {
    std::string type;
    pybind11::object value;
};

/// Bytes that are no UTF-8 become U+FFFD.
pybind11::str toText(std::string_view text);
pybind11::list toTexts(const std::vector<std::string>& texts);
/// None for an empty text, or for 0.
pybind11::object textOrNone(std::string_view text);
pybind11::object numberOrNone(std::uint64_t number);
std::string upperCase(std::string_view name);

/// The entity in upper case, "(…)" for a complex instance.
std::string entityName(const DXSdaiAppInstance& instance);
/// A value of an attribute of the instance, whose model must be locked. A Failure for one that is not of its declared
/// type and for a reference to nothing.
pybind11::object toPython(const Instance& owner, const sdai::Primitive& value, std::string_view attributeName);

void declareValues(pybind11::module_& module);

} // namespace velkor::python
