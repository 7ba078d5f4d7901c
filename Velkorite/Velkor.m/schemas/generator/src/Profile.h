/// What each release's dictionary carries of its EXPRESS schema.
#pragma once

#include "ExpressSchema.h"

#include <map>
#include <set>
#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::dictgen {

struct Profile {
    std::string schema;
    bool hasUniquenessRules = false;
    /// The derived attributes carried are those listed, by entity, or all but those.
    bool listsDerivedCarried = false;
    std::map<std::string, std::set<std::string>> derived;
    bool hasSupplement = false;
    /// Selects whose items that are selects give way to their items, at every depth.
    std::vector<std::string> flattenedSelects;
};

struct Profiles {
    /// An EXPRESS source with the declarations of the supplement.
    std::string supplementPath;
    /// A text is stored with the first release that uses it.
    std::vector<Profile> releases;
};

[[nodiscard]] tl::expected<Profiles, std::string> readProfiles(const std::string& path);

/// Leaves out and flattens what the profile says. The error names what the schema lacks.
[[nodiscard]] tl::expected<void, std::string> applyProfile(const Profile& profile, express::ExpressSchema& schema);

} // namespace velkor::dictgen
