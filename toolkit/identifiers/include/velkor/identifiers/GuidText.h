/// The two ways to write a globally unique identifier: 22 characters, as IFC's GlobalId has it, and the usual
/// hexadecimal text of 36.
///
///     guid::expanded("0$WU4A9R19$vKWO$AdOnKA"); // "3f81e10a-25b0-49ff-9520-63f2a763150a"
#pragma once

#include "velkor/ToolkitExport.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::guid {

/// What findings about the identifiers of a model are coded by.
inline constexpr std::array<std::string_view, 5> codes{"guid-character", "guid-duplicate", "guid-first-character",
                                                       "guid-length", "guid-missing"};

/// What is wrong with the 22 characters of an identifier.
struct Fault {
    /// Short stable word: "guid-length", "guid-character" or "guid-first-character".
    const char* code;
    /// What was expected and what was found.
    std::string message;
};

/// The first fault of an identifier, in the order of the codes; nothing when it is well-formed: 22
/// characters of IFC's alphabet, the first of them "0" to "3", for 128 bits.
VELKOR_TOOLKIT_API std::optional<Fault> faultOf(std::string_view identifier);

/// 22 characters as hexadecimal text in lower case, or what was expected.
VELKOR_TOOLKIT_API tl::expected<std::string, std::string> expanded(std::string_view identifier);

/// Hexadecimal text, in any letter case and with or without braces around it, as 22 characters, or what was expected.
VELKOR_TOOLKIT_API tl::expected<std::string, std::string> compressed(std::string_view text);

} // namespace velkor::guid
