#include "Profile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

namespace velkor::dictgen {

using namespace express;

namespace {

using Json = nlohmann::json;

Profile profileOf(const Json& release) {
    Profile profile;
    profile.schema = release.at("schema");
    profile.hasUniquenessRules = release.at("uniqueness_rules");
    profile.hasSupplement = release.at("supplement");
    profile.flattenedSelects = release.at("flattened_selects");
    const Json& derived = release.at("derived_attributes");
    profile.listsDerivedCarried = derived.contains("only");
    profile.derived = derived.at(profile.listsDerivedCarried ? "only" : "except");
    return profile;
}

/// Puts the items of selects in place of them. `open` holds the selects being looked into.
tl::expected<void, std::string> flatten(const ExpressSchema& schema, const std::vector<std::string>& items,
                                        std::set<std::string>& open, std::vector<std::string>& result) {
    for (const std::string& item : items) {
        const auto type = std::ranges::find(schema.types, item, &ExpressDefinedType::name);
        if (type == schema.types.end() || type->underlying.kind != ExpressType::Kind::Select) {
            result.push_back(item);
            continue;
        }
        if (!open.insert(item).second) return tl::unexpected("select " + item + " is an item of itself");
        if (auto done = flatten(schema, type->underlying.names, open, result); !done) return done;
        open.erase(item);
    }
    return {};
}

} // namespace

tl::expected<Profiles, std::string> readProfiles(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return tl::unexpected(path + ": cannot be opened");
    try {
        const Json json = Json::parse(file);
        Profiles profiles;
        const std::string supplement = json.at("supplement");
        profiles.supplementPath = (std::filesystem::path(path).parent_path() / supplement).string();
        for (const Json& release : json.at("releases")) profiles.releases.push_back(profileOf(release));
        return profiles;
    } catch (const Json::exception& error) {
        return tl::unexpected(path + ": " + error.what());
    }
}

tl::expected<void, std::string> applyProfile(const Profile& profile, ExpressSchema& schema) {
    for (const std::string& name : profile.flattenedSelects) {
        const auto type = std::ranges::find(schema.types, name, &ExpressDefinedType::name);
        if (type == schema.types.end()) return tl::unexpected(profile.schema + ": has no select " + name);
        std::vector<std::string> items;
        std::set<std::string> open{name};
        if (auto done = flatten(schema, type->underlying.names, open, items); !done) return done;
        type->underlying.names = std::move(items);
    }
    for (ExpressEntity& entity : schema.entities) {
        if (!profile.hasUniquenessRules) entity.uniquenessRules.clear();
        const auto listed = profile.derived.find(entity.name);
        std::erase_if(entity.derivedAttributes, [&](const ExpressAttribute& attribute) {
            const bool isListed = listed != profile.derived.end() && listed->second.contains(attribute.name);
            return isListed != profile.listsDerivedCarried;
        });
    }
    return {};
}

} // namespace velkor::dictgen
