/// The parts of the module, each declared by one unit.
#pragma once

#include "OpenModel.h"

#include <pybind11/pybind11.h>
#include <string>
#include <string_view>

namespace velkor::python {

using ModelClass = pybind11::class_<OpenModel, std::shared_ptr<OpenModel>>;

/// What is about models is added to their class.
void declareModel(pybind11::module_& module, ModelClass& model);
void declareJudgement(pybind11::module_& module, ModelClass& model);
void declareDictionaries(pybind11::module_& module, ModelClass& model);
void declareDictionaryDiff(pybind11::module_& module);
void declarePropertySets(pybind11::module_& module);
void declareIdentifiers(pybind11::module_& module, ModelClass& model);
void declareColumns(pybind11::module_& module, ModelClass& model);
void declareConversion(pybind11::module_& module, ModelClass& model);

/// The folder of resource files that lies with the module; empty when there is none.
std::string shippedResources();

/// A Failure with the names that are near when a schema has no entity of a name.
const sdai::EntityDefinition& entityNamed(const sdai::SchemaDefinition& schema, std::string_view name);

/// A DictionaryDifference.
pybind11::object differenceBetween(const sdai::SchemaDefinition& before, const sdai::SchemaDefinition& after);

} // namespace velkor::python
