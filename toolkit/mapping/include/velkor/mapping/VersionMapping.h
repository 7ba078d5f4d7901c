/// The version mapping of one pair of releases, asked for many names.
///
///     const auto mapping = VersionMapping::load(setup, *from, *to);
///     if (mapping) use(mapping->entityName("IFCACTIONREQUEST"));
#pragma once

#include "MappingReleases.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/mapping/Mappings.h"
#include "velkor/ToolkitExport.h"

#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <utility>
#include <vector>

namespace velkor {

/// The mapping services hold one table: while one of these lives no other pair of releases should be asked for.
class VELKOR_TOOLKIT_API VersionMapping {
public:
    /// Reads the document and builds the table. An error is a line that says why there is no document, or
    /// that it does not know the pair.
    static tl::expected<VersionMapping, std::string> load(const PlatformSetup& setup, const MappingRelease& from,
                                                          const MappingRelease& to);

    /// What an entity is called in the target, upper case; empty when the document names no other name.
    std::string entityName(std::string_view entity) const;
    /// The document says that the target no longer has the entity.
    VELKOR_TOOLKIT_API bool isDeprecated(std::string_view entity) const;
    /// What a property of an entity is in the target: entity (that asked for when none is named) and property.
    std::optional<std::pair<std::string, std::string>> property(std::string_view entity,
                                                                std::string_view property) const;
    /// What the target release introduces with a value.
    const std::vector<IntroducedValue>& introduced() const noexcept { return _introduced; }

private:
    VELKOR_TOOLKIT_LOCAL VersionMapping(const MappingRelease& from, const MappingRelease& to)
        : _from(&from), _to(&to) {}
    const MappingRelease* _from;
    const MappingRelease* _to;
    std::vector<std::string> _deprecated;
    std::vector<IntroducedValue> _introduced;
};

} // namespace velkor
