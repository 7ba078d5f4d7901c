#include "TextStore.h"

namespace velkor::dictgen {

std::uint32_t TextStore::place(std::size_t release, const std::string& text) {
    if (const auto found = _places.find(text); found != _places.end()) return found->second;
    const std::uint32_t result = static_cast<std::uint32_t>(release) << 24 | _sizes[release];
    _places.emplace(_texts[release].emplace_back(text), result);
    _sizes[release] += static_cast<std::uint32_t>(text.size()) + 1;
    return result;
}

} // namespace velkor::dictgen
