/// First stage of reading an exchange structure: the places of ";" and "=" outside strings and
/// comments, a chunk of text at a time.
#pragma once

#include "BlockClassifier.h"

#include <array>
#include <span>
#include <string_view>

namespace velkor::sdai::part21 {

/// What stands at a mark.
enum class MarkKind : std::uint8_t {
    Statement,        ///< ";" or "="
    StringNotClosed,  ///< ";" that ends a statement within a string that lacks its apostrophe
    CommentNotClosed, ///< "/*" without "*/" anywhere behind it
    CommentInComment, ///< "/*" of a comment that holds another "/*"
};

/// A place in the current chunk with its kind.
class Mark {
public:
    Mark() = default;
    Mark(std::size_t offset, MarkKind kind) noexcept
        : _bits(static_cast<std::uint32_t>(offset) | static_cast<std::uint32_t>(kind) << 24) {}
    std::uint32_t offset() const noexcept { return _bits & 0xFFFFFFU; }
    MarkKind kind() const noexcept { return static_cast<MarkKind>(_bits >> 24); }

private:
    std::uint32_t _bits;
};

class StatementScanner {
public:
    StatementScanner(std::string_view text, BlockClassifier classifier) noexcept
        : _begin(text.data()), _end(text.data() + text.size()), _next(_begin), _classifier(classifier) {}

    /// Scans the next chunk. False when there is none.
    bool scan();
    /// Marks of the chunk in order; their offsets count from chunk().
    std::span<const Mark> marks() const noexcept { return {_marks.data(), _markCount}; }
    const char* chunk() const noexcept { return _chunk; }
    /// Whether the scanned text ends inside a string.
    bool insideString() const noexcept { return _inString != 0; }
    /// Continues elsewhere, outside of strings.
    void restart(const char* at) noexcept {
        _next = at;
        _inString = 0;
    }
    /// Where the first comment begins that is not closed; behind it none is. End of the text as
    /// long as no such comment was met.
    const char* unclosedComment() const noexcept { return _commentless; }
    /// From now on a statement that begins in the line of the ";" before it also shows that a
    /// string was not closed. Conforming strings may hold such text, so this is for structures
    /// known to be damaged.
    void distrustStrings() noexcept { _distrust = true; }
    bool distrustsStrings() const noexcept { return _distrust; }

private:
    static constexpr std::size_t chunkBlocks = 256;

    const char* settle(const char* from, std::size_t block);
    std::uint64_t quotesBehindEscape(std::size_t block) const noexcept;
    bool isEscapedQuote(const char* quote) const noexcept;
    bool startsStatement(const char* at) const noexcept;
    const char* behindComment(const char* open) noexcept;
    void emit(std::size_t blockOffset, std::uint64_t bits) noexcept;
    void mark(const char* at, MarkKind kind) noexcept {
        _marks[_markCount++] = Mark(static_cast<std::size_t>(at - _chunk), kind);
    }

    const char* _begin;
    const char* _end;
    const char* _next;
    const char* _chunk = nullptr;
    const char* _chunkEnd = nullptr;
    BlockClassifier _classifier;
    // All bits set inside a string, none outside.
    std::uint64_t _inString = 0;
    bool _distrust = false;
    const char* _commentless = _end;
    std::size_t _markCount = 0;
    std::array<BlockMasks, chunkBlocks> _masks;
    // Room for one mark per byte; emit() writes up to three beyond the last.
    std::array<Mark, chunkBlocks * blockSize + 4> _marks;
};

} // namespace velkor::sdai::part21
