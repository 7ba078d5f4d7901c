#include "velkor/objectmodeler/IID.h"

#include "velkor/text/Unicode.h"

#include <cstdio>

namespace velkor::objectmodeler {

std::string text(const IID& id) {
    char buffer[40];
    const auto& d = id.Data4;
    std::snprintf(buffer, sizeof buffer, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", id.Data1, id.Data2,
                  id.Data3, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]);
    return buffer;
}

IID idFromName(std::string_view name) noexcept {
    std::uint64_t high = text::hash64(name);
    std::uint64_t low = (high ^ name.size()) * 0x9E3779B97F4A7C15U ^ text::hash32(name);
    // Version 8 of a UUID: made by a rule of one's own.
    high = (high & ~std::uint64_t{0xF000}) | 0x8000;
    low = (low & (~std::uint64_t{0} >> 2)) | std::uint64_t{1} << 63;
    IID id{static_cast<std::uint32_t>(high >> 32),
           static_cast<std::uint16_t>(high >> 16),
           static_cast<std::uint16_t>(high),
           {}};
    for (unsigned i = 0; i < id.Data4.size(); ++i) id.Data4[i] = static_cast<std::uint8_t>(low >> (56 - 8 * i));
    return id;
}

} // namespace velkor::objectmodeler
