#include "Dictionaries.h"

#include <set>

namespace velkor::lint {

std::vector<const sdai::EntityDefinition*> Dictionaries::entities(std::string_view name, const Releases& releases) {
    std::vector<const sdai::EntityDefinition*> result;
    for (const std::string& release : releases.empty() ? all() : releases) {
        const sdai::SchemaDefinition* known = schema(release);
        const sdai::EntityDefinition* entity = known != nullptr ? known->entity(name) : nullptr;
        if (entity != nullptr) result.push_back(entity);
    }
    return result;
}

const std::vector<std::string_view>& Dictionaries::entityNames(const Releases& releases) {
    const auto [place, isNew] = _names.try_emplace(releases);
    if (!isNew) return place->second;
    std::set<std::string_view> names;
    for (const std::string& release : releases.empty() ? all() : releases) {
        const sdai::SchemaDefinition* known = schema(release);
        if (known == nullptr) continue;
        for (const sdai::EntityDefinition* entity : known->entities()) names.insert(entity->name());
    }
    place->second.assign(names.begin(), names.end());
    return place->second;
}

const std::vector<std::string_view>& Dictionaries::typeNames(const std::string& release) {
    const auto [place, isNew] = _typeNames.try_emplace(release);
    const sdai::SchemaDefinition* known = isNew ? schema(release) : nullptr;
    if (known == nullptr) return place->second;
    for (const sdai::DefinedType* type : known->definedTypes()) place->second.push_back(type->name());
    for (const sdai::EntityDefinition* entity : known->entities()) place->second.push_back(entity->name());
    return place->second;
}

const Dictionaries::Releases& Dictionaries::all() {
    static const Releases releases = DXSdaiDictionaryRepo::TheOne().names();
    return releases;
}

const sdai::SchemaDefinition* Dictionaries::schema(const std::string& release) {
    const auto [place, isNew] = _schemas.try_emplace(release);
    if (isNew) place->second = DXSdaiDictionaryRepo::TheOne().schema(release).value_or(nullptr);
    return place->second.get();
}

} // namespace velkor::lint
