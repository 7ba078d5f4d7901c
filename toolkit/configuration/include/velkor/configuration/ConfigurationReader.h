/// Reads the configuration file.
///
///     const ConfigurationReading reading = parseConfiguration(text, "velkor.json");
///     for (const std::string& error : reading.errors) show(error);
///     if (reading.errors.empty()) use(reading.configuration);
#pragma once

#include "velkor/configuration/Configuration.h"
#include "velkor/files/OpenError.h"
#include "velkor/ToolkitExport.h"

#include <iosfwd>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor {

/// A configuration, or what is wrong in its file.
struct ConfigurationReading {
    Configuration configuration;
    /// One line each, with the file, the line, the key and what was expected. With any of them
    /// the configuration is not to be used.
    std::vector<std::string> errors;
};

/// Reads a file or, for "-", standard input, null for an empty one. Paths in the configuration that are relative
/// are so to the file's folder. The message of an error names the file and says why it cannot be read.
VELKOR_TOOLKIT_API tl::expected<ConfigurationReading, files::OpenError> readConfiguration(const std::string& path,
                                                                                          std::istream* standardInput);

/// The same over a text; `path` stands in messages and decides about relative paths.
VELKOR_TOOLKIT_API ConfigurationReading parseConfiguration(std::string_view text, const std::string& path);

} // namespace velkor
