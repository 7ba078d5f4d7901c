/// Reads the content of a string literal: decodes it, judges it, or both.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velkor::sdai::part21 {

/// The first thing in a string literal that the standard does not allow.
struct StringViolation {
    /// Position in the token; npos when there is no violation.
    std::size_t position = std::string_view::npos;
    std::string message;
};

class StringDecoder {
public:
    /// Either destination may be null; judging alone allocates nothing as long as all is well.
    StringDecoder(std::string* text, StringViolation* violation) noexcept : _text(text), _violation(violation) {}

    /// Reads a token with its apostrophes. Decodes all that can be; see decodeString().
    void decode(std::string_view token);

private:
    void directive();
    void pageCharacter(char code);
    void arbitrary();
    void extended(std::size_t digits);
    void foreignByte();
    void append(char32_t character);
    void take(std::size_t length);
    void violation(const char* at, std::string message);

    std::string* _text;
    StringViolation* _violation;
    const char* _begin = nullptr;
    const char* _next = nullptr;
    const char* _end = nullptr;
    char _page = 'A';
};

} // namespace velkor::sdai::part21
