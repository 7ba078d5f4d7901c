/// What the tests of the host's commands share: a run of the program in process.
#pragma once

#include "commands/Program.h"
#include "TemporaryModel.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace velkor::host {

using test::example;
using test::TemporaryFile;
using test::TemporaryModel;

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

/// The resource files that come with the program, where the project has them.
inline constexpr const char* shippedResources = VELKOR_RESOURCE_DIR;

/// Without shipped resources unless told.
inline Outcome runHost(std::vector<std::string> words, bool color = false, const std::string& shipped = {},
                       const std::string& input = {}) {
    std::ostringstream out, err;
    std::istringstream in(input);
    CommandContext context{out, err, false, color, &in, shipped};
    const int status = run(std::move(words), context);
    return {status, out.str(), err.str()};
}

} // namespace velkor::host
