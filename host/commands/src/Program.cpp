// The program itself: what it reads off the command line, and how it answers what is wrong there.

#include "commands/Program.h"

#include "Commands.h"
#include "velkor/text/Printable.h"

#include <algorithm>
#include <CLI/CLI.hpp>
#include <new>
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
int answer(const CLI::App& app, const CLI::ParseError& error, const CommandContext& context) {
    std::ostringstream out, err;
    const int code = app.exit(error, out, err);
    context.out.lines(out.str());
    context.err.lines(err.str());
    return code == 0 ? Done : BadUsage;
}

void addCommands(CLI::App& app, CommandContext& context) {
    // Not required here: a word that is no command is then reported as such.
    app.require_subcommand(0, 1);
    addReportCommand(app, context);
    addCheckCommand(app, context);
    addValidateCommand(app, context);
    addClassifyCommand(app, context);
    addGuidCommand(app, context);
    addUnitsCommand(app, context);
    addDictionaryCommand(app, context);
    addMapCommand(app, context);
    addOptionsCommand(app, context);
    addResourcesCommand(app, context);
}

int runCommand(std::vector<std::string> words, CommandContext& context) {
    CLI::App app("Services for building models in IFC (ISO 16739).", "velkor");
    app.set_version_flag("--version", "velkor " VELKOR_VERSION, "Print the version");
    app.set_help_flag("-h,--help", "Print this help");
    app.failure_message(failureMessage);
    app.footer("Example:\n  velkor report house.ifc\n\n"
               "Exit status: 0 done, 1 the answer is \"no\" or findings exist, 2 bad usage,\n"
               "3 input could not be read, or memory ran out.");
    addCommands(app, context);
    context.words = words;
    try {
        std::ranges::reverse(words);
        app.parse(words);
    } catch (const CLI::ParseError& error) {
        return answer(app, error, context);
    }
    if (app.get_subcommands().empty()) {
        context.err.lines(app.help());
        return BadUsage;
    }
    return context.status;
}

} // namespace

int run(std::vector<std::string> words, CommandContext& context) {
    try {
        return runCommand(std::move(words), context);
    } catch (const std::bad_alloc&) {
        context.reportUnreadable("out of memory");
    } catch (const std::exception& error) {
        context.reportUnreadable(error.what());
    }
    return context.status;
}

} // namespace velkor::host
