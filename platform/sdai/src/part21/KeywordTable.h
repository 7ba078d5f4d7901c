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
            if (equal(slot.words, spelling.words)) return slot.number;
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
    /// keepBytes[length][word]: mask of the bytes of a word that belong to a spelling of a length.
    static constexpr auto keepBytes = [] {
        std::array<Words, recallReach + 1> masks{};
        for (unsigned length = 0; length <= recallReach; ++length) {
            for (unsigned byte = 0; byte < length; ++byte) {
                masks[length][byte / 8] |= std::uint64_t{0xFF} << (byte % 8 * 8);
            }
        }
        return masks;
    }();
    struct Slot {
        Words words{};
        std::uint16_t number = 0;
    };
    /// Longest run of occupied slots; beyond, a spelling is not stored. Keeps a text made to
    /// collide from being slow.
    static constexpr std::size_t longestProbe = 16;
    static constexpr std::size_t maximumSlots = 0x40000;

    // Without the call that comparing arrays would be.
    static bool equal(const Words& a, const Words& b) noexcept {
        return ((a[0] ^ b[0]) | (a[1] ^ b[1]) | (a[2] ^ b[2]) | (a[3] ^ b[3])) == 0;
    }
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

/// Without a branch on the length: keywords of every length follow each other. The words stay
/// apart so that none takes a way over memory.
inline KeywordTable::Spelling KeywordTable::spellingAt(const char* at) noexcept {
    const auto load = [at](std::size_t i) {
        std::uint64_t word;
        std::memcpy(&word, at + 8 * i, sizeof word);
        return word;
    };
    const std::uint64_t w0 = load(0);
    const std::uint64_t w1 = load(1);
    const std::uint64_t w2 = load(2);
    const std::uint64_t w3 = load(3);
    // High bit of the first byte that is "(", perhaps of later ones too.
    const auto parentheses = [](std::uint64_t word) {
        const std::uint64_t difference = word ^ 0x2828282828282828U;
        return (difference - 0x0101010101010101U) & ~difference & 0x8080808080808080U;
    };
    const auto before = [](std::uint64_t found) { return static_cast<unsigned>(std::countr_zero(found)) / 8; };
    const std::uint64_t f0 = parentheses(w0);
    const std::uint64_t f1 = parentheses(w1);
    const std::uint64_t f2 = parentheses(w2);
    const std::uint64_t f3 = parentheses(w3);
    std::size_t length = f3 != 0 ? 24 + before(f3) : recallReach;
    length = f2 != 0 ? 16 + before(f2) : length;
    length = f1 != 0 ? 8 + before(f1) : length;
    length = f0 != 0 ? before(f0) : length;
    const auto& keep = keepBytes[length];
    return {{w0 & keep[0], w1 & keep[1], w2 & keep[2], w3 & keep[3]}, length};
}

} // namespace velkor::sdai::part21
