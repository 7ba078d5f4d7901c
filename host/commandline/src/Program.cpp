#include "commandline/Program.h"

#include "terminal/ExitStatus.h"
#include "velkor/text/Printable.h"

#include <algorithm>
#include <CLI/CLI.hpp>
#include <sstream>

namespace velkor::host {

namespace {

// The command that the user meant: the deepest one parsed.
std::string usedCommand(const CLI::App* app) {
    std::string name = app->get_name();
    for (auto parsed = app->get_subcommands(); !parsed.empty(); parsed = parsed.front()->get_subcommands()) {
        name += ' ' + parsed.front()->get_name();
    }
    return name;
}

std::string failureMessage(const CLI::App* app, const CLI::Error& error) {
    std::string reason = error.what();
    // A word too many where the command should stand.
    if (const auto extras = app->remaining(); !extras.empty() && app->get_subcommands().empty()) {
        reason = (extras.front().starts_with('-') ? "unknown option " : "unknown command ") + extras.front();
    }
    return "velkor: " + text::printable(reason) + "\nSee \"" + usedCommand(app) + " --help\".\n";
}

// Help and version, or what is wrong with the command line.
int answer(const CLI::App& app, const CLI::ParseError& error, TextSink out, TextSink err) {
    std::ostringstream outText, errText;
    const int code = app.exit(error, outText, errText);
    out.lines(outText.str());
    err.lines(errText.str());
    return code == 0 ? Done : BadUsage;
}

} // namespace

std::optional<int> parse(std::vector<std::string> words, TextSink out, TextSink err,
                         const std::function<void(const Command&)>& describe) {
    CLI::App app("Services for building models in IFC (ISO 16739).", "velkor");
    app.set_version_flag("--version", "velkor " VELKOR_VERSION, "Print the version");
    app.set_help_flag("-h,--help", "Print this help");
    app.failure_message(failureMessage);
    app.footer("Example:\n  velkor report house.ifc\n\n"
               "Exit status: 0 done, 1 the answer is \"no\" or findings exist, 2 bad usage,\n"
               "3 input could not be read, or memory ran out.");
    // Not required here: a word that is no command is then reported as such.
    app.require_subcommand(0, 1);
    describe(Command(&app));
    try {
        std::ranges::reverse(words);
        app.parse(words);
    } catch (const CLI::ParseError& error) {
        return answer(app, error, out, err);
    }
    if (!app.get_subcommands().empty()) return std::nullopt;
    err.lines(app.help());
    return BadUsage;
}

} // namespace velkor::host
