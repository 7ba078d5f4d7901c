/// An array of plain values that grows without holding old and new storage at once: the C
/// library moves large blocks by remapping their pages.
#pragma once

#include "velkor/objectmodeler/OutOfMemory.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <type_traits>
#include <utility>

namespace velkor::sdai::part21 {

template <class T>
class GrowableArray {
    static_assert(std::is_trivially_copyable_v<T>);

public:
    GrowableArray() = default;
    GrowableArray(const GrowableArray&) = delete;
    GrowableArray& operator=(const GrowableArray&) = delete;
    GrowableArray& operator=(GrowableArray&& other) noexcept {
        std::swap(_data, other._data);
        std::swap(_capacity, other._capacity);
        return *this;
    }
    ~GrowableArray() { std::free(_data); }

    /// Storage for at least this many values; those there were keep their place.
    void resize(std::size_t capacity) {
        if (capacity == 0) {
            std::free(std::exchange(_data, nullptr));
        } else {
            void* moved = std::realloc(_data, capacity * sizeof(T));
            if (moved == nullptr) objectmodeler::outOfMemory();
            _data = static_cast<T*>(moved);
            expectFilling(capacity * sizeof(T));
        }
        _capacity = capacity;
    }
    /// Storage of zeros in place of what there was; pages never written cost no memory.
    void resetToZero(std::size_t capacity) {
        resize(0);
        _data = static_cast<T*>(std::calloc(capacity, sizeof(T)));
        if (_data == nullptr) objectmodeler::outOfMemory();
        _capacity = capacity;
        expectFilling(capacity * sizeof(T));
    }

    T& operator[](std::size_t i) noexcept { return _data[i]; }
    const T& operator[](std::size_t i) const noexcept { return _data[i]; }
    const T* data() const noexcept { return _data; }
    std::size_t capacity() const noexcept { return _capacity; }
    std::size_t bytes() const noexcept { return _capacity * sizeof(T); }

private:
    /// Asks for huge pages, which spare most of the page faults of filling a large array.
    void expectFilling(std::size_t bytes) noexcept {
        constexpr std::uintptr_t page = 4096;
        if (bytes < (4U << 20)) return;
        const std::uintptr_t toPage = -reinterpret_cast<std::uintptr_t>(_data) % page;
        madvise(reinterpret_cast<char*>(_data) + toPage, (bytes - page) / page * page, MADV_HUGEPAGE);
    }

    T* _data = nullptr;
    std::size_t _capacity = 0;
};

} // namespace velkor::sdai::part21
