/// Values as far as they can be read in a time that does not grow with their text: many sets may share a property, and
/// a name or value of it may be as long as the file.
#pragma once

#include "velkor/sdai/DXSdaiAppInstance.h"

#include <cstddef>
#include <string>

namespace velkor {

/// A longer text is no name.
inline constexpr std::size_t longestName = 1000;

inline bool isTooLong(const sdai::Primitive& name) noexcept {
    return name.encoded().size() > longestName;
}

/// A name as findings repeat it: its size alone when it is none.
std::string shown(const sdai::Primitive& name);

/// Whether a value is there.
bool isGiven(const sdai::Primitive& value) noexcept;
/// Whether it is a string, as names are.
bool isText(const sdai::Primitive& value) noexcept;
/// The instance that it refers to; null when it is no reference.
DXSdaiAppInstance* referred(const sdai::Primitive& value);

} // namespace velkor
