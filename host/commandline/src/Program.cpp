#include "commandline/Program.h"

#include "terminal/ExitStatus.h"
#include "terminal/LineFitter.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <CLI/CLI.hpp>
#include <sstream>

namespace velkor::host {

namespace {

constexpr std::size_t widestHelp = 80;
constexpr std::size_t namesWidth = 30;

std::size_t helpWidth(TextSink out) {
    return std::min(widestHelp, out.width());
}

void writeHelp(TextSink out, const std::string& text) {
    std::ostringstream lines;
    LineFitter(lines, helpWidth(out)).write(text);
    out.lines(lines.str());
}

// The command that the user meant: the deepest one parsed.
std::string usedCommand(const CLI::App* app) {
    std::string name = app->get_name();
    for (auto parsed = app->get_subcommands(); !parsed.empty(); parsed = parsed.front()->get_subcommands()) {
        name += ' ' + parsed.front()->get_name();
    }
    return name;
}

// What is said of a word that is no command right below one.
std::string unknownCommand(const CLI::App* app, const std::string& word) {
    std::vector<std::string> names;
    for (const CLI::App* below : app->get_subcommands(std::function<bool(const CLI::App*)>{})) {
        if (!below->get_name().empty()) names.push_back(below->get_name());
    }
    const auto nearest = text::nearestNames({names.begin(), names.end()}, word);
    return "unknown command " + word + (nearest.empty() ? "" : "; nearest: " + text::joined(nearest));
}

std::string failure(const std::string& reason, const std::string& command) {
    return "velkor: " + text::printable(reason) + "\nSee \"" + command + " --help\".\n";
}

std::string failureMessage(const CLI::App* app, const CLI::Error& error) {
    std::string reason = error.what();
    // A word too many where the command should stand.
    if (const auto extras = app->remaining(); !extras.empty() && app->get_subcommands().empty()) {
        const std::string& extra = extras.front();
        reason = extra.starts_with('-') ? "unknown option " + extra : unknownCommand(app, extra);
    }
    return failure(reason, usedCommand(app));
}

// Help and version, or what is wrong with the command line.
int answer(const CLI::App& app, const CLI::ParseError& error, TextSink out, TextSink err) {
    std::ostringstream outText, errText;
    const int code = app.exit(error, outText, errText);
    if (dynamic_cast<const CLI::CallForHelp*>(&error) != nullptr)
        writeHelp(out, outText.str());
    else
        out.unfitted().lines(outText.str());
    err.lines(errText.str());
    return code == 0 ? Done : BadUsage;
}

// Help on the command that the words name, on the program without any.
int help(const CLI::App& program, const std::vector<std::string>& words, TextSink out, TextSink err) {
    const CLI::App* command = &program;
    std::string name = program.get_name();
    for (const std::string& word : words) {
        const auto below = command->get_subcommands([&](const CLI::App* any) { return any->get_name() == word; });
        if (word.empty() || below.empty()) {
            err.lines(failure(unknownCommand(command, word), name));
            return BadUsage;
        }
        command = below.front();
        name += ' ' + word;
    }
    writeHelp(out, command->get_formatter()->make_help(command, name, CLI::AppFormatMode::Normal));
    return Done;
}

// The program as the parser sees it.
struct Parser {
    /// Help in lines of at most `width` columns.
    Parser(const ProgramParts& parts, std::size_t width);

    CLI::App app{"Services for building models in IFC (ISO 16739).", "velkor"};
    std::string versionFormat = "text";
    std::vector<std::string> helpWords;
    CLI::App* help = nullptr;
};

Parser::Parser(const ProgramParts& parts, std::size_t width) {
    // Ahead of --version, whose answer ends the parsing.
    const Command program(&app);
    const Option format = program.addOption("--format", versionFormat, "How --version answers; text unless told")
                              .valueName("text|json")
                              .oneOf({"text", "json"});
    const Option version(app.set_version_flag(
        "--version", [this, answer = parts.version] { return answer(versionFormat); },
        "Print the version; with --format json, those of libraries and compiler as well"));
    format.needs(version);
    app.set_help_flag("-h,--help", "Print this help");
    app.failure_message(failureMessage);
    app.footer("Example:\n  velkor report house.ifc\n\n"
               "Exit status: 0 done, 1 the answer is \"no\" or findings exist, 2 bad usage,\n"
               "3 input could not be read, or memory ran out.");
    // Not required here: a word that is no command is then reported as such.
    app.require_subcommand(0, 1);
    // Names leave the larger part of a line to what they mean. The commands that follow take this over.
    app.get_formatter()->column_width(std::min(namesWidth, width / 8 * 3));
    parts.addCommands(program);
    const Command helping = program.addCommand("help", "Explain a command, or list them all");
    helping.addOption("COMMAND", helpWords, "The command, such as: guid check");
    helping.example("velkor help guid check");
    help = app.get_subcommand("help");
}

} // namespace

const char* const programVersion = VELKOR_VERSION;

std::optional<int> parse(std::vector<std::string> words, TextSink out, TextSink err, const ProgramParts& parts) {
    Parser parser(parts, helpWidth(out));
    try {
        std::ranges::reverse(words);
        parser.app.parse(words);
    } catch (const CLI::ParseError& error) {
        return answer(parser.app, error, out, err);
    }
    if (parser.help->parsed()) return help(parser.app, parser.helpWords, out, err);
    if (!parser.app.get_subcommands().empty()) return std::nullopt;
    writeHelp(err, parser.app.help());
    return BadUsage;
}

CommandDescription describeProgram(const ProgramParts& parts) {
    Parser parser(parts, widestHelp);
    return describeCommand(parser.app);
}

} // namespace velkor::host
