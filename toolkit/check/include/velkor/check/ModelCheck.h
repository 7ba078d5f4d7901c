/// The complete pass over a model: exchange structure and population.
///
///     const CheckResult result = checkModel(*model);
///     for (const sdai::Problem& problem : result.problems) show(model->file().name(), problem);
#pragma once

#include "velkor/model/CheckResult.h"
#include "velkor/sdai/Model.h"
#include "velkor/ToolkitExport.h"

#include <string>
#include <tl/expected.hpp>

namespace velkor {

/// The exchange structure alone, without a dictionary. One pass over the text; memory for the instance numbers and the
/// problems listed.
VELKOR_TOOLKIT_API CheckResult checkStructure(const sdai::Part21File& file, const CheckOptions& options = {});

/// The exchange structure and every instance against the dictionary. Two passes over the text.
VELKOR_TOOLKIT_API CheckResult checkModel(const sdai::Model& model, const CheckOptions& options = {});

struct FileCheck {
    std::string file;
    /// Of the dictionary that the instances were judged by; empty when they were not.
    std::string release;
    CheckResult result;
};

/// Opens a file and judges what can be judged: its structure alone when that is asked for, or when FILE_SCHEMA names no
/// dictionary that is known, which is then a problem itself.
VELKOR_TOOLKIT_API tl::expected<FileCheck, files::OpenError> checkFile(const std::string& path, bool isStructureAlone,
                                                                       const CheckOptions& options = {});

} // namespace velkor
