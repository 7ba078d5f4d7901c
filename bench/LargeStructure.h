/// A large model on disk to measure with: the instances of a small one over and over, with ids shifted,
/// up to the size of an ordinary large building.
///
/// VELKOR_BENCH_MODEL names the small model; without it one is made up. VELKOR_BENCH_MEGABYTES sets the
/// size, 110 unless told.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace velkor::bench {

/// Made on first use; gone with the process.
class LargeStructure {
public:
    static const LargeStructure& theOne();
    ~LargeStructure();
    LargeStructure(const LargeStructure&) = delete;
    LargeStructure& operator=(const LargeStructure&) = delete;

    std::string path() const { return _path.string(); }
    /// Why there is no structure; empty when there is one.
    const std::string& error() const { return _error; }

private:
    LargeStructure();
    void write(std::uint64_t size);

    std::filesystem::path _path;
    std::string _error;
};

} // namespace velkor::bench
