#include "Arithmetic.h"

#include "velkor/sdai/Part21Lexer.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace velkor::rules {

namespace {

/// A pattern of LIKE, one entry for each character that it stands for.
struct PatternPart {
    enum class Kind : std::uint8_t { Letter, Upper, Any, Rest, Digit, Word, Many, Exactly };
    Kind kind = Kind::Exactly;
    bool isNegated = false;
    std::int32_t character = 0;
};

std::int32_t take(std::string_view& text) noexcept {
    std::int32_t character = 0;
    text.remove_prefix(text::decode(text, character));
    return character;
}

std::vector<PatternPart> partsOf(std::string_view pattern) {
    using Kind = PatternPart::Kind;
    std::vector<PatternPart> parts;
    while (!pattern.empty()) {
        PatternPart part;
        part.character = take(pattern);
        part.isNegated = part.character == '!' && !pattern.empty();
        if (part.isNegated) part.character = take(pattern);
        constexpr std::string_view special = "@^?&#$*";
        const bool isAscii = part.character >= 0 && part.character < 128;
        const std::size_t found = isAscii ? special.find(static_cast<char>(part.character)) : std::string_view::npos;
        if (part.character == '\\' && !pattern.empty()) {
            part.character = take(pattern);
        } else if (found != std::string_view::npos) {
            part.kind = static_cast<Kind>(found);
        }
        parts.push_back(part);
    }
    return parts;
}

bool isLetter(std::int32_t character) noexcept {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool fits(const PatternPart& part, std::int32_t character) noexcept {
    bool fits = false;
    switch (part.kind) {
    case PatternPart::Kind::Letter:
        fits = isLetter(character);
        break;
    case PatternPart::Kind::Upper:
        fits = character >= 'A' && character <= 'Z';
        break;
    case PatternPart::Kind::Digit:
        fits = character >= '0' && character <= '9';
        break;
    case PatternPart::Kind::Exactly:
        fits = character == part.character;
        break;
    default:
        fits = true;
        break;
    }
    return fits != part.isNegated;
}

/// Positions that the first parts may have led to, all at once: no pattern takes longer than its length times the
/// text's.
class Matcher {
public:
    Matcher(std::string_view text, Evaluation& evaluation) : _evaluation(evaluation) {
        while (!text.empty()) _text.push_back(take(text));
        _reached.assign(_text.size() + 1, false);
        _reached[0] = true;
    }

    void match(const PatternPart& part) {
        _evaluation.spend(1 + _text.size());
        std::vector<bool> next(_reached.size(), false);
        std::size_t wordEnd = _text.size();
        for (std::size_t at = _reached.size(); at-- > 0;) {
            if (at < _text.size() && _text[at] == ' ') wordEnd = at;
            if (!_reached[at]) continue;
            if (part.kind == PatternPart::Kind::Rest) {
                next.back() = true;
            } else if (part.kind == PatternPart::Kind::Word) {
                next[wordEnd] = true;
            } else if (part.kind == PatternPart::Kind::Many) {
                next[at] = true;
            } else if (at < _text.size() && fits(part, _text[at])) {
                next[at + 1] = true;
            }
        }
        if (part.kind == PatternPart::Kind::Many) std::fill(std::ranges::find(next, true), next.end(), true);
        _reached = std::move(next);
    }

    bool isDone() const { return _reached.back(); }

private:
    Evaluation& _evaluation;
    std::vector<std::int32_t> _text;
    std::vector<bool> _reached;
};

/// A symbolic format: "+10.3F". Nothing for a picture.
struct NumberFormat {
    bool hasSign = false;
    int width = 0;
    int decimals = 0;
    char kind = 'I';
};

std::optional<NumberFormat> numberFormat(std::string_view text) {
    NumberFormat format;
    if (text.starts_with('+')) {
        format.hasSign = true;
        text.remove_prefix(1);
    }
    constexpr int widest = 1000;
    const auto number = [&text](int& value) {
        const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
        text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
        return result.ec == std::errc() && value >= 0 && value <= widest;
    };
    if (!number(format.width)) return std::nullopt;
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        if (!number(format.decimals)) return std::nullopt;
    }
    if (text.size() != 1) return std::nullopt;
    format.kind = text::asciiUpper(text[0]);
    const bool isKnown = format.kind == 'I' || format.kind == 'F' || format.kind == 'E';
    return isKnown ? std::optional(format) : std::nullopt;
}

std::string formatted(double number, const NumberFormat& format) {
    const auto notation = format.kind == 'E' ? std::chars_format::scientific : std::chars_format::fixed;
    // As wide as a double with all decimals that may be asked for.
    std::array<char, 1400> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), std::abs(number), notation,
                                   format.kind == 'I' ? 0 : format.decimals);
    std::string result(number < 0 ? "-" : format.hasSign ? "+" : "");
    result.append(digits.data(), end.ptr);
    if (format.kind == 'E') std::ranges::replace(result, 'e', 'E');
    const auto width = static_cast<std::size_t>(format.width);
    return result.size() < width ? std::string(width - result.size(), ' ') + result : result;
}

} // namespace

Value isLike(std::string_view text, std::string_view pattern, Evaluation& evaluation) {
    evaluation.spend(text.size() + pattern.size());
    Matcher matcher(text, evaluation);
    for (const PatternPart& part : partsOf(pattern)) matcher.match(part);
    return Value(logical(matcher.isDone()));
}

Value formatted(const Value& number, std::string_view format, Evaluation& evaluation) {
    if (!number.isNumber()) return {};
    std::string result;
    if (format.empty()) {
        result =
            number.kind() == ValueKind::Integer ? std::to_string(number.integer()) : text::shortest(number.number());
    } else {
        const auto symbolic = numberFormat(format);
        if (!symbolic) return {};
        result = formatted(number.number(), *symbolic);
    }
    return Value::ofText(ValueKind::String, evaluation.copy(result));
}

Value numberIn(std::string_view text) noexcept {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    text = text.substr(first, text.find_last_not_of(' ') - first + 1);
    std::int64_t integer = 0;
    if (sdai::decodeInteger(text, integer)) return Value(integer);
    double real = 0.0;
    return sdai::decodeReal(text, real) ? Value(real) : Value();
}

} // namespace velkor::rules
