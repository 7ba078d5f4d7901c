#include "velkor/text/Printable.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <cstdint>

namespace velkor::text {

namespace {

constexpr bool isPrintable(std::int32_t code) noexcept {
    const auto within = [code](std::int32_t first, std::int32_t last) { return code >= first && code <= last; };
    return !within(0, 0x1F) && !within(0x7F, 0x9F) && !within(0x2028, 0x202E) && !within(0x2066, 0x2069);
}

// Of the first character; `length` is its length in bytes. No UTF-8 is made by what follows a byte that stays: the
// second byte of anything that is escaped is below 0xA0.
bool isPrintable(std::string_view text, std::size_t& length) noexcept {
    length = 1;
    const auto byte = static_cast<unsigned char>(text.front());
    if (byte < 0x80) return isPrintable(byte);
    std::int32_t code = 0;
    length = decode(text, code);
    return code < 0 ? byte >= 0xA0 : isPrintable(code);
}

std::string escape(char kind, std::uint32_t value, int digits) {
    std::string result{'\\', kind};
    while (digits-- > 0) result += "0123456789abcdef"[value >> (4 * digits) & 0xFU];
    return result;
}

} // namespace

std::size_t printableLength(std::string_view text) noexcept {
    std::size_t position = 0;
    for (std::size_t length = 0; position < text.size(); position += length) {
        if (!isPrintable(text.substr(position), length)) break;
    }
    return position;
}

std::string takeEscaped(std::string_view& text) {
    const auto byte = static_cast<unsigned char>(text.front());
    std::int32_t code = 0;
    text.remove_prefix(decode(text, code));
    return code < 0 ? escape('x', byte, 2) : escape('u', static_cast<std::uint32_t>(code), 4);
}

std::string printable(std::string_view text) {
    std::string result;
    while (true) {
        const std::size_t length = printableLength(text);
        result.append(text.substr(0, length));
        text.remove_prefix(length);
        if (text.empty()) return result;
        result += takeEscaped(text);
    }
}

std::string printableAscii(std::string_view text) {
    std::string result(text);
    std::ranges::replace_if(
        result, [](char c) { return c < ' ' || c > '~'; }, '?');
    return result;
}

std::string excerpt(std::string_view text, std::size_t longestBytes) {
    if (text.size() <= longestBytes) return printable(text);
    return printable(beginning(text, longestBytes)) + "…";
}

} // namespace velkor::text
