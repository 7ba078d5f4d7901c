/// Memory of one schema: objects that are never destroyed one by one, in a few large blocks.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <span>
#include <type_traits>
#include <vector>

namespace velkor::sdai {

class Arena {
public:
    /// Room for `count` objects, not yet constructed.
    template <class T>
    T* allocate(std::size_t count) {
        static_assert(std::is_trivially_destructible_v<T>, "nothing here is ever destroyed");
        static_assert(alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
        return static_cast<T*>(bytes(count * sizeof(T), alignof(T)));
    }

    /// `count` objects of value zero.
    template <class T>
    std::span<T> zeroed(std::size_t count) {
        T* first = allocate<T>(count);
        std::uninitialized_value_construct_n(first, count);
        return {first, count};
    }

    /// Bytes taken from the system.
    std::size_t size() const noexcept { return _size; }

private:
    void* bytes(std::size_t size, std::size_t alignment);

    static constexpr std::size_t BlockSize = std::size_t{64} * 1024;
    std::vector<std::unique_ptr<std::byte[]>> _blocks;
    std::byte* _next = nullptr;
    std::size_t _left = 0;
    std::size_t _size = 0;
};

} // namespace velkor::sdai
