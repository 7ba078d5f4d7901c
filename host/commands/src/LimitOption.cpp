#include "LimitOption.h"

#include "velkor/text/Wording.h"

#include <charconv>
#include <CLI/CLI.hpp>

namespace velkor::host {

void addLimitOption(CLI::App& command, std::size_t& limit, const std::string& what) {
    command
        .add_option("--limit", limit, "List at most N " + what + "; " + std::to_string(defaultLimit) + " unless told")
        ->option_text("N")
        ->transform(wholeNumber(0));
}

CLI::Validator wholeNumber(std::size_t least, std::size_t most) {
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
    return CLI::Validator(fault, {});
}

} // namespace velkor::host
