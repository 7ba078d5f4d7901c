#include "BlockClassifier.h"

#include <bit>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace velkor::sdai::part21 {

namespace {

static_assert(std::endian::native == std::endian::little, "masks are built from words in byte order");

constexpr std::uint64_t everyByte(unsigned char c) {
    return 0x0101010101010101U * c;
}

/// High bit of each byte that equals c; exact, without carries from one byte to the next.
constexpr std::uint64_t equalBytes(std::uint64_t word, unsigned char c) {
    const std::uint64_t difference = word ^ everyByte(c);
    return ~(((difference & everyByte(0x7F)) + everyByte(0x7F)) | difference) & everyByte(0x80);
}

/// Gathers the high bits of eight bytes into the low byte.
constexpr std::uint64_t gather(std::uint64_t highBits) {
    return ((highBits >> 7) * 0x0102040810204080U) >> 56;
}

void classifyPortable(const char* text, std::size_t blocks, BlockMasks* masks) {
    for (; blocks > 0; --blocks, ++masks, text += blockSize) {
        BlockMasks result{};
        for (std::size_t i = 0; i < 8; ++i) {
            std::uint64_t word;
            std::memcpy(&word, text + 8 * i, sizeof word);
            result.quote |= gather(equalBytes(word, '\'')) << (8 * i);
            result.statement |= gather(equalBytes(word, ';') | equalBytes(word, '=')) << (8 * i);
            result.escape |= gather(equalBytes(word, '/') | equalBytes(word, '\\')) << (8 * i);
        }
        *masks = result;
    }
}

#if defined(__x86_64__)

void classifySse2(const char* text, std::size_t blocks, BlockMasks* masks) {
    const __m128i quote = _mm_set1_epi8('\'');
    const __m128i semicolon = _mm_set1_epi8(';');
    const __m128i equals = _mm_set1_epi8('=');
    const __m128i solidus = _mm_set1_epi8('/');
    const __m128i reverse = _mm_set1_epi8('\\');
    for (; blocks > 0; --blocks, ++masks, text += blockSize) {
        BlockMasks result{};
        for (std::size_t i = 0; i < 4; ++i) {
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + 16 * i));
            const auto bits = [i](__m128i found) {
                return static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm_movemask_epi8(found))) << (16 * i);
            };
            result.quote |= bits(_mm_cmpeq_epi8(v, quote));
            result.statement |= bits(_mm_or_si128(_mm_cmpeq_epi8(v, semicolon), _mm_cmpeq_epi8(v, equals)));
            result.escape |= bits(_mm_or_si128(_mm_cmpeq_epi8(v, solidus), _mm_cmpeq_epi8(v, reverse)));
        }
        *masks = result;
    }
}

__attribute__((target("avx2"))) inline std::uint64_t bits(__m256i low, __m256i high) {
    return static_cast<std::uint32_t>(_mm256_movemask_epi8(low)) |
           static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm256_movemask_epi8(high))) << 32;
}

__attribute__((target("avx2"))) void classifyAvx2(const char* text, std::size_t blocks, BlockMasks* masks) {
    const __m256i quote = _mm256_set1_epi8('\'');
    const __m256i semicolon = _mm256_set1_epi8(';');
    const __m256i equals = _mm256_set1_epi8('=');
    const __m256i solidus = _mm256_set1_epi8('/');
    const __m256i reverse = _mm256_set1_epi8('\\');
    for (; blocks > 0; --blocks, ++masks, text += blockSize) {
        const __m256i a = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(text));
        const __m256i b = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(text + 32));
        masks->quote = bits(_mm256_cmpeq_epi8(a, quote), _mm256_cmpeq_epi8(b, quote));
        masks->statement = bits(_mm256_or_si256(_mm256_cmpeq_epi8(a, semicolon), _mm256_cmpeq_epi8(a, equals)),
                                _mm256_or_si256(_mm256_cmpeq_epi8(b, semicolon), _mm256_cmpeq_epi8(b, equals)));
        masks->escape = bits(_mm256_or_si256(_mm256_cmpeq_epi8(a, solidus), _mm256_cmpeq_epi8(a, reverse)),
                             _mm256_or_si256(_mm256_cmpeq_epi8(b, solidus), _mm256_cmpeq_epi8(b, reverse)));
    }
}

__attribute__((target("avx512f,avx512bw"))) void classifyAvx512(const char* text, std::size_t blocks,
                                                                BlockMasks* masks) {
    const __m512i quote = _mm512_set1_epi8('\'');
    const __m512i semicolon = _mm512_set1_epi8(';');
    const __m512i equals = _mm512_set1_epi8('=');
    const __m512i solidus = _mm512_set1_epi8('/');
    const __m512i reverse = _mm512_set1_epi8('\\');
    for (; blocks > 0; --blocks, ++masks, text += blockSize) {
        const __m512i v = _mm512_loadu_si512(text);
        masks->quote = _mm512_cmpeq_epi8_mask(v, quote);
        masks->statement = _mm512_cmpeq_epi8_mask(v, semicolon) | _mm512_cmpeq_epi8_mask(v, equals);
        masks->escape = _mm512_cmpeq_epi8_mask(v, solidus) | _mm512_cmpeq_epi8_mask(v, reverse);
    }
}

#endif

} // namespace

BlockClassifier blockClassifier(ScanPath path) noexcept {
    switch (path) {
    case ScanPath::Portable:
        return classifyPortable;
#if defined(__x86_64__)
    case ScanPath::Sse2:
        return classifySse2;
    case ScanPath::Avx2:
        return __builtin_cpu_supports("avx2") ? classifyAvx2 : nullptr;
    case ScanPath::Avx512:
        return __builtin_cpu_supports("avx512bw") ? classifyAvx512 : nullptr;
    case ScanPath::Automatic:
        for (const ScanPath widest : {ScanPath::Avx512, ScanPath::Avx2}) {
            if (const BlockClassifier classifier = blockClassifier(widest)) return classifier;
        }
        return classifySse2;
#else
    case ScanPath::Automatic:
        return classifyPortable;
#endif
    default:
        return nullptr;
    }
}

} // namespace velkor::sdai::part21
