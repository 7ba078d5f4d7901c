/// What the dictionaries of the IFC releases know of a name. Dictionaries are restored as they are needed.
#pragma once

#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::lint {

class Dictionaries {
public:
    /// Names of releases; none means all.
    using Releases = std::vector<std::string>;

    /// The definitions of an entity in those releases that have it, letter case ignored.
    std::vector<const sdai::EntityDefinition*> entities(std::string_view name, const Releases& releases);
    /// Names of all entities of the releases, each once.
    const std::vector<std::string_view>& entityNames(const Releases& releases);

    /// Names of all defined types and entities of a release.
    const std::vector<std::string_view>& typeNames(const std::string& release);
    /// Null for what is no release.
    const sdai::SchemaDefinition* schema(const std::string& release);

    static const Releases& all();

private:
    std::map<std::string, DXSdaiDictionaryRepo::SchemaPointer> _schemas;
    std::map<Releases, std::vector<std::string_view>> _names;
    std::map<std::string, std::vector<std::string_view>> _typeNames;
};

} // namespace velkor::lint
