/// What a user configures for the services, as the configuration file says it.
///
///     Configuration configuration;
///     configuration.settings.push_back({"IFC", "ImportProfileMode", 2});
///     const PlatformSetup setup(configuration);
#pragma once

#include "velkor/configuration/DefinitionReleases.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velkor {

struct Configuration {
    /// A setting of a repository.
    struct Setting {
        std::string repository;
        std::string name;
        short value = 0;
    };
    /// Resources that an administrator has chosen.
    struct SetupResource {
        std::string key;
        std::vector<std::string> paths;
    };
    /// A type that scopes of custom mappings may name.
    struct KnowledgeType {
        std::string name;
        bool isSpecialization = false;
        /// Empty when it has none.
        std::string parent;
        bool isAbstract = false;
    };

    /// The file; empty when there is none.
    std::string path;
    std::vector<Setting> settings;
    /// Names and values in the order of the file.
    std::vector<std::pair<std::string, std::string>> conversionOptions;
    std::vector<SetupResource> setupData;
    /// Nothing when the file does not say.
    std::optional<std::vector<std::string>> collectionStandard;
    std::optional<std::vector<std::string>> defaultCollectionStandard;
    std::optional<std::vector<std::string>> runtimeView;
    /// Of a folder with a runtime view for each release, the services read the definitions of this one: one of
    /// `definitionReleases`.
    std::string definitionsRelease{usualDefinitionsRelease};
    /// Names of the user's own property sets, as the file writes them.
    std::vector<std::string> customPropertySets;
    /// Every parent is one of them, and none is its own ancestor.
    std::vector<KnowledgeType> knowledgeTypes;
    /// Folder of the resource files that take the place of a runtime view and a default collection standard that
    /// nobody names; empty for none. The file does not say it.
    std::string shippedResources;
};

} // namespace velkor
