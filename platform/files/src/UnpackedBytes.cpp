#include "UnpackedBytes.h"

#include <algorithm>
#include <new>

namespace velkor::files {

std::uint64_t UnpackedBytes::most(std::uint64_t packed) noexcept {
    const std::uint64_t proportional = std::min(packed, mostUnpacked / mostUnpackedRatio) * mostUnpackedRatio;
    return std::max(proportional, alwaysUnpacked);
}

OpenError UnpackedBytes::tooLarge(std::uint64_t most) {
    return {OpenError::Code::TooLarge, "unpacks to more than " + std::to_string(most >> 20) +
                                           " MiB, which is the most that an archive of its size "
                                           "may hold"};
}

OpenError UnpackedBytes::damaged(const std::string& reason) {
    return {OpenError::Code::NoExchangeStructure, reason};
}

void UnpackedBytes::reserve(std::size_t capacity) {
    void* const bytes = std::realloc(_model._bytes.get(), std::max<std::size_t>(capacity, 1));
    if (bytes == nullptr) throw std::bad_alloc();
    static_cast<void>(_model._bytes.release());
    _model._bytes.reset(static_cast<char*>(bytes));
    _capacity = capacity;
}

void UnpackedBytes::grow() {
    constexpr std::uint64_t least = 64 << 10;
    reserve(static_cast<std::size_t>(std::min(_most + 1, std::max<std::uint64_t>(least, 2 * _capacity))));
}

UnpackedModel UnpackedBytes::finish(std::string member) {
    reserve(_model._size);
    _model._member = std::move(member);
    return std::move(_model);
}

} // namespace velkor::files
