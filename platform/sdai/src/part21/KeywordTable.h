/// Numbers the keywords of an exchange structure in the order of their first appearance.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::sdai::part21 {

class KeywordTable {
public:
    /// Most numbers given; the keywords beyond are unlisted.
    static constexpr std::size_t maximumCount = 0xFFFE;
    /// Bytes that must be readable behind the beginning given to recall().
    static constexpr std::size_t recallReach = 32;

    /// Number of a keyword that was spelled the same before, from its first character up to the
    /// "(" behind it; nothing when it was not or is longer than 31 characters.
    std::optional<std::uint16_t> recall(const char* at) const noexcept {
        const Spelling spelling = spellingAt(at);
        if (spelling.length == recallReach) return std::nullopt;
        for (std::size_t i = slotOf(spelling);; i = (i + 1) & (_slots.size() - 1)) {
            const Slot& slot = _slots[i];
            if (slot.words[0] == 0) return std::nullopt;
            if (slot.words == spelling.words) return slot.number;
        }
    }

    /// Number of a keyword, given when it has none yet. `spelledAt`, when not null, points to text
    /// of at least recallReach bytes that recall() shall know from now on.
    std::uint16_t number(std::string_view keyword, const char* spelledAt);

    std::span<const std::string> keywords() const noexcept { return _keywords; }
    std::size_t memoryUse() const noexcept;

private:
    using Words = std::array<std::uint64_t, 4>;
    struct Spelling {
        Words words;
        std::size_t length;
    };
    struct Slot {
        Words words{};
        std::uint16_t number = 0;
    };
    /// Longest run of occupied slots; beyond, a spelling is not stored. Keeps a text made to
    /// collide from being slow.
    static constexpr std::size_t longestProbe = 16;
    static constexpr std::size_t maximumSlots = 0x20000;

    static Spelling spellingAt(const char* at) noexcept;
    std::size_t slotOf(const Spelling& spelling) const noexcept {
        const Words& w = spelling.words;
        const std::uint64_t hash =
            (w[0] ^ std::rotl(w[1], 23)) * 0x9E3779B97F4A7C15U ^ (w[2] ^ std::rotl(w[3], 41)) * 0xC2B2AE3D27D4EB4FU;
        return (hash * 0x9E3779B97F4A7C15U) >> _shift;
    }
    void remember(const Spelling& spelling, std::uint16_t number);
    void growSlots();

    std::vector<std::string> _keywords;
    std::map<std::string, std::uint16_t, std::less<>> _numbers;
    std::vector<Slot> _slots = std::vector<Slot>(64);
    unsigned _shift = 64 - 6;
    std::size_t _usedSlots = 0;
};

namespace keyword_detail {

/// keepBytes[length][word]: mask of the bytes of a word that belong to a spelling of a length.
inline constexpr auto keepBytes = [] {
    std::array<std::array<std::uint64_t, 4>, KeywordTable::recallReach + 1> masks{};
    for (unsigned length = 0; length <= KeywordTable::recallReach; ++length) {
        for (unsigned byte = 0; byte < length; ++byte) masks[length][byte / 8] |= std::uint64_t{0xFF} << (byte % 8 * 8);
    }
    return masks;
}();

/// High bit of the first byte that is "(", perhaps of later ones too.
inline std::uint64_t parentheses(std::uint64_t word) noexcept {
    const std::uint64_t difference = word ^ 0x2828282828282828U;
    return (difference - 0x0101010101010101U) & ~difference & 0x8080808080808080U;
}

} // namespace keyword_detail

/// Without a branch on the length: keywords of every length follow each other.
inline KeywordTable::Spelling KeywordTable::spellingAt(const char* at) noexcept {
    Spelling result;
    std::memcpy(result.words.data(), at, sizeof result.words);
    std::size_t length = recallReach;
    for (std::size_t i = result.words.size(); i-- > 0;) {
        const std::uint64_t found = keyword_detail::parentheses(result.words[i]);
        const std::size_t here = i * 8 + static_cast<unsigned>(std::countr_zero(found)) / 8;
        length = found != 0 ? here : length;
    }
    for (std::size_t i = 0; i < result.words.size(); ++i) result.words[i] &= keyword_detail::keepBytes[length][i];
    result.length = length;
    return result;
}

} // namespace velkor::sdai::part21
