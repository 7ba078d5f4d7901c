/// A text handed to the SDAI runtime: a copy in UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

class DXSdaiString {
public:
    /// As a length: the text ends at its first zero character.
    static constexpr std::uint32_t ZeroTerminated = 0xFFFFFFFF;

    DXSdaiString() = default;
    /// Copies `length` bytes. A null text gives the empty string, whatever the length.
    DXSdaiString(const char* text, std::uint32_t length) {
        if (text != nullptr) _text = length == ZeroTerminated ? std::string(text) : std::string(text, length);
    }

    std::string_view view() const noexcept { return _text; } ///< The text in UTF-8.
    /// Zero-terminated; valid as long as the string is unchanged.
    const char* c_str() const noexcept { return _text.c_str(); }
    /// In bytes.
    std::size_t length() const noexcept { return _text.size(); }

    friend bool operator==(const DXSdaiString&, const DXSdaiString&) = default;

private:
    std::string _text;
};
