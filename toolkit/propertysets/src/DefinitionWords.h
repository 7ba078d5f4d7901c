/// The elements of definition files that hold facts, and the words in them that mean something.
#pragma once

#include "velkor/propertysets/SetDefinition.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velkor::definitions {

enum class DefinitionElement : std::uint8_t {
    Other, ///< holds no fact
    PropertySet,
    QuantitySet,
    Name,
    Classes,
    ClassName,
    TypeValue,
    Method,
    Properties,
    Quantities,
    Property,
    Quantity,
    PropertyType,
    QuantityType,
    Single,
    Simple,
    Enumerated,
    Bounded,
    List,
    Table,
    Reference,
    Complex,
    DataType,
    UnitType,
    ListValue,
    DefiningValue,
    DefinedValue,
    Enumeration,
    Enumerator,
    Constants,
    Constant,
};

DefinitionElement definitionElement(std::string_view name) noexcept;
/// Whether an element means something where it stands.
bool standsIn(DefinitionElement element, DefinitionElement parent) noexcept;
/// True for those whose text counts.
bool hasText(DefinitionElement element) noexcept;

/// The kind of a property by the element within its type.
std::optional<PropertyKind> kindOf(DefinitionElement element) noexcept;
/// "TypePropertySingleValue"; empty for kinds of quantities and for Any.
std::string_view elementOf(PropertyKind kind) noexcept;

/// By a text such as "Q_LENGTH".
std::optional<PropertyKind> quantityKind(std::string_view word) noexcept;
std::string quantityWord(PropertyKind kind);

/// By a text such as "PSET_TYPEDRIVENOVERRIDE".
std::optional<TemplateType> templateType(std::string_view word) noexcept;
std::string templateWord(TemplateType type, bool isQuantitySet);

} // namespace velkor::definitions
