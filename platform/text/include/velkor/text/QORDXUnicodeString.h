/// The platform's data-exchange string: an immutable text with its hash, made to be a key of
/// standard unordered maps and the name argument of environment and setting reads.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

#include <cstdint>
#include <functional>

class VELKOR_PLATFORM_API QORDXUnicodeString {
public:
    QORDXUnicodeString();
    /// A copy of a text.
    QORDXUnicodeString(const QORUnicodeString& text);
    QORDXUnicodeString(const char* utf8) : QORDXUnicodeString(QORUnicodeString(utf8)) {}

    const QORUnicodeString& text() const noexcept { return _text; } ///< The same text.
    std::string_view utf8() const noexcept { return _text.utf8(); } ///< The text in UTF-8.

    /// XXH64 with seed 0 over the UTF-8 bytes, computed once.
    std::uint64_t GetHash() const noexcept { return _hash; }
    /// Exact, letter case included.
    friend bool operator==(const QORDXUnicodeString& a, const QORDXUnicodeString& b) noexcept {
        return a._hash == b._hash && a._text == b._text;
    }

private:
    QORUnicodeString _text;
    std::uint64_t _hash;
};

template <>
struct std::hash<QORDXUnicodeString> {
    std::size_t operator()(const QORDXUnicodeString& text) const noexcept { return text.GetHash(); }
};
