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
#include <string>
#include <vector>

namespace velkor::host {

inline constexpr const char* configurationVariable = "VELKOR_CONFIG";
/// The format of a line of JSON for each model.
inline constexpr const char* jsonLinesFormat = "jsonl";
inline constexpr const char* noColorVariable = "NO_COLOR";
inline constexpr const char* terminalVariable = "TERM";
inline constexpr const char* columnsVariable = "COLUMNS";

/// What the program itself is set by. With the items of the toolkit this is what `velkor options --list-variables`
/// prints and docs/configuration.md repeats.
inline constexpr ConfigurationItem programVariables[] = {
    {ConfigurationPlace::Environment, configurationVariable, "path",
     "the configuration file, unless --config names one"},
    {ConfigurationPlace::Environment, noColorVariable, "presence", "no colour when it is there and not empty"},
    {ConfigurationPlace::Environment, terminalVariable, "text", "\"dumb\": neither colour nor progress"},
    {ConfigurationPlace::Environment, columnsVariable, "number",
     "width of text on a terminal; the terminal's own unless told"},
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

    /// True for the format of a line per model, too.
    bool json() const { return format == "json" || jsonLines(); }
    bool jsonLines() const { return format == jsonLinesFormat; }
    bool csv() const { return format == "csv"; }

    /// Completes a command that answers something: adds `--format text|json` and `--config FILE`, and
    /// has `run` called once the configuration has been read. With a wrong configuration no command
    /// runs: its faults are reported and the status is Unreadable. A command may have more formats. When one of its
    /// subcommands is named, that one answers.
    void complete(const Command& command, std::function<void()> run, const std::vector<std::string>& moreFormats = {});

    /// Runs work, and reports what it cannot go on for.
    void guard(const std::function<void()>& work);

    /// Says what is wrong with the command line and sets the status BadUsage.
    void reportBadUsage(const std::string& reason);

    /// Writes why input cannot be read to `err` and sets the status Unreadable.
    void reportUnreadable(const std::string& reason);

    /// Shows work on the terminal, until the last copy is gone.
    Progress progress() const;
    CheckOptions checkOptions(std::size_t limit) const { return {limit, progress()}; }

    /// Takes what the services tell of faults to `err`.
    PlatformSetup::Tell tell() const;

private:
    bool readConfiguration();
};

} // namespace velkor::host
