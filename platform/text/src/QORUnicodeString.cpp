#include "velkor/text/QORUnicodeString.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <charconv>

using namespace velkor;

namespace {

constexpr std::string_view Blanks = " \t\r\n\v\f";

std::string_view stripped(std::string_view text) noexcept {
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::size_t offsetOf(std::string_view text, int position) noexcept {
    return text::byteOffset(text, static_cast<std::size_t>(std::max(position, 0)));
}

/// The byte range of `length` characters from `start`, cut to the text.
std::string_view range(std::string_view text, int start, int length) noexcept {
    if (start < 0) {
        length = length > -start ? length + start : 0;
        start = 0;
    }
    const std::string_view rest = text.substr(offsetOf(text, start));
    return rest.substr(0, offsetOf(rest, length));
}

} // namespace

int QORUnicodeString::GetLengthInChar() const noexcept {
    return static_cast<int>(text::characterCount(_text));
}

int QORUnicodeString::Compare(const QORUnicodeString& other) const noexcept {
    if (_text == other._text) return 2;
    return text::equalIgnoringCase(_text, other._text) ? 1 : 0;
}

QORUnicodeString& QORUnicodeString::Append(const QORUnicodeString& other) {
    _text += other._text;
    return *this;
}

void QORUnicodeString::ToUpper() {
    _text = text::toUpper(_text);
}

void QORUnicodeString::ToLower() {
    _text = text::toLower(_text);
}

QORUnicodeString QORUnicodeString::SubString(int start, int length) const {
    return QORUnicodeString(range(_text, start, length));
}

int QORUnicodeString::SearchSubString(const QORUnicodeString& text, int from) const noexcept {
    const std::size_t at = _text.find(text._text, offsetOf(_text, from));
    if (at == std::string::npos) return -1;
    return static_cast<int>(text::characterCount(std::string_view(_text).substr(0, at)));
}

void QORUnicodeString::Insert(int position, const QORUnicodeString& text) {
    // A copy, since a string may be inserted into itself.
    const std::string inserted = text._text;
    _text.insert(offsetOf(_text, position), inserted);
}

void QORUnicodeString::Remove(int start, int length) {
    const std::string_view removed = range(_text, start, length);
    _text.erase(static_cast<std::size_t>(removed.data() - _text.data()), removed.size());
}

int QORUnicodeString::ReplaceAll(const QORUnicodeString& text, const QORUnicodeString& replacement) {
    if (text.IsEmpty()) return 0;
    std::string result;
    std::size_t from = 0;
    int count = 0;
    for (std::size_t at = _text.find(text._text); at != std::string::npos; at = _text.find(text._text, from)) {
        result.append(_text, from, at - from).append(replacement._text);
        from = at + text._text.size();
        ++count;
    }
    if (count > 0) _text = result.append(_text, from);
    return count;
}

void QORUnicodeString::Strip() {
    _text = std::string(stripped(_text));
}

bool QORUnicodeString::ConvertToNum(int& value) const noexcept {
    std::string_view digits = stripped(_text);
    if (digits.starts_with('+')) {
        digits.remove_prefix(1);
        if (digits.starts_with('-')) return false;
    }
    int number = 0;
    const char* end = digits.data() + digits.size();
    const auto [at, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || at != end) return false;
    value = number;
    return true;
}

void QORUnicodeString::BuildFromNum(int value) {
    _text = std::to_string(value);
}

unsigned int QORUnicodeString::ComputeHashKey() const noexcept {
    return text::hash32(_text);
}
