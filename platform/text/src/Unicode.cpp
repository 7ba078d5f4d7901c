#include "velkor/text/Unicode.h"

#define XXH_INLINE_ALL
#include <utf8proc.h>
#include <xxhash.h>

#include <algorithm>

namespace velkor::text {

std::size_t decode(std::string_view text, std::int32_t& code) noexcept {
    const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
    const utf8proc_ssize_t length = utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size()), &code);
    if (length > 0) return static_cast<std::size_t>(length);
    code = -1;
    return 1;
}

namespace {

bool isAscii(char c) noexcept {
    return static_cast<unsigned char>(c) < 0x80;
}

bool isAscii(std::string_view text) noexcept {
    return std::all_of(text.begin(), text.end(), [](char c) { return isAscii(c); });
}

std::size_t characterLength(std::string_view text) noexcept {
    if (isAscii(text.front())) return 1;
    utf8proc_int32_t code = 0;
    return decode(text, code);
}

template <char (*ascii)(char) noexcept>
std::string mapped(std::string_view text, utf8proc_int32_t (*unicode)(utf8proc_int32_t)) {
    // What is ASCII up to the first character that is not, most often all, in one go.
    std::string result(text);
    auto behind = std::find_if_not(result.begin(), result.end(), [](char c) { return isAscii(c); });
    std::transform(result.begin(), behind, result.begin(), ascii);
    text.remove_prefix(static_cast<std::size_t>(behind - result.begin()));
    result.erase(behind, result.end());
    while (!text.empty()) {
        if (isAscii(text.front())) {
            result.push_back(ascii(text.front()));
            text.remove_prefix(1);
            continue;
        }
        utf8proc_int32_t code = 0;
        const std::size_t length = decode(text, code);
        if (code < 0)
            result.append(text.substr(0, length));
        else
            append(result, unicode(code));
        text.remove_prefix(length);
    }
    return result;
}

/// The folded characters of a text one at a time. A fold may be several characters long.
class FoldedText {
public:
    explicit FoldedText(std::string_view text) noexcept : _rest(text) {}

    /// -1 at the end; a byte outside any valid sequence comes as -2 minus its value.
    utf8proc_int32_t next() noexcept {
        if (_at < _count) return _fold[_at++];
        if (_rest.empty()) return -1;
        utf8proc_int32_t code = 0;
        const auto byte = static_cast<unsigned char>(_rest.front());
        _rest.remove_prefix(decode(_rest, code));
        if (code < 0) return -2 - static_cast<utf8proc_int32_t>(byte);
        int lastClass = 0;
        const utf8proc_ssize_t count = utf8proc_decompose_char(code, _fold, LongestFold, UTF8PROC_CASEFOLD, &lastClass);
        if (count <= 0 || count > LongestFold) return code;
        _count = static_cast<int>(count);
        _at = 1;
        return _fold[0];
    }

private:
    static constexpr int LongestFold = 4;
    std::string_view _rest;
    utf8proc_int32_t _fold[LongestFold] = {};
    int _at = 0;
    int _count = 0;
};

} // namespace

std::size_t characterCount(std::string_view utf8) noexcept {
    std::size_t count = 0;
    for (; !utf8.empty(); ++count) utf8.remove_prefix(characterLength(utf8));
    return count;
}

std::size_t byteOffset(std::string_view utf8, std::size_t character) noexcept {
    std::string_view rest = utf8;
    for (; character > 0 && !rest.empty(); --character) rest.remove_prefix(characterLength(rest));
    return utf8.size() - rest.size();
}

std::string_view firstCharacter(std::string_view utf8) noexcept {
    return utf8.substr(0, characterLength(utf8));
}

std::string_view beginning(std::string_view utf8, std::size_t mostBytes) noexcept {
    if (utf8.size() <= mostBytes) return utf8;
    std::size_t end = mostBytes;
    while (end > 0 && (static_cast<unsigned char>(utf8[end]) & 0xC0U) == 0x80) --end;
    return utf8.substr(0, end);
}

void append(std::string& utf8, std::int32_t code) {
    utf8proc_uint8_t bytes[4];
    const utf8proc_ssize_t size = utf8proc_encode_char(code, bytes);
    utf8.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size));
}

std::string asciiUpper(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](char c) { return asciiUpper(c); });
    return result;
}

std::string toUpper(std::string_view utf8) {
    return mapped<asciiUpper>(utf8, utf8proc_toupper);
}

std::string toLower(std::string_view utf8) {
    return mapped<asciiLower>(utf8, utf8proc_tolower);
}

bool equalIgnoringCase(std::string_view a, std::string_view b) noexcept {
    if (isAscii(a) && isAscii(b)) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](char x, char y) { return asciiLower(x) == asciiLower(y); });
    }
    FoldedText foldedA(a);
    FoldedText foldedB(b);
    while (true) {
        const utf8proc_int32_t next = foldedA.next();
        if (next != foldedB.next()) return false;
        if (next == -1) return true;
    }
}

std::uint32_t hash32(std::string_view bytes) noexcept {
    return XXH32(bytes.data(), bytes.size(), 0);
}

std::uint64_t hash64(std::string_view bytes) noexcept {
    return XXH64(bytes.data(), bytes.size(), 0);
}

} // namespace velkor::text
