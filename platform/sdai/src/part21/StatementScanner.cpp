#include "StatementScanner.h"

#include "Separators.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace velkor::sdai::part21 {

namespace {

/// Every bit becomes the parity of itself and all bits below: set from an opening apostrophe
/// up to the one before the closing apostrophe.
constexpr std::uint64_t parities(std::uint64_t bits) {
    for (unsigned shift = 1; shift < 64; shift *= 2) bits ^= bits << shift;
    return bits;
}

constexpr std::uint64_t allSet(bool set) {
    return set ? ~std::uint64_t{0} : 0;
}

/// Farthest that the beginning of a statement is looked for behind a doubtful ";" over
/// comments; bounds what a text full of such doubts costs.
constexpr std::ptrdiff_t commentReach = 256;

} // namespace

bool StatementScanner::scan() {
    _markCount = 0;
    if (_next >= _end) return false;
    _chunk = _next;
    const auto length = std::min<std::size_t>(static_cast<std::size_t>(_end - _chunk), chunkBlocks * blockSize);
    _chunkEnd = _chunk + length;
    const std::size_t whole = length / blockSize;
    _classifier(_chunk, whole, _masks.data());
    if (length % blockSize != 0) {
        std::array<char, blockSize> last{};
        std::memcpy(last.data(), _chunk + whole * blockSize, length % blockSize);
        _classifier(last.data(), 1, &_masks[whole]);
    }

    while (_next < _chunkEnd) {
        const auto offset = static_cast<std::size_t>(_next - _chunk);
        const std::size_t block = offset / blockSize;
        const BlockMasks& masks = _masks[block];
        const std::uint64_t inside = parities(masks.quote) ^ _inString;
        const std::uint64_t doubtful =
            (masks.statement & inside) | (masks.escape & ~inside) | quotesBehindEscape(block);
        if (doubtful != 0 || offset % blockSize != 0) {
            _next = settle(_next, block);
            continue;
        }
        emit(offset, masks.statement);
        _inString = allSet((inside >> 63) != 0);
        _next += std::min<std::ptrdiff_t>(blockSize, _chunkEnd - _next);
    }
    return true;
}

/// Takes the doubtful characters of a block one after the other: each decides how those behind
/// it are to be read. Answers where scanning goes on.
const char* StatementScanner::settle(const char* from, std::size_t block) {
    const char* text = _chunk + block * blockSize;
    const BlockMasks& masks = _masks[block];
    std::uint64_t undecidedQuotes = quotesBehindEscape(block);
    std::uint64_t valid = ~std::uint64_t{0} << (from - text);
    for (;;) {
        const std::uint64_t inside = parities(masks.quote & valid) ^ _inString;
        const std::uint64_t doubtful =
            ((masks.statement & inside) | (masks.escape & ~inside) | undecidedQuotes) & valid;
        const std::uint64_t bit = doubtful & -doubtful;
        // Without a doubt there is no bit, and bit - 1 covers the whole block.
        emit(block * blockSize, masks.statement & valid & (bit - 1));
        if (bit == 0) {
            _inString = allSet((inside >> 63) != 0);
            return text + std::min<std::ptrdiff_t>(blockSize, _chunkEnd - text);
        }
        const char* at = text + std::countr_zero(bit);
        const bool isInside = (inside & bit) != 0;
        valid &= ~(bit | (bit - 1));
        if ((undecidedQuotes & bit) != 0) {
            _inString = allSet(isInside || isEscapedQuote(at));
        } else if (isInside) {
            const bool closes = *at == ';' && startsStatement(at + 1);
            if (closes) mark(at, MarkKind::StringNotClosed);
            _inString = allSet(!closes);
        } else {
            _inString = 0;
            if (*at != '/' || _end - at < 2 || at[1] != '*') continue;
            const char* behind = behindComment(at);
            if (behind - text >= static_cast<std::ptrdiff_t>(blockSize)) return behind;
            valid = ~std::uint64_t{0} << (behind - text);
        }
    }
}

/// Quotes that a reverse solidus or solidus stands before.
std::uint64_t StatementScanner::quotesBehindEscape(std::size_t block) const noexcept {
    const bool carry = block > 0 ? _masks[block - 1].escape >> 63 != 0 : _chunk != _begin && _chunk[-1] == '\\';
    return (_masks[block].escape << 1 | (carry ? 1U : 0U)) & _masks[block].quote;
}

/// Whether an apostrophe inside a string belongs to the directive \S\. A directive is only what
/// reads as one from the last apostrophe on: in "\\\\S\\'" the reverse solidus itself is meant.
bool StatementScanner::isEscapedQuote(const char* quote) const noexcept {
    if (quote - _begin < 3 || std::memcmp(quote - 3, "\\S\\", 3) != 0) return false;
    const void* previous = memrchr(_begin, '\'', static_cast<std::size_t>(quote - _begin));
    const char* at = previous ? static_cast<const char*>(previous) + 1 : _begin;
    while (at < quote) at += *at == '\\' ? directiveLength(at, _end) : 1;
    return at > quote;
}

/// Whether a statement begins behind a ";" inside a string in a way that a string does not
/// hold: on a new line, which no conforming string contains.
bool StatementScanner::startsStatement(const char* at) const noexcept {
    const char* commentLimit = at + std::min(commentReach, _end - at);
    bool newLine = _distrust;
    for (;;) {
        for (; at != _end && isSpace(*at); ++at) newLine = newLine || *at == '\n' || *at == '\r';
        if (at >= commentLimit || *at != '/') break;
        const char* behind = skipSeparators(at, commentLimit);
        if (behind == at) return false;
        for (; at != behind; ++at) newLine = newLine || *at == '\n' || *at == '\r';
    }
    if (!newLine || at == _end) return false;

    const auto follows = [&at, this](std::string_view characters) {
        const char* behind = at;
        while (behind != _end && isSpace(*behind)) ++behind;
        return behind != _end && characters.find(*behind) != std::string_view::npos;
    };
    if (*at == '#') {
        const char* digits = ++at;
        while (at != _end && isDigit(*at)) ++at;
        return at != digits && follows("=");
    }
    const std::string_view rest(at, static_cast<std::size_t>(_end - at));
    for (const std::string_view word :
         {"ENDSEC", "DATA", "END-ISO-10303-21", "FILE_DESCRIPTION", "FILE_NAME", "FILE_SCHEMA"}) {
        if (!rest.starts_with(word)) continue;
        at += word.size();
        return follows(word.starts_with("END") ? ";" : word == "DATA" ? ";(" : "(");
    }
    return false;
}

/// First character behind a comment; of one that is not closed only the opening is skipped.
const char* StatementScanner::behindComment(const char* open) noexcept {
    const char* content = open + 2;
    const void* close =
        open >= _commentless ? nullptr : memmem(content, static_cast<std::size_t>(_end - content), "*/", 2);
    if (close == nullptr) {
        _commentless = std::min(_commentless, open);
        mark(open, MarkKind::CommentNotClosed);
        return content;
    }
    const char* end = static_cast<const char*>(close);
    if (memmem(content, static_cast<std::size_t>(end - content), "/*", 2)) mark(open, MarkKind::CommentInComment);
    return end + 2;
}

void StatementScanner::emit(std::size_t blockOffset, std::uint64_t bits) noexcept {
    for (; bits != 0; bits &= bits - 1) {
        _marks[_markCount++] = Mark(blockOffset + static_cast<unsigned>(std::countr_zero(bits)), MarkKind::Statement);
    }
}

} // namespace velkor::sdai::part21
