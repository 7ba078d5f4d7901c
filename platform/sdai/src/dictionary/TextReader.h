/// Reads one text of a schema list from left to right.
///
/// The first thing that is not as expected is kept, and everything read after it is empty or
/// zero, so that a caller needs to test only once, behind the last argument.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::sdai {

class TextReader {
public:
    /// `text` is zero-terminated.
    explicit TextReader(const char* text) noexcept : _next(text), _argument(text) {}

    bool failed() const noexcept { return _expected != nullptr; }
    /// Notes that the argument read last is not what is expected there.
    void fail(const char* expected) noexcept;
    /// "expected … , found …"; empty when nothing failed.
    std::string message() const;

    /// True, and moves on, when the character comes next.
    bool take(char c) noexcept;
    void expect(char c, const char* expected) noexcept;
    /// Letters, digits and "_"; may be empty.
    std::string_view word() noexcept;

    /// A keyword and its opening parenthesis.
    std::string_view keyword() noexcept;
    /// A name of the schema: capitals, digits and "_", a capital first.
    std::string_view name() noexcept;
    /// A decimal integer without superfluous characters, at least `least`.
    int integer(int least) noexcept;
    /// "#" and a number above 0.
    std::uint32_t reference() noexcept;
    /// One of two fixed words; true for the first.
    bool choice(std::string_view yes, std::string_view no, const char* expected) noexcept;
    /// A comma: another argument follows.
    void comma() noexcept { expect(',', "\",\""); }
    /// The closing parenthesis and the end of the text.
    void close() noexcept;
    /// The rest of a list of arguments of any length: true when another one follows, false
    /// behind the closing parenthesis or when something failed.
    bool another() noexcept;

    /// The argument that comes next is a reference; else it is a simple type word.
    bool atReference() const noexcept { return *_next == '#'; }

private:
    const char* _next;
    const char* _argument;
    const char* _expected = nullptr;
};

/// A text of a list for a message, cut when it is long.
std::string quoted(std::string_view text);

} // namespace velkor::sdai
