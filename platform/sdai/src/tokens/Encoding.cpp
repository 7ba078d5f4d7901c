#include "Characters.h"
#include "velkor/sdai/Part21Encoding.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace velkor::sdai {

using namespace part21;

namespace {

void appendHex(std::string& text, std::uint32_t value, int digits) {
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += "0123456789ABCDEF"[(value >> shift) & 0xFU];
}

/// The first character and its length in bytes; a byte that begins none is one of ISO 8859-1.
std::size_t firstCode(std::string_view utf8, std::uint32_t& code) {
    std::int32_t character = 0;
    const std::size_t length = text::decode(utf8, character);
    code = character >= 0 ? static_cast<std::uint32_t>(character) : static_cast<unsigned char>(utf8[0]);
    return character >= 0 ? length : 1;
}

/// Characters that the basic alphabet lacks, those of one plane in one directive; gives what is left.
std::string_view appendExtended(std::string& text, std::string_view utf8) {
    std::uint32_t code = 0;
    std::size_t length = firstCode(utf8, code);
    const bool isWide = code > 0xFFFF;
    text += isWide ? R"(\X4\)" : R"(\X2\)";
    do {
        appendHex(text, code, isWide ? 8 : 4);
        utf8.remove_prefix(length);
        if (utf8.empty() || isClass(utf8[0], Basic)) break;
        length = firstCode(utf8, code);
    } while ((code > 0xFFFF) == isWide);
    text += R"(\X0\)";
    return utf8;
}

template <class Number>
void appendNumber(std::string& text, Number value) {
    // The shortest form of a double takes 24 characters at most.
    char digits[32];
    text.append(digits, std::to_chars(std::begin(digits), std::end(digits), value).ptr);
}

} // namespace

void appendString(std::string& text, std::string_view utf8) {
    text += '\'';
    while (!utf8.empty()) {
        std::size_t plain = 0;
        while (plain < utf8.size() && isClass(utf8[plain], Basic) && utf8[plain] != '\'' && utf8[plain] != '\\')
            ++plain;
        text += utf8.substr(0, plain);
        utf8.remove_prefix(plain);
        if (utf8.empty()) break;
        if (isClass(utf8[0], Basic)) {
            text.append(2, utf8[0]);
            utf8.remove_prefix(1);
        } else {
            utf8 = appendExtended(text, utf8);
        }
    }
    text += '\'';
}

bool appendReal(std::string& text, double value) {
    if (!std::isfinite(value)) return false;
    const std::size_t begin = text.size();
    appendNumber(text, value);
    const std::size_t exponent = text.find('e', begin);
    if (exponent != std::string::npos) text[exponent] = 'E';
    if (text.find('.', begin) == std::string::npos) text.insert(std::min(exponent, text.size()), 1, '.');
    return true;
}

void appendInteger(std::string& text, std::int64_t value) {
    appendNumber(text, value);
}

bool appendReference(std::string& text, std::uint64_t id) {
    if (id == 0) return false;
    text += '#';
    appendNumber(text, id);
    return true;
}

bool appendEnumeration(std::string& text, std::string_view enumerator) {
    if (enumerator.empty() || isDigit(enumerator[0])) return false;
    const std::size_t begin = text.size();
    text += '.';
    for (char c : enumerator) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        if (!isClass(c, Upper | Digit)) {
            text.resize(begin);
            return false;
        }
        text += c;
    }
    text += '.';
    return true;
}

bool appendBinary(std::string& text, std::string_view digits) {
    if (digits.empty() || digits[0] < '0' || digits[0] > '3') return false;
    for (const char c : digits) {
        if (!isClass(c, Hex)) return false;
    }
    ((text += '"') += digits) += '"';
    return true;
}

} // namespace velkor::sdai
