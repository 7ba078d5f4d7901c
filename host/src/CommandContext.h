/// What every command of the host shares: where results and messages go, and the exit status.
#pragma once

#include <CLI/CLI.hpp>

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace velkor::sdai {
class Model;
}

namespace velkor::host {

/// Exit statuses, the same for every command.
enum ExitStatus : int {
    Done = 0,
    Findings = 1, ///< the answer is "no" or findings exist
    BadUsage = 2,
    Unreadable = 3, ///< input could not be read, or the results not be written
};

struct CommandContext {
    std::ostream& out;
    std::ostream& err;
    /// True when `err` is a terminal that may show progress.
    bool interactive = false;
    /// True when `out` may be coloured: a terminal, and NO_COLOR is not set.
    bool color = false;
    /// Set by --format.
    std::string format = "text";
    int status = Done;

    bool json() const { return format == "json"; }

    /// Adds `--format text|json` to a command.
    void addFormatOption(CLI::App& command);

    /// Writes why input cannot be read to `err` and sets the status Unreadable.
    void reportUnreadable(const std::string& reason);

    /// Opens a model; null after reporting why it cannot be read.
    std::unique_ptr<sdai::Model> openModel(const std::string& path);
};

/// Runs the program over the words of a command line, its name left out: parses them, runs the
/// command, reports bad usage. Gives the exit status.
int run(std::vector<std::string> words, CommandContext& context);

/// Adds every command to the program.
void addCommands(CLI::App& app, CommandContext& context);

void addReportCommand(CLI::App& app, CommandContext& context);
void addCheckCommand(CLI::App& app, CommandContext& context);
void addUnitsCommand(CLI::App& app, CommandContext& context);
void addDictionaryCommand(CLI::App& app, CommandContext& context);

} // namespace velkor::host
