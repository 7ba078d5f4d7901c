#include "DefinitionWords.h"

#include "ResourceNames.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velkor::definitions {

namespace {

namespace words = velkor::names::definition;
using enum DefinitionElement;

struct NamedElement {
    std::string_view name;
    DefinitionElement element;
};

constexpr std::array elements{NamedElement{words::propertySet, PropertySet},
                              NamedElement{words::quantitySet, QuantitySet},
                              NamedElement{words::name, Name},
                              NamedElement{words::classes, Classes},
                              NamedElement{words::className, ClassName},
                              NamedElement{words::typeValue, TypeValue},
                              NamedElement{words::method, Method},
                              NamedElement{words::properties, Properties},
                              NamedElement{words::quantities, Quantities},
                              NamedElement{words::property, Property},
                              NamedElement{words::quantity, Quantity},
                              NamedElement{words::propertyType, PropertyType},
                              NamedElement{words::quantityType, QuantityType},
                              NamedElement{words::single, Single},
                              NamedElement{words::simple, Simple},
                              NamedElement{words::enumerated, Enumerated},
                              NamedElement{words::bounded, Bounded},
                              NamedElement{words::list, List},
                              NamedElement{words::table, Table},
                              NamedElement{words::reference, Reference},
                              NamedElement{words::complex, Complex},
                              NamedElement{words::dataType, DataType},
                              NamedElement{words::unitType, UnitType},
                              NamedElement{words::listValue, ListValue},
                              NamedElement{words::definingValue, DefiningValue},
                              NamedElement{words::definedValue, DefinedValue},
                              NamedElement{words::enumeration, Enumeration},
                              NamedElement{words::enumerator, Enumerator},
                              NamedElement{words::constants, Constants},
                              NamedElement{words::constant, Constant}};

// Positions in the list above, counted from 1, by the names' hashes: the first that is free from there on.
constexpr std::size_t hashed(std::string_view name) noexcept {
    return name.empty() ? 0
                        : name.size() * 5 + static_cast<unsigned char>(name.front()) +
                              3 * static_cast<unsigned char>(name[name.size() / 2]);
}
constexpr auto places = [] {
    std::array<std::uint8_t, 128> result{};
    for (std::size_t i = 0; i < elements.size(); ++i) {
        std::size_t place = hashed(elements[i].name) % result.size();
        while (result[place] != 0) place = (place + 1) % result.size();
        result[place] = static_cast<std::uint8_t>(i + 1);
    }
    return result;
}();

struct ElementOfKind {
    PropertyKind kind;
    DefinitionElement element;
    std::string_view name;
};
constexpr ElementOfKind kinds[] = {
    {PropertyKind::Single, Single, words::single},    {PropertyKind::Enumerated, Enumerated, words::enumerated},
    {PropertyKind::Bounded, Bounded, words::bounded}, {PropertyKind::List, List, words::list},
    {PropertyKind::Table, Table, words::table},       {PropertyKind::Reference, Reference, words::reference},
    {PropertyKind::Complex, Complex, words::complex}, {PropertyKind::Single, Simple, {}}};

constexpr std::pair<PropertyKind, std::string_view> quantityKinds[] = {
    {PropertyKind::Length, "LENGTH"}, {PropertyKind::Area, "AREA"},     {PropertyKind::Volume, "VOLUME"},
    {PropertyKind::Count, "COUNT"},   {PropertyKind::Weight, "WEIGHT"}, {PropertyKind::Time, "TIME"},
    {PropertyKind::Number, "NUMBER"}};

constexpr std::pair<TemplateType, std::string_view> templateTypes[] = {
    {TemplateType::TypeDrivenOnly, "TYPEDRIVENONLY"},     {TemplateType::TypeDrivenOverride, "TYPEDRIVENOVERRIDE"},
    {TemplateType::OccurrenceDriven, "OCCURRENCEDRIVEN"}, {TemplateType::PerformanceDriven, "PERFORMANCEDRIVEN"},
    {TemplateType::MaterialDriven, "MATERIALDRIVEN"},     {TemplateType::ProfileDriven, "PROFILEDRIVEN"}};

// What a table has for a word behind a prefix.
template <class Key, std::size_t size>
std::optional<Key> keyOf(const std::pair<Key, std::string_view> (&table)[size], std::string_view word,
                         std::string_view prefix) noexcept {
    if (!word.starts_with(prefix)) return {};
    word.remove_prefix(prefix.size());
    const auto isWord = [&](const auto& entry) { return text::equalIgnoringCase(entry.second, word); };
    const auto found = std::ranges::find_if(table, isWord);
    return found == std::end(table) ? std::nullopt : std::optional(found->first);
}

template <class Key, std::size_t size>
std::string wordFor(const std::pair<Key, std::string_view> (&table)[size], Key key, std::string prefix) {
    const auto found = std::ranges::find(table, key, &std::pair<Key, std::string_view>::first);
    return found == std::end(table) ? std::string() : prefix.append(found->second);
}

constexpr std::uint64_t bit(DefinitionElement element) noexcept {
    return std::uint64_t{1} << static_cast<unsigned int>(element);
}

// Where an element means something, a bit each.
constexpr std::uint64_t parentsOf(DefinitionElement element) noexcept {
    constexpr std::uint64_t sets = bit(PropertySet) | bit(QuantitySet);
    switch (element) {
    case Name:
        return sets | bit(Property) | bit(Quantity) | bit(Constant);
    case Classes:
    case TypeValue:
    case Method:
    case Properties:
    case Quantities:
        return sets;
    case ClassName:
        return bit(Classes);
    case Property:
    case Quantity:
        return bit(Properties) | bit(Quantities) | bit(Complex);
    case PropertyType:
        return bit(Property);
    case QuantityType:
        return bit(Quantity);
    case DataType:
    case UnitType:
        return bit(Single) | bit(Simple) | bit(Bounded) | bit(List) | bit(ListValue) | bit(DefiningValue) |
               bit(DefinedValue) | bit(Reference);
    case ListValue:
        return bit(List);
    case DefiningValue:
    case DefinedValue:
        return bit(Table);
    case Enumeration:
    case Constants:
        return bit(Enumerated);
    case Enumerator:
        return bit(Enumeration);
    case Constant:
        return bit(Constants);
    case Other:
    case PropertySet:
    case QuantitySet:
        return 0;
    default:
        return bit(PropertyType);
    }
}

} // namespace

DefinitionElement definitionElement(std::string_view name) noexcept {
    for (std::size_t place = hashed(name) % places.size(); places[place] != 0; place = (place + 1) % places.size()) {
        const NamedElement& candidate = elements[places[place] - 1U];
        if (candidate.name == name) return candidate.element;
    }
    return Other;
}

bool standsIn(DefinitionElement element, DefinitionElement parent) noexcept {
    return (parentsOf(element) & bit(parent)) != 0;
}

bool hasText(DefinitionElement element) noexcept {
    constexpr std::uint64_t texts =
        bit(Name) | bit(ClassName) | bit(TypeValue) | bit(Method) | bit(QuantityType) | bit(Enumerator);
    return (texts & bit(element)) != 0;
}

std::optional<PropertyKind> kindOf(DefinitionElement element) noexcept {
    const auto found = std::ranges::find(kinds, element, &ElementOfKind::element);
    return found == std::end(kinds) ? std::nullopt : std::optional(found->kind);
}

std::string_view elementOf(PropertyKind kind) noexcept {
    const auto found = std::ranges::find(kinds, kind, &ElementOfKind::kind);
    return found == std::end(kinds) ? std::string_view() : found->name;
}

std::optional<PropertyKind> quantityKind(std::string_view word) noexcept {
    return keyOf(quantityKinds, word, words::quantityPrefix);
}

std::string quantityWord(PropertyKind kind) {
    return wordFor(quantityKinds, kind, words::quantityPrefix);
}

std::optional<TemplateType> templateType(std::string_view word) noexcept {
    const auto type = keyOf(templateTypes, word, words::propertySetPrefix);
    return type ? type : keyOf(templateTypes, word, words::quantitySetPrefix);
}

std::string templateWord(TemplateType type, bool isQuantitySet) {
    return wordFor(templateTypes, type, isQuantitySet ? words::quantitySetPrefix : words::propertySetPrefix);
}

} // namespace velkor::definitions
