/// The explicit attributes that entities of a release redeclare as derived: their instances have "*" there.
///
///     const std::vector<sdai::DerivedSlot> slots = derivedSlots(model->schema());
///     sdai::checkPopulation(*model, {.derivedSlots = slots});
#pragma once

#include "velkor/sdai/PopulationCheck.h"
#include "velkor/ToolkitExport.h"

#include <vector>

namespace velkor {

/// As the rules of the release state them, whether or not its dictionary carries them. None for a schema without rules.
/// The names last as long as the process.
VELKOR_TOOLKIT_API std::vector<sdai::DerivedSlot> derivedSlots(const sdai::SchemaDefinition& schema);

} // namespace velkor
