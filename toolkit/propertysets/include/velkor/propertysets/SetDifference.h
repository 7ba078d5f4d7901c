/// Where the definitions of two releases differ.
///
///     const CatalogueDifference difference = compareCatalogues(library.of("IFC2X3"), library.of("IFC4"));
///     for (const SetDifference& set : difference.changed) show(set.name, set.addedProperties);
///
/// Order makes no difference, nor does letter case in names of classes and types. A class that another of the
/// definition's classes implies makes none: a set for IfcWall is one for IfcWallType. Nor does what only one of two
/// definitions states and nobody is held to: the name of a list of enumerators, a unit type, a template type that
/// allows both types and occurrences.
#pragma once

#include "velkor/propertysets/SetDefinition.h"
#include "velkor/ToolkitExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor {

class SetCatalogue;

/// Names are as the second definition writes them where both have it. What it points to are the two definitions.
struct SetDifference {
    /// Something that is another afterwards.
    struct Change {
        /// "template type", "kind", "value type", "defining type", "unit type", "enumeration", "usage name", "name".
        std::string_view what;
        /// Empty for what is not stated.
        std::string before;
        std::string after;

        bool operator==(const Change&) const = default;
    };
    /// A property that only one of the sets has.
    struct Property {
        /// Members of complex properties stand behind the name of the whole: "Voltage.Upper".
        std::string name;
        const PropertyDefinition* definition = nullptr;
    };
    /// A property that both sets have, each in another way.
    struct ChangedProperty {
        std::string name;
        std::vector<Change> changes;
        std::vector<std::string_view> addedEnumerators;
        std::vector<std::string_view> removedEnumerators;
    };

    std::string_view name;
    std::vector<Change> changes;
    std::vector<const ApplicableClass*> addedClasses;
    std::vector<const ApplicableClass*> removedClasses;
    std::vector<std::string_view> addedMethods;
    std::vector<std::string_view> removedMethods;
    /// In the order of their definitions.
    std::vector<Property> addedProperties;
    std::vector<Property> removedProperties;
    std::vector<ChangedProperty> changedProperties;

    /// True when nothing differs.
    bool empty() const noexcept {
        return changes.empty() && addedClasses.empty() && removedClasses.empty() && addedMethods.empty() &&
               removedMethods.empty() && addedProperties.empty() && removedProperties.empty() &&
               changedProperties.empty();
    }
};

/// Of two definitions, which must outlive it; in proportion to both.
VELKOR_TOOLKIT_API SetDifference compareSets(const SetDefinition& before, const SetDefinition& after);

/// Sets by name, sorted; they live as long as the catalogues. What cannot be read is left out.
struct CatalogueDifference {
    std::vector<const SetDefinition*> added;
    std::vector<const SetDefinition*> removed;
    std::vector<SetDifference> changed;
    /// Sets that both have and that say the same.
    std::size_t unchanged = 0;
};

/// What differs between the sets of two catalogues.
VELKOR_TOOLKIT_API CatalogueDifference compareCatalogues(const SetCatalogue& before, const SetCatalogue& after);

} // namespace velkor
