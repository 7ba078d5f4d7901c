/// Memory that grows with what is unpacked into it, within the bounds for an archive.
#pragma once

#include "velkor/files/Packing.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace velkor::files {

class UnpackedBytes {
public:
    /// Most bytes that may come of an archive of a size.
    static std::uint64_t most(std::uint64_t packed) noexcept;
    static OpenError tooLarge(std::uint64_t most);
    static OpenError damaged(const std::string& reason);

    explicit UnpackedBytes(std::uint64_t most) noexcept : _most(most) {}

    /// Makes room for as many bytes, which must be within the bound; memory is used when it is written to. Throws
    /// std::bad_alloc when there is none.
    void reserve(std::size_t capacity);
    /// Twice the room, up to one byte more than may come, which shows that there is more.
    void grow();
    char* end() noexcept { return _model._bytes.get() + _model._size; }
    std::size_t room() const noexcept { return _capacity - _model._size; }
    std::size_t size() const noexcept { return _model._size; }
    void added(std::size_t count) noexcept { _model._size += count; }
    bool isTooLarge() const noexcept { return _model._size > _most; }
    std::uint64_t most() const noexcept { return _most; }

    /// What was unpacked, with no more memory than it needs.
    UnpackedModel finish(std::string member = {});

private:
    UnpackedModel _model;
    std::size_t _capacity = 0;
    std::uint64_t _most;
};

} // namespace velkor::files
