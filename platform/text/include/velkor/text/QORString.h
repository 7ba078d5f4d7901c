/// The platform's 8-bit string: bytes without an encoding of their own, for keys and catalogue
/// names.
#pragma once

#include <compare>
#include <string>
#include <string_view>
#include <utility>

class QORString {
public:
    QORString() = default;
    /// A null pointer gives the empty text.
    QORString(const char* text) : _text(text ? text : "") {}
    explicit QORString(std::string_view text) : _text(text) {} ///< A copy of a text.

    std::string_view view() const noexcept { return _text; } ///< The text.
    /// The text with a zero behind it; valid until it changes.
    const char* CastToCharPtr() const noexcept { return _text.c_str(); }
    int GetLength() const noexcept { return static_cast<int>(_text.size()); } ///< Number of bytes.
    bool IsEmpty() const noexcept { return _text.empty(); }                   ///< True without a byte.

    /// Adds a text at the end.
    QORString& Append(const QORString& other) {
        _text += other._text;
        return *this;
    }
    friend QORString operator+(QORString a, const QORString& b) { return std::move(a.Append(b)); }
    friend bool operator==(const QORString& a, const QORString& b) noexcept = default;
    friend auto operator<=>(const QORString& a, const QORString& b) noexcept = default;

private:
    std::string _text;
};
