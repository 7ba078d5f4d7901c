#include "velkor/identifiers/NamedGuid.h"

#include "UuidBytes.h"

#include <algorithm>
#include <bit>
#include <span>

namespace velkor::guid {

namespace {

/// FIPS 180-4, clause 6.1.
class Sha1 {
public:
    using Digest = std::array<std::uint8_t, 20>;

    void add(std::span<const std::uint8_t> bytes) {
        for (const std::uint8_t byte : bytes) add(byte);
    }
    void add(std::string_view bytes) {
        for (const char byte : bytes) add(static_cast<std::uint8_t>(byte));
    }

    Digest finish() {
        const std::uint64_t bits = _size * 8;
        add(std::uint8_t{0x80});
        while (_size % blockSize != blockSize - sizeof bits) add(std::uint8_t{0});
        for (int shift = 56; shift >= 0; shift -= 8) add(static_cast<std::uint8_t>(bits >> shift));
        Digest digest;
        for (std::size_t i = 0; i < digest.size(); ++i)
            digest[i] = static_cast<std::uint8_t>(_state[i / 4] >> (24 - i % 4 * 8));
        return digest;
    }

private:
    static constexpr std::size_t blockSize = 64;

    void add(std::uint8_t byte) {
        _block[_size++ % blockSize] = byte;
        if (_size % blockSize == 0) digestBlock();
    }

    void digestBlock() {
        std::array<std::uint32_t, 80> words{};
        for (std::size_t i = 0; i < blockSize; ++i) words[i / 4] = words[i / 4] << 8U | _block[i];
        for (std::size_t i = 16; i < words.size(); ++i)
            words[i] = std::rotl(words[i - 3] ^ words[i - 8] ^ words[i - 14] ^ words[i - 16], 1);
        auto [a, b, c, d, e] = _state;
        for (std::size_t i = 0; i < words.size(); ++i) {
            const std::uint32_t next = std::rotl(a, 5) + mixed(i, b, c, d) + e + words[i];
            e = d;
            d = c;
            c = std::rotl(b, 30);
            b = a;
            a = next;
        }
        const std::array<std::uint32_t, 5> sums{a, b, c, d, e};
        for (std::size_t i = 0; i < sums.size(); ++i) _state[i] += sums[i];
    }

    static std::uint32_t mixed(std::size_t round, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
        if (round < 20) return ((b & c) | (~b & d)) + 0x5A827999U;
        if (round < 40) return (b ^ c ^ d) + 0x6ED9EBA1U;
        if (round < 60) return ((b & c) | (b & d) | (c & d)) + 0x8F1BBCDCU;
        return (b ^ c ^ d) + 0xCA62C1D6U;
    }

    std::array<std::uint32_t, 5> _state{0x67452301U, 0xEFCDAB89U, 0x98BADCFEU, 0x10325476U, 0xC3D2E1F0U};
    std::array<std::uint8_t, blockSize> _block{};
    std::uint64_t _size = 0;
};

} // namespace

std::string named(const Uuid& space, std::string_view text) {
    Sha1 hash;
    hash.add(std::span(space));
    hash.add(text);
    const Sha1::Digest digest = hash.finish();
    Uuid bytes;
    std::copy_n(digest.begin(), bytes.size(), bytes.begin());
    // The version, and the variant of the RFC.
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0FU) | 0x50U);
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3FU) | 0x80U);
    return hexadecimalText(bytes);
}

} // namespace velkor::guid
