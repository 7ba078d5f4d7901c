/// The complete pass over a model: exchange structure and population.
///
///     const CheckResult result = checkModel(*model);
///     for (const sdai::Problem& problem : result.problems) show(model->file().name(), problem);
#pragma once

#include "velkor/model/CheckResult.h"
#include "velkor/sdai/Model.h"
#include "velkor/ToolkitExport.h"

namespace velkor {

/// The exchange structure alone, without a dictionary. One pass over the text; memory for the instance numbers and the
/// problems listed.
VELKOR_TOOLKIT_API CheckResult checkStructure(const sdai::Part21File& file, const CheckOptions& options = {});

/// The exchange structure and every instance against the dictionary. Two passes over the text.
VELKOR_TOOLKIT_API CheckResult checkModel(const sdai::Model& model, const CheckOptions& options = {});

} // namespace velkor
