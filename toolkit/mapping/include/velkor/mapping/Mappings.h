/// What becomes of names, as the mapping services say it by the documents that are configured.
///
///     const PlatformSetup setup(configuration);
///     const auto answer = mapBetweenReleases(setup, *from, *to, "IfcActionRequest", "RequestID");
///     if (answer && answer->isMapped) use(answer->entity, answer->property);
///
/// Errors are a line that says why there is no document or that it cannot be read.
#pragma once

#include "MappingReleases.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/ToolkitExport.h"

#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor {

/// What a status of the services means: a short stable word, "deprecated_entity", and a few words for people.
struct MappingMeaning {
    HRESULT status;
    const char* name;
    const char* words;
};

/// What a mapping service answered.
struct MappingAnswer {
    /// The services' own.
    HRESULT status;
    MappingMeaning meaning;
    /// False when nothing is known to become of what was asked for.
    bool isMapped = false;
    /// What is used in place, an entity or a set; empty unless a mapping names it.
    std::string entity;
    std::string property;
    /// What an entity is called in the other release; empty unless it was asked for as a whole and is called otherwise.
    std::string entityName;
    /// True when a conversion option keeps the services from mapping.
    bool isSwitchedOff = false;
    std::vector<std::string> documents;
};

/// What a document lists for a pair of releases.
template <class Entry>
struct MappingList {
    HRESULT status;
    MappingMeaning meaning;
    std::vector<Entry> entries;
    std::string document;
};

/// The value that a property gets where it is introduced.
struct IntroducedValue {
    std::string entity;
    std::string property;
    std::string value;
};

/// A property, or with an empty one the entity as a whole, in another release.
VELKOR_TOOLKIT_API tl::expected<MappingAnswer, std::string>
mapBetweenReleases(const PlatformSetup& setup, const MappingRelease& from, const MappingRelease& to,
                   std::string_view entity, std::string_view property);

/// The entities that the second release no longer has.
VELKOR_TOOLKIT_API tl::expected<MappingList<std::string>, std::string>
deprecatedEntities(const PlatformSetup& setup, const MappingRelease& from, const MappingRelease& to);

/// The properties that the second release introduces with a value.
VELKOR_TOOLKIT_API tl::expected<MappingList<IntroducedValue>, std::string>
introducedValues(const PlatformSetup& setup, const MappingRelease& from, const MappingRelease& to);

/// Whether a text is the name of a type followed by "_Import" or "_Export", in any letter case.
VELKOR_TOOLKIT_API bool isMappingScope(std::string_view scope);

/// What is used in place of a property, or with an empty one of an entity or set, within a scope.
VELKOR_TOOLKIT_API tl::expected<MappingAnswer, std::string>
mapForType(const PlatformSetup& setup, std::string_view entity, std::string_view property, std::string_view scope);

/// The set and property that an attribute of a PLM type is written as. The error is empty when the set-up has told
/// already which document cannot be read.
VELKOR_TOOLKIT_API tl::expected<MappingAnswer, std::string>
mapPlmAttribute(const PlatformSetup& setup, std::string_view type, std::string_view attribute);

} // namespace velkor
