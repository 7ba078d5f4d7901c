#include "velkor/identifiers/GuidText.h"

#include "UuidBytes.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace velkor::guid {

namespace {

constexpr std::string_view alphabet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
constexpr std::string_view hexadecimal = "0123456789abcdef";
constexpr std::size_t identifierLength = 22;
// What groups of hexadecimal digits begin with, the first apart, is a hyphen.
constexpr std::array<std::size_t, 4> hyphens{8, 13, 18, 23};
constexpr std::size_t uuidLength = 36;

using Bytes = Uuid;

// Digit values by character, -1 for what is none.
constexpr std::array<std::int8_t, 256> digitValues = [] {
    std::array<std::int8_t, 256> values{};
    values.fill(-1);
    for (std::size_t i = 0; i < alphabet.size(); ++i)
        values[static_cast<unsigned char>(alphabet[i])] = static_cast<std::int8_t>(i);
    return values;
}();

int digit(char c) {
    return digitValues[static_cast<unsigned char>(c)];
}

// What a message shows of a text; what is much longer than an identifier tells nothing more.
std::string shown(std::string_view text) {
    return text::quotedBeginning(text, 64);
}

// The first byte has two digits, the others four for three bytes each.
Bytes decoded(std::string_view identifier) {
    Bytes bytes{};
    bytes[0] = static_cast<std::uint8_t>(digit(identifier[0]) << 6 | digit(identifier[1]));
    for (std::size_t group = 0; group < 5; ++group) {
        std::uint32_t number = 0;
        for (const char c : identifier.substr(2 + 4 * group, 4)) number = number << 6 | static_cast<unsigned>(digit(c));
        for (std::size_t i = 0; i < 3; ++i)
            bytes[1 + 3 * group + i] = static_cast<std::uint8_t>(number >> (16 - 8 * i));
    }
    return bytes;
}

std::string encoded(const Bytes& bytes) {
    std::string identifier{alphabet[bytes[0] >> 6], alphabet[bytes[0] & 63U]};
    for (std::size_t at = 1; at < bytes.size(); at += 3) {
        const std::uint32_t number = static_cast<std::uint32_t>(bytes[at]) << 16 |
                                     static_cast<std::uint32_t>(bytes[at + 1]) << 8 | bytes[at + 2];
        for (int shift = 18; shift >= 0; shift -= 6) identifier += alphabet[number >> shift & 63U];
    }
    return identifier;
}

bool isHyphen(std::size_t position) {
    return std::ranges::find(hyphens, position) != hyphens.end();
}

} // namespace

std::string hexadecimalText(const Uuid& bytes) {
    std::string uuid;
    for (const std::uint8_t byte : bytes) {
        if (isHyphen(uuid.size())) uuid += '-';
        uuid += hexadecimal[byte >> 4];
        uuid += hexadecimal[byte & 15U];
    }
    return uuid;
}

std::optional<Fault> faultOf(std::string_view identifier) {
    if (const std::size_t length = text::characterCount(identifier); length != identifierLength) {
        return Fault{"guid-length",
                     "expected 22 characters, found " + std::to_string(length) + " in " + shown(identifier)};
    }
    const auto stranger = std::ranges::find_if(identifier, [](char c) { return digit(c) < 0; });
    if (stranger != identifier.end()) {
        const auto position = static_cast<std::size_t>(stranger - identifier.begin());
        return Fault{"guid-character", "expected digits, letters, \"_\" and \"$\", found " +
                                           text::quoted(text::firstCharacter(identifier.substr(position))) + " in " +
                                           shown(identifier)};
    }
    if (digit(identifier[0]) > 3) {
        return Fault{"guid-first-character", "expected \"0\" to \"3\" as the first character, found " +
                                                 text::quoted(identifier.substr(0, 1)) + " in " + shown(identifier)};
    }
    return std::nullopt;
}

tl::expected<std::string, std::string> expanded(std::string_view identifier) {
    if (auto fault = faultOf(identifier)) return tl::unexpected(std::move(fault->message));
    return hexadecimalText(decoded(identifier));
}

tl::expected<std::string, std::string> compressed(std::string_view text) {
    const auto fault = [&](const std::string& found) {
        return tl::unexpected("expected 32 hexadecimal digits as 8-4-4-4-12, found " + found + " in " + shown(text));
    };
    // As registries and tools write it.
    const bool isBraced = text.size() > 2 && text.front() == '{' && text.back() == '}';
    const std::string_view uuid = isBraced ? text.substr(1, text.size() - 2) : text;
    if (const std::size_t length = text::characterCount(uuid); length != uuidLength)
        return fault(std::to_string(length) + " characters");
    Bytes bytes{};
    std::size_t digits = 0;
    for (std::size_t i = 0; i < uuid.size(); ++i) {
        if (isHyphen(i)) {
            if (uuid[i] != '-') return fault(text::quoted(text::firstCharacter(uuid.substr(i))));
            continue;
        }
        const std::size_t value = hexadecimal.find(text::asciiLower(uuid[i]));
        if (value == std::string_view::npos) return fault(text::quoted(text::firstCharacter(uuid.substr(i))));
        bytes[digits / 2] = static_cast<std::uint8_t>(std::size_t{bytes[digits / 2]} << 4U | value);
        ++digits;
    }
    return encoded(bytes);
}

} // namespace velkor::guid
