/// Finds the characters that the structure of an exchange structure hangs on, 64 bytes at a
/// time, in the widest instructions that the processor has.
#pragma once

#include "velkor/sdai/Part21File.h"

#include <cstddef>
#include <cstdint>

namespace velkor::sdai::part21 {

/// One bit per byte of a block of 64, the first byte lowest.
struct BlockMasks {
    std::uint64_t quote;     ///< '
    std::uint64_t statement; ///< ; and =
    std::uint64_t escape;    ///< / and reverse solidus
};

inline constexpr std::size_t blockSize = 64;

/// Classifies whole blocks; the text needs no alignment.
using BlockClassifier = void (*)(const char* text, std::size_t blocks, BlockMasks* masks);

/// The classifier of a path; null when the processor lacks the instructions.
BlockClassifier blockClassifier(ScanPath path) noexcept;

} // namespace velkor::sdai::part21
