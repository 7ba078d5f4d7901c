/// Identifiers of interfaces and classes.
#pragma once

#include "velkor/PlatformExport.h"

#include <array>
#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

/// A UUID in its four parts: {Data1-Data2-Data3-Data4[0..1]-Data4[2..7]}.
struct IID {
    std::uint32_t Data1 = 0;
    std::uint16_t Data2 = 0;
    std::uint16_t Data3 = 0;
    std::array<std::uint8_t, 8> Data4{};

    friend bool operator==(const IID&, const IID&) noexcept = default;
    friend auto operator<=>(const IID&, const IID&) noexcept = default;
};

namespace velkor::objectmodeler {

/// "{2C7255B3-EC9B-4988-8136-1537A27D1FC7}".
VELKOR_PLATFORM_API std::string text(const IID& id);

/// The identifier of a class that states none: made from its name, so that it is the same in every
/// process.
VELKOR_PLATFORM_API IID idFromName(std::string_view name) noexcept;

} // namespace velkor::objectmodeler
