/// The platform string of all interfaces: Unicode text, UTF-8 inside, with lengths and positions
/// in characters counted from 0.
#pragma once

#include "velkor/PlatformExport.h"

#include <compare>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

class VELKOR_PLATFORM_API QORUnicodeString {
public:
    QORUnicodeString() = default;
    /// From UTF-8; a null pointer gives the empty text.
    QORUnicodeString(const char* utf8) : _text(utf8 ? utf8 : "") {}
    explicit QORUnicodeString(std::string_view utf8) : _text(utf8) {}                  ///< A copy of a text in UTF-8.
    explicit QORUnicodeString(std::string&& utf8) noexcept : _text(std::move(utf8)) {} ///< A text in UTF-8.

    /// The text in UTF-8; valid until the string changes.
    std::string_view utf8() const noexcept { return _text; }
    /// The text in UTF-8 with a zero behind it; valid until it changes.
    const char* ConvertToChar() const noexcept { return _text.c_str(); }

    int GetLengthInChar() const noexcept;                   ///< Number of characters.
    bool IsEmpty() const noexcept { return _text.empty(); } ///< True without a character.

    /// 0 when the texts differ, 1 when they are equal only if letter case is ignored, 2 when they
    /// are identical. A name matches when the answer is not 0.
    int Compare(const QORUnicodeString& other) const noexcept;
    /// Identity, as Compare's 2.
    friend bool operator==(const QORUnicodeString& a, const QORUnicodeString& b) noexcept = default;
    /// Order of the UTF-8 bytes, which is that of the code points.
    friend auto operator<=>(const QORUnicodeString& a, const QORUnicodeString& b) noexcept = default;

    QORUnicodeString& Append(const QORUnicodeString& other);                              ///< Adds a text at the end.
    QORUnicodeString& operator+=(const QORUnicodeString& other) { return Append(other); } ///< The same as Append.
    friend QORUnicodeString operator+(QORUnicodeString a, const QORUnicodeString& b) { return std::move(a.Append(b)); }

    /// Case mapping in place, character by character.
    void ToUpper();
    void ToLower();

    /// `length` characters from position `start`; what lies outside the text is left out.
    QORUnicodeString SubString(int start, int length) const;
    /// Position of the first occurrence at or behind `from`, -1 when there is none. An empty text
    /// is found at `from`.
    int SearchSubString(const QORUnicodeString& text, int from = 0) const noexcept;
    /// Puts `text` before the character at `position`, at the end when there is none.
    void Insert(int position, const QORUnicodeString& text);
    void Remove(int start, int length); ///< Takes `length` characters out.
    /// Replaces every occurrence, from the left, without looking at what it put in. Gives the count.
    int ReplaceAll(const QORUnicodeString& text, const QORUnicodeString& replacement);
    /// Drops blanks, tabs and line ends at both ends.
    void Strip();

    /// Reads the whole text, surrounding blanks dropped, as a decimal integer with an optional
    /// sign. False, and `value` untouched, when it is none or does not fit.
    bool ConvertToNum(int& value) const noexcept;
    /// Becomes the decimal text of a number.
    void BuildFromNum(int value);

    /// XXH32 with seed 0 over the UTF-8 bytes: the one hash of names and identifiers, fixed for ever.
    unsigned int ComputeHashKey() const noexcept;

private:
    std::string _text;
};

template <>
struct std::hash<QORUnicodeString> {
    std::size_t operator()(const QORUnicodeString& text) const noexcept {
        return std::hash<std::string_view>()(text.utf8());
    }
};
