/// The IFC releases that the version mapping tells apart, and what each is called where. The services and whoever
/// names a release to them use this one table.
#pragma once

#include <string_view>

namespace velkor {

/// A release, and what it is called where.
struct MappingRelease {
    /// What the services are asked with.
    int code;
    /// What the mapping document calls it, letter case included.
    std::string_view text;
    /// Name of its dictionary; empty when there is none.
    std::string_view dictionary;
};

/// By code, from the oldest release to the newest.
inline constexpr MappingRelease mappingReleases[] = {{1, "2x1", ""},   {2, "2x2", ""}, {3, "2x3", "IFC2X3"},
                                                     {4, "4", "IFC4"}, {5, "2x5", ""}, {6, "4x2", "IFC4X2"}};

/// Release whose `member` has a value; null when there is none. An empty text and an empty dictionary are of none.
///
///     const MappingRelease* release = findMappingRelease(&MappingRelease::text, "2x3");
template <class Member>
constexpr const MappingRelease* findMappingRelease(Member MappingRelease::*member, const Member& value) {
    if (value == Member()) return nullptr;
    for (const MappingRelease& release : mappingReleases)
        if (release.*member == value) return &release;
    return nullptr;
}

} // namespace velkor
