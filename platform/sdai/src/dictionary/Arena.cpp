#include "Arena.h"

namespace velkor::sdai {

void* Arena::bytes(std::size_t size, std::size_t alignment) {
    // Every block begins aligned for any object, so aligning what is left is enough.
    const std::size_t padding = _left % alignment;
    if (size + padding <= _left) {
        void* place = _next + padding;
        _next += padding + size;
        _left -= padding + size;
        return place;
    }
    // A piece that would waste much of a block has one of its own.
    const bool own = size > BlockSize / 4;
    const std::size_t block = own ? size : BlockSize;
    _blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(block));
    _size += block;
    std::byte* place = _blocks.back().get();
    if (!own) {
        _next = place + size;
        _left = block - size;
    }
    return place;
}

} // namespace velkor::sdai
