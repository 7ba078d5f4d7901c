/// The kinds of resource file that the services read, and where they look for each. The services and
/// whoever explains them use this one table.
#pragma once

namespace velkor {

/// How the files of a kind are found and which of them are used.
enum class ResourceRule {
    TheOnlyFile,               ///< the setup data's path, else the collection standard's one file; several are none
    FirstFile,                 ///< the setup data's path, else the first file of the collection standard
    FirstFileWithFinder,       ///< the same, but nothing at all in a host without setup-data finder
    AllFiles,                  ///< the setup data's paths and all files of the collection standard
    FirstFileWithoutSetupData, ///< the first file of the collection standard; setup data are not asked
    RuntimeView,               ///< all files of a folder of the runtime view
};

/// A kind of resource file, and how its files are found.
struct ResourceKind {
    const char* name;
    ResourceRule rule;
    /// Key of the setup data; empty where they are not asked.
    const char* resourceSet;
    const char* category;
    /// Sub-folder of the collection standard's folders, or the path below the runtime view.
    const char* subFolder;
    /// What a file's name contains (in the runtime view: ends with).
    const char* nameText;
};

inline constexpr ResourceKind versionMappingResource{
    "IFC version mapping", ResourceRule::FirstFile, "IFCDataExchangeResources", "IFCDataExchange", "ifc", ".xml"};
inline constexpr ResourceKind customMappingResource{
    "IFC custom mapping", ResourceRule::TheOnlyFile, "QORAECDataExchangeResources",
    "IFCCustomMapping",   "ifcCustomMapping",        "xml"};
inline constexpr ResourceKind plmAttributesMappingResource{"PLM attributes mapping",      ResourceRule::AllFiles,
                                                           "QORAECDataExchangeResources", "IFCPLMAttributesMapping",
                                                           "IfcPLMAttributesMapping",     "xml"};
inline constexpr ResourceKind aecMappingResource{"AEC correspondences",
                                                 ResourceRule::FirstFileWithFinder,
                                                 "QORAECDataExchangeResources",
                                                 "AECDataExchange",
                                                 "xcad",
                                                 ".xml"};
inline constexpr ResourceKind attributeListResource{
    "IFC attribute list", ResourceRule::FirstFileWithoutSetupData, "", "", "IFCAttributes", ".xml"};
inline constexpr ResourceKind propertySetResource{
    "Property set definitions", ResourceRule::RuntimeView, "", "", "resources/standard/IFCPsetQset", ".xml"};

inline constexpr ResourceKind resourceKinds[] = {versionMappingResource,       customMappingResource,
                                                 plmAttributesMappingResource, aecMappingResource,
                                                 attributeListResource,        propertySetResource};

} // namespace velkor
