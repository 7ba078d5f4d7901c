/// What every command of the host shares: where results and messages go, and the exit status.
#pragma once

#include "commandline/Command.h"
#include "terminal/ExitStatus.h"
#include "terminal/TextSink.h"
#include "velkor/configuration/ConfigurationTable.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/model/CheckResult.h"

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace velkor::sdai {
class Model;
}

namespace velkor::host {

inline constexpr const char* configurationVariable = "VELKOR_CONFIG";
inline constexpr const char* noColorVariable = "NO_COLOR";
inline constexpr const char* terminalVariable = "TERM";

/// What the program itself is set by. With the items of the toolkit this is what `velkor options --list-variables`
/// prints and docs/configuration.md repeats.
inline constexpr ConfigurationItem programVariables[] = {
    {ConfigurationPlace::Environment, configurationVariable, "path",
     "the configuration file, unless --config names one"},
    {ConfigurationPlace::Environment, noColorVariable, "presence", "no colour when it is there and not empty"},
    {ConfigurationPlace::Environment, terminalVariable, "text", "\"dumb\": neither colour nor progress"},
};

struct CommandContext {
    TextSink out;
    TextSink err;
    /// True when `err` is a terminal that may show progress.
    bool interactive = false;
    /// True when `out` may be coloured: a terminal, and NO_COLOR is not set.
    bool color = false;
    /// What a command reads when it is given no words; null for nothing.
    std::istream* in = nullptr;
    /// Folder of the resource files that are shipped with the program; empty for none.
    std::string shippedResources = {};
    /// The command line, as it was given.
    std::vector<std::string> words = {};
    /// Set by --format.
    std::string format = "text";
    /// The file that --config names; empty when it names none.
    std::string configurationFile = {};
    /// What the command has been configured with, read before it runs.
    Configuration configuration = {};
    int status = Done;

    bool json() const { return format == "json"; }
    bool csv() const { return format == "csv"; }

    /// Completes a command that answers something: adds `--format text|json` and `--config FILE`, and
    /// has `run` called once the configuration has been read. With a wrong configuration no command
    /// runs: its faults are reported and the status is Unreadable. A command may have a third format. When one of its
    /// subcommands is named, that one answers.
    void complete(const Command& command, std::function<void()> run, const std::string& thirdFormat = {});

    /// Writes why input cannot be read to `err` and sets the status Unreadable.
    void reportUnreadable(const std::string& reason);

    /// Shows work on the terminal, until the last copy is gone.
    Progress progress() const;
    CheckOptions checkOptions(std::size_t limit) const { return {limit, progress()}; }

    /// Takes what the services tell of faults to `err`.
    PlatformSetup::Tell tell() const;

    /// Opens a model; null after reporting why it cannot be read.
    std::unique_ptr<sdai::Model> openModel(const std::string& path);

private:
    bool readConfiguration();
};

} // namespace velkor::host
