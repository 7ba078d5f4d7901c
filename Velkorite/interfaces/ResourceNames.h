/// What the elements and attributes of the resource files are called, by the kind of file, and the few words in them
/// that mean something. Letter case counts unless told otherwise. The services that read the files and whoever writes
/// or judges them use these names.
#pragma once

#include <string_view>

namespace velkor {

/// The first child node of an element is never examined where mappings and correspondences are read: in an indented
/// file it is the white space in front of the first element.
inline constexpr unsigned int firstExaminedChild = 1;

namespace names {

inline constexpr const char* fromEntity = "fromEntity";
inline constexpr const char* fromProperty = "fromProperty";
inline constexpr const char* toEntity = "toEntity";
inline constexpr const char* toProperty = "toProperty";

/// Version mappings: MappingReleases.h says what releases are called. Any root will do.
namespace version {
using names::fromEntity;
using names::fromProperty;
using names::toEntity;
using names::toProperty;
inline constexpr const char* block = "Version";
inline constexpr const char* from = "from";
inline constexpr const char* to = "to";
inline constexpr const char* mapping = "Mapping";
inline constexpr const char* deprecation = "Deprecation";
inline constexpr const char* introduction = "Introduction";
inline constexpr const char* entity = "entity";
inline constexpr const char* property = "property";
inline constexpr const char* propertyValue = "propertyValue";
} // namespace version

/// Custom mappings.
namespace custom {
using names::fromEntity;
using names::fromProperty;
using names::toEntity;
using names::toProperty;
inline constexpr const char* root = "IfcMapping";
inline constexpr const char* standard = "StandardMapping";
inline constexpr const char* mapping = "CustomMapping";
/// Names of types, with a separator between them.
inline constexpr const char* scope = "scope";
inline constexpr const char* typeSeparator = ";";
/// What follows the name of a type in a scope that is asked for.
inline constexpr const char* importEnding = "_Import";
inline constexpr const char* exportEnding = "_Export";
} // namespace custom

/// Mappings of PLM attributes.
namespace plm {
inline constexpr const char* root = "IfcPLMMappingAttr";
inline constexpr const char* group = "PLMAttrIncluded";
inline constexpr const char* id = "id";
inline constexpr const char* mapping = "IfcPLMMapping";
inline constexpr const char* type = "Name";
inline constexpr const char* line = "fromAttributes";
inline constexpr const char* plmAttribute = "plmProp";
inline constexpr const char* propertySet = "propSetName";
inline constexpr const char* property = "ifcProp";
inline constexpr const char* direction = "propExpose";
inline constexpr const char* include = "PLMAttrInclude";
inline constexpr const char* includedId = "IncludedId";

inline constexpr const char* both = "Both";
inline constexpr const char* exportOnly = "Export_Only";
/// Lines for the other direction, which nobody reads.
inline constexpr const char* importOnly = "Import_Only";
/// Whether a line counts, by its direction.
constexpr bool isExported(std::string_view written) {
    return written.empty() || written == both || written == exportOnly;
}
} // namespace plm

/// Correspondences of neutral identifiers, IFC types and PLM types. Any root will do.
namespace aec {
inline constexpr const char* neutral = "NeutralID";
inline constexpr const char* ifc = "IFC";
inline constexpr const char* plm = "NORVEL";
inline constexpr const char* name = "Name";
inline constexpr const char* priority = "Priority";
inline constexpr const char* condition = "Condition";
inline constexpr const char* valuate = "Valuate";
inline constexpr const char* attribute = "Attribute";
inline constexpr const char* value = "Value";
} // namespace aec

/// Attribute lists. Any root will do; IFCAttributeList says which levels there are.
namespace attributelist {
inline constexpr const char* level = "Level";
inline constexpr const char* id = "ID";
inline constexpr const char* entry = "AttributeID";
inline constexpr const char* name = "Name";
inline constexpr const char* entity = "Entity";
inline constexpr const char* propertySet = "PropertySet";
inline constexpr const char* value = "Value";
} // namespace attributelist

/// Definitions of property sets and quantity sets. The services look at the names and the classes alone.
namespace definition {
inline constexpr const char* propertySet = "PropertySetDef";
inline constexpr const char* quantitySet = "QtoSetDef";
/// The first one is the set's own, those behind it are its properties'.
inline constexpr const char* name = "Name";
inline constexpr const char* className = "ClassName";

/// Of a set.
inline constexpr const char* templateType = "templatetype";
inline constexpr const char* release = "IfcVersion";
inline constexpr const char* releaseName = "version";
inline constexpr const char* classes = "ApplicableClasses";
inline constexpr const char* typeValue = "ApplicableTypeValue";
inline constexpr const char* method = "MethodOfMeasurement";
inline constexpr const char* properties = "PropertyDefs";
inline constexpr const char* quantities = "QtoDefs";

/// Of a property or a quantity.
inline constexpr const char* property = "PropertyDef";
inline constexpr const char* quantity = "QtoDef";
inline constexpr const char* propertyType = "PropertyType";
inline constexpr const char* quantityType = "QtoType";

/// What is within a property type.
inline constexpr const char* single = "TypePropertySingleValue";
inline constexpr const char* simple = "TypeSimpleProperty";
inline constexpr const char* enumerated = "TypePropertyEnumeratedValue";
inline constexpr const char* bounded = "TypePropertyBoundedValue";
inline constexpr const char* list = "TypePropertyListValue";
inline constexpr const char* table = "TypePropertyTableValue";
inline constexpr const char* reference = "TypePropertyReferenceValue";
inline constexpr const char* complex = "TypeComplexProperty";
inline constexpr const char* dataType = "DataType";
inline constexpr const char* unitType = "UnitType";
inline constexpr const char* type = "type";
inline constexpr const char* referenceType = "reftype";
inline constexpr const char* listValue = "ListValue";
inline constexpr const char* definingValue = "DefiningValue";
inline constexpr const char* definedValue = "DefinedValue";
inline constexpr const char* enumeration = "EnumList";
inline constexpr const char* enumerator = "EnumItem";
inline constexpr const char* constants = "ConstantList";
inline constexpr const char* constant = "ConstantDef";
/// Of an enumeration, and the usage of a complex property.
inline constexpr const char* listName = "name";

/// What comes before the words of IfcPropertySetTemplateTypeEnum and of quantities.
inline constexpr const char* propertySetPrefix = "PSET_";
inline constexpr const char* quantitySetPrefix = "QTO_";
inline constexpr const char* quantityPrefix = "Q_";

/// The class that a text names: a predefined type may follow it behind a "/".
constexpr std::string_view classNamed(std::string_view text) {
    const std::size_t slash = text.find('/');
    return slash == 0 ? text : text.substr(0, slash);
}
} // namespace definition

} // namespace names

} // namespace velkor
