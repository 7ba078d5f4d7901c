/// The complete pass over a model: exchange structure and population.
#pragma once

#include "CommandContext.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <vector>

namespace velkor::host {

struct CheckResult {
    /// In file order, bounded by the limit asked for; `total` is the full count.
    std::vector<sdai::Problem> problems;
    std::uint64_t total = 0;

    /// Puts more problems, `count` of them with those beyond the limit, in their places.
    void add(const std::vector<sdai::Problem>& more, std::uint64_t count, std::size_t limit);
};

/// The exchange structure alone.
CheckResult checkStructure(CommandContext& context, const sdai::Part21File& file, std::size_t limit);

/// The exchange structure and every instance against the dictionary.
CheckResult checkModel(CommandContext& context, const sdai::Model& model, std::size_t limit);

} // namespace velkor::host
