/// The command line as the commands describe it. The parser's header takes seconds to compile and stays behind this
/// one.
///
///     const Command command = program.addCommand("check", "What is wrong with a model");
///     command.addOption("MODEL", path, "IFC file").required();
///     command.onUse([&] { check(path); });
///
/// All of them are handles: they may be copied, and live as long as the program that is parsed.
#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace velkor::host {

class Option {
public:
    explicit Option(CLI::Option* option) noexcept : _option(option) {}

    const Option& required() const;
    /// What the help shows for the value: "FILE".
    const Option& valueName(const std::string& name) const;
    const Option& oneOf(const std::vector<std::string>& words) const;
    /// Values are separated by commas, and each is one of `words`. May be given several times.
    const Option& someOf(const std::vector<std::string_view>& words) const;
    /// Takes one value each time that it is given; may be given several times.
    const Option& oneWord() const;
    /// It cannot be given without the other.
    const Option& needs(const Option& other) const;
    /// The two cannot be given together.
    const Option& excludes(const Option& other) const;
    /// Refuses what is no whole number within a range. Without an upper bound a number that no count can hold is taken
    /// as the largest one.
    const Option& wholeNumber(std::size_t least, std::size_t most = std::numeric_limits<std::size_t>::max()) const;

private:
    CLI::Option* _option;
};

/// A command, or a group of commands. Variables that options are written to have to stay where they are.
class Command {
public:
    explicit Command(CLI::App* app) noexcept : _app(app) {}

    Command addCommand(const std::string& name, const std::string& meaning) const;
    /// What the help ends with: a line to type, and what more is to be said after an empty line.
    void example(const std::string& text) const;
    /// One of the commands below it has to be named.
    void requireCommand() const;

    /// A name without hyphens is that of a word by its position.
    Option addOption(const std::string& name, std::string& value, const std::string& meaning) const;
    Option addOption(const std::string& name, std::size_t& value, const std::string& meaning) const;
    Option addOption(const std::string& name, std::vector<std::string>& values, const std::string& meaning) const;
    Option addFlag(const std::string& name, bool& value, const std::string& meaning) const;
    /// Options of which one has to be given.
    Command addAlternatives(const std::string& name, const std::string& meaning) const;

    /// Has `run` called when the command is named, and none below it.
    void onUse(std::function<void()> run) const;

private:
    CLI::App* _app;
};

} // namespace velkor::host
