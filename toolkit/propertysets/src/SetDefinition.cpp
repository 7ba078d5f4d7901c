#include "velkor/propertysets/SetDefinition.h"

#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor {

namespace {

struct KindWords {
    std::string_view word;
    std::string_view entity;
};

// By kind.
constexpr KindWords kindWords[] = {{"single", "IFCPROPERTYSINGLEVALUE"},   {"enumerated", "IFCPROPERTYENUMERATEDVALUE"},
                                   {"bounded", "IFCPROPERTYBOUNDEDVALUE"}, {"list", "IFCPROPERTYLISTVALUE"},
                                   {"table", "IFCPROPERTYTABLEVALUE"},     {"reference", "IFCPROPERTYREFERENCEVALUE"},
                                   {"complex", "IFCCOMPLEXPROPERTY"},      {"any", ""},
                                   {"length", "IFCQUANTITYLENGTH"},        {"area", "IFCQUANTITYAREA"},
                                   {"volume", "IFCQUANTITYVOLUME"},        {"count", "IFCQUANTITYCOUNT"},
                                   {"weight", "IFCQUANTITYWEIGHT"},        {"time", "IFCQUANTITYTIME"},
                                   {"number", "IFCQUANTITYNUMBER"}};

constexpr std::string_view templateWords[] = {"",
                                              "type-driven-only",
                                              "type-driven-override",
                                              "occurrence-driven",
                                              "performance-driven",
                                              "material-driven",
                                              "profile-driven"};

} // namespace

std::string_view entityOf(PropertyKind kind) noexcept {
    return kindWords[static_cast<std::size_t>(kind)].entity;
}

std::string_view wordOf(PropertyKind kind) noexcept {
    return kindWords[static_cast<std::size_t>(kind)].word;
}

std::string_view wordOf(TemplateType type) noexcept {
    return templateWords[static_cast<std::size_t>(type)];
}

std::string textOf(const ApplicableClass& applicable) {
    std::string text = applicable.entity;
    if (!applicable.predefinedType.empty()) text.append("/").append(applicable.predefinedType);
    return text;
}

std::string_view kindOf(const SetDefinition& definition) noexcept {
    return definition.isQuantitySet ? "quantity set" : "property set";
}

const PropertyDefinition* SetDefinition::property(std::string_view propertyName) const noexcept {
    const auto isNamed = [&](const PropertyDefinition& property) {
        return text::equalIgnoringCase(property.name, propertyName);
    };
    const auto found = std::ranges::find_if(properties, isNamed);
    return found == properties.end() ? nullptr : &*found;
}

} // namespace velkor
