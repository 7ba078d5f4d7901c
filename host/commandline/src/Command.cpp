#include "commandline/Command.h"

#include "ValueWords.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <charconv>
#include <CLI/CLI.hpp>

namespace velkor::host {

const Option& Option::required() const {
    _option->required();
    return *this;
}

const Option& Option::valueName(const std::string& name) const {
    _option->option_text(name);
    return *this;
}

const Option& Option::oneOf(const std::vector<std::string>& words) const {
    _option->check(CLI::IsMember(words).description(text::joined(words, ",")), valueWords);
    return *this;
}

const Option& Option::someOf(const std::vector<std::string_view>& words) const {
    _option->delimiter(',')->allow_extra_args(false);
    _option->check(
        [words](const std::string& word) -> std::string {
            if (std::ranges::find(words, word) != words.end()) return {};
            const auto nearest = text::nearestNames(words, word);
            return "unknown " + text::quoted(word) +
                   (nearest.empty() ? "; known: " + text::joined(words) : "; nearest: " + text::joined(nearest));
        },
        text::joined(words, ","), valueWords);
    return *this;
}

const Option& Option::oneWord() const {
    _option->allow_extra_args(false);
    return *this;
}

const Option& Option::needs(const Option& other) const {
    _option->needs(other._option);
    return *this;
}

const Option& Option::excludes(const Option& other) const {
    _option->excludes(other._option);
    return *this;
}

const Option& Option::wholeNumber(std::size_t least, std::size_t most) const {
    const bool isBounded = most != std::numeric_limits<std::size_t>::max();
    const std::string range = isBounded ? "from " + std::to_string(least) + " to " + std::to_string(most)
                                        : std::to_string(least) + " or more";
    const auto fault = [=](std::string& word) -> std::string {
        std::size_t number = 0;
        const char* end = word.data() + word.size();
        const auto [behind, error] = std::from_chars(word.data(), end, number);
        const bool isTooLarge = error == std::errc::result_out_of_range;
        const bool fits = isTooLarge ? !isBounded : error == std::errc() && number >= least && number <= most;
        if (!fits || behind != end) return "expected a whole number, " + range + ", found " + text::quoted(word);
        if (isTooLarge) word = std::to_string(most);
        return {};
    };
    _option->transform(CLI::Validator(fault, {}));
    return *this;
}

Command Command::addCommand(const std::string& name, const std::string& meaning) const {
    return Command(_app->add_subcommand(name, meaning));
}

void Command::example(const std::string& text) const {
    _app->footer("Example:\n  " + text);
}

void Command::requireCommand() const {
    _app->require_subcommand(1);
}

Option Command::addOption(const std::string& name, std::string& value, const std::string& meaning) const {
    return Option(_app->add_option(name, value, meaning));
}

Option Command::addOption(const std::string& name, std::size_t& value, const std::string& meaning) const {
    return Option(_app->add_option(name, value, meaning));
}

Option Command::addOption(const std::string& name, std::vector<std::string>& values, const std::string& meaning) const {
    return Option(_app->add_option(name, values, meaning));
}

Option Command::addFlag(const std::string& name, bool& value, const std::string& meaning) const {
    return Option(_app->add_flag(name, value, meaning));
}

Command Command::addAlternatives(const std::string& name, const std::string& meaning) const {
    CLI::App* group = _app->add_option_group(name, meaning);
    group->require_option(1);
    return Command(group);
}

void Command::onUse(std::function<void()> run) const {
    _app->callback([app = _app, run = std::move(run)] {
        if (app->get_subcommands().empty()) run();
    });
}

} // namespace velkor::host
