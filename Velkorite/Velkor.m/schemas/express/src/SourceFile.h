/// Sources of generators as files.
#pragma once

#include "ExpressSchema.h"

#include <filesystem>
#include <optional>
#include <string>
#include <tl/expected.hpp>

namespace velkor::express {

/// Nothing when it cannot be read.
std::optional<std::string> contents(const std::filesystem::path& path);

/// The SHA-256 of bytes, in hexadecimal.
std::string sha256(const std::string& text);

/// Reads a source into the schema and notes it among the inputs: "NAME (SHA-256 …), …". The error names file and line.
[[nodiscard]] tl::expected<void, std::string> readSource(const std::filesystem::path& path, ExpressSchema& schema,
                                                         std::string& inputs);

} // namespace velkor::express
