/// Everything that a user can set for the services from outside, in one table: what a configuration is read by and what
/// documentation repeats.
///
///     for (const ConfigurationItem& item : configurationItems) show(item.name, name(item.place), item.meaning);
#pragma once

#include "QORIFCDXFileServices.h"
#include "QORIFCOptions.h"
#include "QORIFCOptionsFromXCAD.h"
#include "velkor/ToolkitExport.h"

#include <string_view>
#include <vector>

namespace velkor {

/// Where something can be set.
enum class ConfigurationPlace {
    Environment,      ///< a variable of the environment
    Key,              ///< a key of the configuration file
    KnowledgeTypeKey, ///< a key of one of its knowledge types
    Setting,          ///< a setting, in the repository "IFC"
    ConversionOption, ///< a conversion option
};

/// Something that a user can set.
struct ConfigurationItem {
    ConfigurationPlace place;
    const char* name;
    /// What is expected, in a few words.
    const char* kind;
    /// One line.
    const char* meaning;
};

namespace keys {

inline constexpr const char* settings = "settings";
inline constexpr const char* conversionOptions = "conversion_options";
inline constexpr const char* setupData = "setup_data";
inline constexpr const char* collectionStandard = "collection_standard";
inline constexpr const char* defaultCollectionStandard = "default_collection_standard";
inline constexpr const char* runtimeView = "runtime_view";
inline constexpr const char* definitionsRelease = "definitions_release";
inline constexpr const char* customPropertySets = "custom_property_sets";
inline constexpr const char* knowledgeTypes = "knowledge_types";
inline constexpr const char* typeName = "name";
inline constexpr const char* typeKind = "kind";
inline constexpr const char* typeParent = "parent";
inline constexpr const char* typeAbstract = "abstract";

} // namespace keys

/// Where the resource files come from that nobody has configured.
inline constexpr const char* shippedSource = "shipped with the program";

inline constexpr ConfigurationItem configurationItems[] = {
    {ConfigurationPlace::Environment, QORIFCOptions::_envvar_exchange_profile, "number 0 to 2",
     "forces the exchange profile: 0 tessellated, 1 fully exposed, 2 feature"},
    {ConfigurationPlace::Environment, QORIFCOptions::_envvar_structure_exposure, "number 0 or 1",
     "forces the structure exposure; alone or with the geometry mode also the exchange profile"},
    {ConfigurationPlace::Environment, QORIFCOptions::_envvar_geometry_mode, "number 0 to 2",
     "forces the geometry mode: 0 other, 1 tessellated, 2 feature"},
    {ConfigurationPlace::Environment, QORIFCOptions::_envvar_no_attributes, "presence",
     "no attributes are exchanged when it is there, even empty"},
    {ConfigurationPlace::Environment, QORIFCDXFileServices::CollectionStandardVariables[0], "folders, \";\" between",
     "the collection standard, the first folder strongest"},
    {ConfigurationPlace::Environment, QORIFCDXFileServices::CollectionStandardVariables[1], "folders, \";\" between",
     "the default collection standard, searched after the other"},

    {ConfigurationPlace::Key, keys::settings, "object of objects of integers",
     "settings by repository, -32768 to 32767 each"},
    {ConfigurationPlace::Key, keys::conversionOptions, "object of texts",
     "conversion options, given to the services in the order of the file"},
    {ConfigurationPlace::Key, keys::setupData, "object of paths or lists of paths",
     "resources that an administrator has chosen, by resource set and category"},
    {ConfigurationPlace::Key, keys::collectionStandard, "list of folders",
     "QORCollectionStandard, when the environment has no such variable"},
    {ConfigurationPlace::Key, keys::defaultCollectionStandard, "list of folders",
     "QORDefaultCollectionStandard, when the environment has no such variable"},
    {ConfigurationPlace::Key, keys::runtimeView, "list of folders",
     "the folders that together are the installation, the first one strongest"},
    {ConfigurationPlace::Key, keys::definitionsRelease, "name of a release",
     "the one whose property sets the services know; models are judged by their own release's; IFC4 unless told"},
    {ConfigurationPlace::Key, keys::customPropertySets, "list of names",
     "property sets of your own, accepted without a definition; letter case does not count"},
    {ConfigurationPlace::Key, keys::knowledgeTypes, "list of objects", "knowledge types and specializations"},
    {ConfigurationPlace::KnowledgeTypeKey, keys::typeName, "text", "name of the type, required"},
    {ConfigurationPlace::KnowledgeTypeKey, keys::typeKind, "\"knowledge\" or \"specialization\"",
     "which kind of type it is, required"},
    {ConfigurationPlace::KnowledgeTypeKey, keys::typeParent, "text", "name of the type it is derived from"},
    {ConfigurationPlace::KnowledgeTypeKey, keys::typeAbstract, "true or false",
     "whether it has no objects of its own; false unless told"},

    {ConfigurationPlace::Setting, QORIFCOptions::_setting_import_profile, "number 0 to 2", "the exchange profile"},
    {ConfigurationPlace::Setting, QORIFCOptions::_setting_fully_exposed, "number 0 or 1", "the structure exposure"},
    {ConfigurationPlace::Setting, QORIFCOptions::_setting_import_geo_mode, "number 0 to 2", "the geometry mode"},

    {ConfigurationPlace::ConversionOption, QORIFCOptionsFromXCAD::DisableVersionMappingOption, "yes or no",
     "\"true\", \"ok\", \"yes\", \"1\" or \"full_authorization\" switches version and custom mapping off"},
    {ConfigurationPlace::ConversionOption, QORIFCOptionsFromXCAD::TransferAllOption, "text",
     "\"TransferAsFeatureRep\": exchange profile 2; \"AllToOneTessellatedRep\": exchange profile 0"},
    {ConfigurationPlace::ConversionOption, QORIFCOptionsFromXCAD::WriteOptionsOption, "any", "recognised and left out"},
};

/// The place in words: "environment variable".
VELKOR_TOOLKIT_API const char* name(ConfigurationPlace place);

/// The names that have a place, in the order of the table.
VELKOR_TOOLKIT_API std::vector<std::string_view> namesAt(ConfigurationPlace place);

} // namespace velkor
