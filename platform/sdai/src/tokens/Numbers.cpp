#include "Separators.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace velkor::sdai {

using part21::isDigit;
using part21::startsWithWord;

namespace {

/// Takes a sign off; std::from_chars knows "-" only, and no second sign may follow.
bool takeSign(std::string_view& text) noexcept {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    return negative;
}

/// What printf functions write for values that are no numbers: 1.#INF, 1.#IND, 1.#QNAN, inf, nan.
bool decodeNonFinite(std::string_view text, double& value) noexcept {
    if (text.starts_with("1.#")) text.remove_prefix(3);
    if (startsWithWord(text, "INF")) {
        value = std::numeric_limits<double>::infinity();
        return true;
    }
    for (const std::string_view word : {"IND", "NAN", "QNAN", "SNAN"}) {
        if (!startsWithWord(text, word)) continue;
        value = std::numeric_limits<double>::quiet_NaN();
        return true;
    }
    return false;
}

/// Whether digits that no double holds are too large (else they are too small): by the decimal
/// position of the first digit that counts, exponent included.
bool isOverflow(std::string_view text) noexcept {
    const std::size_t exponentAt = std::min(text.find_first_of("eE"), text.size());
    const std::string_view mantissa = text.substr(0, exponentAt);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    std::int64_t exponent = 0;
    if (exponentAt < text.size()) {
        std::string_view digits = text.substr(exponentAt + 1);
        const bool negative = takeSign(digits);
        if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec != std::errc()) return !negative;
        if (negative) exponent = -exponent;
    }
    return static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first) > -exponent;
}

} // namespace

bool decodeReal(std::string_view token, double& value) noexcept {
    std::string_view text = token;
    const bool negative = takeSign(text);
    double magnitude = 0;
    // Infinities are numbers to std::from_chars; here only what begins with a digit is one.
    if (text.empty() || !(isDigit(text[0]) || (text[0] == '.' && text.size() > 1 && isDigit(text[1]))) ||
        text.starts_with("1.#")) {
        if (!decodeNonFinite(text, magnitude)) return false;
    } else {
        const char* end = text.data() + text.size();
        const auto result = std::from_chars(text.data(), end, magnitude);
        if (result.ptr != end) return false;
        if (result.ec == std::errc::result_out_of_range) {
            magnitude = isOverflow(text) ? std::numeric_limits<double>::infinity() : 0;
        }
    }
    value = negative ? -magnitude : magnitude;
    return true;
}

bool decodeInteger(std::string_view token, std::int64_t& value) noexcept {
    if (token.starts_with('+')) {
        token.remove_prefix(1);
        if (token.empty() || !isDigit(token[0])) return false;
    }
    const char* end = token.data() + token.size();
    std::int64_t number = 0;
    const auto result = std::from_chars(token.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) return false;
    value = number;
    return true;
}

std::uint64_t decodeInstanceName(std::string_view token) noexcept {
    std::uint64_t id = 0;
    if (token.empty() || token.front() != '#') return 0;
    const auto result = std::from_chars(token.data() + 1, token.data() + token.size(), id);
    return result.ec == std::errc() ? id : 0;
}

} // namespace velkor::sdai
