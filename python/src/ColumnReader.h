/// Reads whole columns of attributes and properties.
#pragma once

#include "Column.h"
#include "velkor/model/Progress.h"
#include "velkor/sdai/Model.h"

#include <memory>
#include <string>
#include <vector>

namespace velkor::python {

using Columns = std::vector<std::unique_ptr<Column>>;

/// A column for each name, with a row for each instance of an entity and its subtypes in file order. A name is that of
/// an attribute, letter case ignored; "Set.Property" with the dot; "#id" or "#entity". A Failure for a name that
/// neither the entity nor any of the instances has, and for lists of lists. What the progress ends is of no use.
Columns readColumns(const sdai::Model& model, const sdai::EntityDefinition& entity,
                    const std::vector<std::string>& names, const Progress& progress);

} // namespace velkor::python
