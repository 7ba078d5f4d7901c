/// The two text lists of a schema: declarations, numbered by their place, and statements about them.
#pragma once

#include "ExpressSchema.h"

#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::dictgen {

struct DictionaryLists {
    std::vector<std::string> declarations;
    std::vector<std::string> statements;
};

/// Numbers a schema. The order of both lists is that of a walk: named types in three groups (simple, aggregate
/// and renamed; enumerations; selects), then entities, each sorted by spelling, and before each what it
/// needs. The error names the declaration at fault.
[[nodiscard]] tl::expected<DictionaryLists, std::string> numberSchema(const std::string& schemaName,
                                                                      const express::ExpressSchema& schema);

} // namespace velkor::dictgen
