/// Published rules that are themselves wrong. They are judged as they stand, and their findings are warnings.
#pragma once

#include <string_view>

namespace velkor::rules {

struct KnownFault {
    /// Owner and label as the schema spells them.
    std::string_view rule;
    /// Names of the dictionaries that it concerns, separated by blanks.
    std::string_view releases;
    /// What is wrong, for people, and where that can be looked up.
    std::string_view reason;
    std::string_view source;
    /// What an attribute must be in the file for the fault to show; none when every instance meets it.
    std::string_view attribute = {};
    std::string_view value = {};
};

/// Null when nothing is known against the rule of a release.
const KnownFault* knownFault(std::string_view release, std::string_view rule) noexcept;

} // namespace velkor::rules
