#include "Names.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <cstring>

namespace velkor::sdai::names {

namespace {

template <class Word>
std::uint64_t load(const char* bytes) noexcept {
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

} // namespace

std::uint32_t hash(std::string_view name) noexcept {
    // Clearing this bit maps small letters to capitals. It merges some other characters too,
    // which only costs a comparison.
    constexpr std::uint64_t caseBits = 0xDFDFDFDFDFDFDFDF;
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
    std::uint64_t state = name.size() * factor;
    const auto mix = [&](std::uint64_t word) {
        state = (state ^ (word & caseBits)) * factor;
        state ^= state >> 29;
    };
    const char* bytes = name.data();
    const std::size_t size = name.size();
    // The last word overlaps the one before rather than being read byte by byte.
    if (size >= 8) {
        for (std::size_t i = 0; i + 8 < size; i += 8) mix(load<std::uint64_t>(bytes + i));
        mix(load<std::uint64_t>(bytes + size - 8));
    } else if (size >= 4) {
        mix(load<std::uint32_t>(bytes) << 32 | load<std::uint32_t>(bytes + size - 4));
    } else if (size > 0) {
        mix(load<std::uint8_t>(bytes) << 16 | load<std::uint8_t>(bytes + size / 2) << 8 |
            load<std::uint8_t>(bytes + size - 1));
    }
    return static_cast<std::uint32_t>(state >> 32);
}

bool equal(std::string_view a, std::string_view b) noexcept {
    if (a.size() != b.size()) return false;
    if (a.empty() || std::memcmp(a.data(), b.data(), a.size()) == 0) return true;
    return std::equal(a.begin(), a.end(), b.begin(),
                      [](char x, char y) { return text::asciiUpper(x) == text::asciiUpper(y); });
}

} // namespace velkor::sdai::names
