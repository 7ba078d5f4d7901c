/// Identifiers that are a function of a text: UUIDs of version 5 (RFC 9562), SHA-1 over a namespace and the text.
///
///     guid::named(guid::dnsSpace, "www.example.com"); // "2ed6657d-e927-568b-95e1-2665a8aea6a2"
#pragma once

#include "velkor/ToolkitExport.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::guid {

/// The bytes of a UUID in the order of its hexadecimal digits.
using Uuid = std::array<std::uint8_t, 16>;

/// The RFC's namespace of host names.
inline constexpr Uuid dnsSpace{0x6b, 0xa7, 0xb8, 0x10, 0x9d, 0xad, 0x11, 0xd1,
                               0x80, 0xb4, 0x00, 0xc0, 0x4f, 0xd4, 0x30, 0xc8};

/// The identifier of any text within a namespace, as hexadecimal text in lower case; the same for ever.
VELKOR_TOOLKIT_API std::string named(const Uuid& space, std::string_view text);

} // namespace velkor::guid
