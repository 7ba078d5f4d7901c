/// What the definition of a property set or quantity set says: facts alone, as a release publishes them or a user
/// writes them for sets of one's own.
#pragma once

#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velkor {

/// How the names of the sets that releases define begin.
inline constexpr std::string_view propertySetPrefix = "Pset_", quantitySetPrefix = "Qto_";
/// True for a name that begins as those of standard sets do.
constexpr bool hasStandardPrefix(std::string_view setName) noexcept {
    return setName.starts_with(propertySetPrefix) || setName.starts_with(quantitySetPrefix);
}

/// What kind of property or quantity a definition wants.
enum class PropertyKind : std::uint8_t {
    Single,     ///< IFCPROPERTYSINGLEVALUE
    Enumerated, ///< IFCPROPERTYENUMERATEDVALUE
    Bounded,    ///< IFCPROPERTYBOUNDEDVALUE
    List,       ///< IFCPROPERTYLISTVALUE
    Table,      ///< IFCPROPERTYTABLEVALUE
    Reference,  ///< IFCPROPERTYREFERENCEVALUE
    Complex,    ///< IFCCOMPLEXPROPERTY
    Any,        ///< whatever a model has: the definition does not say
    Length,     ///< IFCQUANTITYLENGTH, and so on for the others
    Area,
    Volume,
    Count,
    Weight,
    Time,
    Number,
};

/// True for the kinds of quantities.
constexpr bool isQuantity(PropertyKind kind) noexcept {
    return kind >= PropertyKind::Length;
}

/// In file terms: "IFCPROPERTYSINGLEVALUE", "IFCQUANTITYLENGTH"; empty for Any.
VELKOR_TOOLKIT_API std::string_view entityOf(PropertyKind kind) noexcept;
/// As people read it and tables write it: "single", "enumerated", "length".
VELKOR_TOOLKIT_API std::string_view wordOf(PropertyKind kind) noexcept;

/// What a set is attached to, as IfcPropertySetTemplateTypeEnum says.
enum class TemplateType : std::uint8_t {
    Unspecified,
    TypeDrivenOnly,     ///< types
    TypeDrivenOverride, ///< types, and occurrences in place of their types
    OccurrenceDriven,   ///< occurrences
    PerformanceDriven,  ///< performance histories of what the classes name
    MaterialDriven,     ///< materials
    ProfileDriven,      ///< profiles
};

/// "type-driven-override"; empty for Unspecified.
VELKOR_TOOLKIT_API std::string_view wordOf(TemplateType type) noexcept;

/// A property or quantity of a set.
struct PropertyDefinition {
    std::string name = {};
    PropertyKind kind = PropertyKind::Single;
    /// The type of the values, "IfcLabel"; of a table that of its defined values, of a reference the entity. Empty when
    /// any will do: a definition may leave it open.
    std::string valueType = {};
    /// Of a table alone: the type of its defining values.
    std::string definingType = {};
    /// "LENGTHUNIT", where the definition says so; of a table that of its defined values.
    std::string unitType = {};
    /// Of enumerated properties: the name of the list, which may be empty, and its members in the definition's order.
    std::string enumeration = {};
    std::vector<std::string> enumerators = {};
    /// Of complex properties: its UsageName, which may be empty, and what it is made of.
    std::string usageName = {};
    std::vector<PropertyDefinition> members = {};
    /// Of a table alone: the unit type of its defining values.
    std::string definingUnitType = {};

    bool operator==(const PropertyDefinition&) const = default;
};

/// What a set applies to.
struct ApplicableClass {
    /// "IfcWall", as the definition writes it.
    std::string entity;
    /// "ELECTRICACTUATOR", or the object type of what has none of the predefined ones; empty when all of the class are
    /// meant.
    std::string predefinedType;

    bool operator==(const ApplicableClass&) const = default;
};

/// "IfcWall", "IfcActuator/ELECTRICACTUATOR".
VELKOR_TOOLKIT_API std::string textOf(const ApplicableClass& applicable);

struct VELKOR_TOOLKIT_API SetDefinition {
    std::string name;
    bool isQuantitySet = false;
    TemplateType templateType = TemplateType::Unspecified;
    /// In the definition's order.
    std::vector<ApplicableClass> classes;
    /// Of quantity sets: the methods of measurement that it allows. None when any will do.
    std::vector<std::string> methods;
    /// In the definition's order.
    std::vector<PropertyDefinition> properties;

    /// By name, letter case ignored as the services ignore it; null when there is none.
    const PropertyDefinition* property(std::string_view propertyName) const noexcept;

    bool operator==(const SetDefinition&) const = default;
};

/// "property set" or "quantity set".
VELKOR_TOOLKIT_API std::string_view kindOf(const SetDefinition& definition) noexcept;

} // namespace velkor
