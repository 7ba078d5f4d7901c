#include "HeldMemory.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace velkor::bench {

std::atomic<std::size_t> heldBytes = 0, mostHeldBytes = 0;

} // namespace velkor::bench

namespace {

using velkor::bench::heldBytes, velkor::bench::mostHeldBytes;

void* allocated(std::size_t size) {
    void* memory = std::malloc(size);
    if (memory == nullptr) throw std::bad_alloc();
    const std::size_t held = heldBytes += malloc_usable_size(memory);
    for (std::size_t most = mostHeldBytes; held > most && !mostHeldBytes.compare_exchange_weak(most, held);) continue;
    return memory;
}

void released(void* memory) noexcept {
    heldBytes -= malloc_usable_size(memory);
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size) {
    return allocated(size);
}
void* operator new[](std::size_t size) {
    return allocated(size);
}
void operator delete(void* memory) noexcept {
    released(memory);
}
void operator delete[](void* memory) noexcept {
    released(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    released(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    released(memory);
}
