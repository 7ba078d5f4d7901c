/// A classification as people read it: by class, and by the document that is configured.
///
///     const PlatformSetup setup(configuration);
///     const auto classified = classifyAsConfigured(*model, setup);
///     for (const ProductClass& group : classesOf(classified->classification)) show(group);
#pragma once

#include "velkor/classification/Classification.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace velkor {

/// Products of one class with the same answer, whichever entry gave it.
struct ProductClass {
    /// That of one of them.
    const Classification::Decision* decision;
    std::uint64_t count;
};

/// In the order of the entities' names, complex instances first, then of the neutral identifiers. What is answered
/// points into the classification.
VELKOR_TOOLKIT_API std::vector<ProductClass> classesOf(const Classification& classification);

/// A classification, and the document that it was made by.
struct ConfiguredClassification {
    /// The document that the services use.
    std::string documentPath;
    Classification classification;
};

/// Finds the document, has the services read it and classifies by it. The error is a line that says why there is no
/// document or that it cannot be read; the log of the set-up has the reason.
VELKOR_TOOLKIT_API tl::expected<ConfiguredClassification, std::string>
classifyAsConfigured(const sdai::Model& model, const PlatformSetup& setup, const Progress& progress = {});

} // namespace velkor
