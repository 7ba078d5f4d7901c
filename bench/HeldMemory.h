/// What the process holds of the heap, of programs whose sources have HeldMemory.cpp among them.
#pragma once

#include <atomic>
#include <cstddef>

namespace velkor::bench {

extern std::atomic<std::size_t> heldBytes;
/// The most since it was set.
extern std::atomic<std::size_t> mostHeldBytes;

/// What work holds at most beyond what was held before it.
class HeldMemory {
public:
    HeldMemory() : _before(heldBytes) { mostHeldBytes = _before; }
    double bytes() const { return static_cast<double>(mostHeldBytes - _before); }

private:
    std::size_t _before;
};

} // namespace velkor::bench
