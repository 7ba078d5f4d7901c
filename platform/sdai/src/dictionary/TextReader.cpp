#include "TextReader.h"

#include "velkor/text/Printable.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace velkor::sdai {

namespace {

enum : std::uint8_t { Capital = 1, Small = 2, Digit = 4, Underscore = 8 };

constexpr std::array<std::uint8_t, 256> classes = [] {
    std::array<std::uint8_t, 256> result{};
    for (int c = 'A'; c <= 'Z'; ++c) result[static_cast<std::size_t>(c)] = Capital;
    for (int c = 'a'; c <= 'z'; ++c) result[static_cast<std::size_t>(c)] = Small;
    for (int c = '0'; c <= '9'; ++c) result[static_cast<std::size_t>(c)] = Digit;
    result['_'] = Underscore;
    return result;
}();

bool is(char c, int wanted) noexcept {
    return (classes[static_cast<unsigned char>(c)] & wanted) != 0;
}

} // namespace

void TextReader::fail(const char* expected) noexcept {
    if (_expected == nullptr) _expected = expected;
}

std::string TextReader::message() const {
    if (!failed()) return {};
    std::string result = std::string("expected ") + _expected + ", found ";
    if (*_argument == '\0') return result + "the end of the text";
    std::size_t length = 0;
    const auto continues = [](char c) { return is(c, Capital | Small | Digit | Underscore) || c == '#' || c == '-'; };
    while (continues(_argument[length])) ++length;
    return result + quoted({_argument, std::max<std::size_t>(length, 1)});
}

bool TextReader::take(char c) noexcept {
    if (failed() || *_next != c) return false;
    ++_next;
    return true;
}

void TextReader::expect(char c, const char* expected) noexcept {
    if (failed() || take(c)) return;
    _argument = _next;
    fail(expected);
}

std::string_view TextReader::word() noexcept {
    if (failed()) return {};
    _argument = _next;
    while (is(*_next, Capital | Small | Digit | Underscore)) ++_next;
    return {_argument, static_cast<std::size_t>(_next - _argument)};
}

std::string_view TextReader::keyword() noexcept {
    const std::string_view result = word();
    if (*_next != '(') fail("a keyword and \"(\"");
    if (failed()) return {};
    ++_next;
    return result;
}

std::string_view TextReader::name() noexcept {
    if (failed()) return {};
    _argument = _next;
    if (is(*_next, Capital)) {
        while (is(*_next, Capital | Digit | Underscore)) ++_next;
    }
    if (_next == _argument || is(*_next, Small)) {
        fail("a name in capitals");
        return {};
    }
    return {_argument, static_cast<std::size_t>(_next - _argument)};
}

int TextReader::integer(int least) noexcept {
    if (failed()) return 0;
    _argument = _next;
    const char* const digits = _next + (*_next == '-');
    const char* end = digits;
    std::int64_t value = 0;
    // So many digits cannot overflow, and more make no number that fits.
    while (is(*end, Digit) && end - digits < 11) value = value * 10 + (*end++ - '0');
    if (digits != _next) value = -value;
    const bool canonical = end != digits && (*digits != '0' || end == _next + 1) && !is(*end, Digit);
    if (!canonical || value < least || value > std::numeric_limits<int>::max()) {
        fail(least == std::numeric_limits<int>::min() ? "a decimal integer"
             : least < 0                              ? "a decimal integer from -1 on"
             : least == 0                             ? "a decimal integer from 0 on"
                                                      : "a decimal integer from 1 on");
        return 0;
    }
    _next = end;
    return static_cast<int>(value);
}

std::uint32_t TextReader::reference() noexcept {
    if (failed()) return 0;
    const char* const begin = _next;
    const bool begins = take('#');
    const int value = begins ? integer(1) : 0;
    _argument = begin;
    if (!begins) fail("a reference (\"#\" and a number)");
    return static_cast<std::uint32_t>(value);
}

bool TextReader::choice(std::string_view yes, std::string_view no, const char* expected) noexcept {
    const std::string_view found = word();
    if (found != yes && found != no) fail(expected);
    return !failed() && found == yes;
}

void TextReader::close() noexcept {
    expect(')', "\")\"");
    if (failed() || *_next == '\0') return;
    _argument = _next;
    fail("the end of the text");
}

bool TextReader::another() noexcept {
    if (take(',')) return true;
    if (failed()) return false;
    if (*_next != ')') {
        _argument = _next;
        fail("\",\" or \")\"");
        return false;
    }
    close();
    return false;
}

std::string quoted(std::string_view text) {
    constexpr std::size_t longest = 60;
    return text::quoted(text::printableAscii(text.substr(0, longest)) + (text.size() > longest ? "…" : ""));
}

} // namespace velkor::sdai
