/// White space, print control, comments and skipped sections of a text, and words in it, whatever their case.
#pragma once

#include "Characters.h"
#include "velkor/text/Unicode.h"

#include <cstring>
#include <string_view>

namespace velkor::sdai::part21 {

/// First character that is neither white space nor in a print control directive nor within a comment
/// closed before `end`.
inline const char* skipSeparators(const char* at, const char* end) noexcept {
    for (;;) {
        while (at != end && isSpace(*at)) ++at;
        if (isPrintControl(at, end)) {
            at += 3;
            continue;
        }
        if (end - at < 4 || at[0] != '/' || at[1] != '*') return at;
        const void* close = memmem(at + 2, static_cast<std::size_t>(end - at - 2), "*/", 2);
        if (close == nullptr) return at;
        at = static_cast<const char*>(close) + 2;
    }
}

/// The "ENDSEC" of a section whose statements are not to be read; `end` when there is none.
inline const char* findSectionEnd(const char* at, const char* end) noexcept {
    constexpr std::string_view word = "ENDSEC";
    for (const char* from = at;; at += word.size()) {
        const void* found = memmem(at, static_cast<std::size_t>(end - at), word.data(), word.size());
        if (found == nullptr) return end;
        at = static_cast<const char*>(found);
        const char* behind = at + word.size();
        while (behind != end && isSpace(*behind)) ++behind;
        if ((at == from || isSpace(at[-1]) || at[-1] == ';') && behind != end && *behind == ';') return at;
    }
}

/// Whether a word in upper case stands at the beginning of a text, in any case.
inline bool startsWithWord(std::string_view text, std::string_view word) noexcept {
    if (text.size() < word.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (text::asciiUpper(text[i]) != word[i]) return false;
    }
    return true;
}

} // namespace velkor::sdai::part21
