#include "output/SetCatalogueText.h"

#include "output/Csv.h"
#include "terminal/DisplayText.h"
#include "terminal/Page.h"
#include "terminal/TextTable.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

namespace velkor::host {

namespace {

std::string classesText(const SetDefinition& set, std::string_view separator = ", ") {
    return text::joined(set.classes, separator, [](const ApplicableClass& one) { return textOf(one); });
}

Json stated(std::string_view text) {
    return textOrNull(std::string(text));
}

Json classesJson(const SetDefinition& set) {
    Json result = Json::array();
    for (const ApplicableClass& one : set.classes)
        result.push_back({{"entity", one.entity}, {"predefined_type", textOrNull(one.predefinedType)}});
    return result;
}

Json propertiesJson(const std::vector<PropertyDefinition>& properties) {
    Json result = Json::array();
    for (const PropertyDefinition& property : properties) {
        result.push_back({{"name", property.name},
                          {"kind", wordOf(property.kind)},
                          {"value_type", textOrNull(property.valueType)},
                          {"defining_type", textOrNull(property.definingType)},
                          {"unit_type", textOrNull(property.unitType)},
                          {"defining_unit_type", textOrNull(property.definingUnitType)},
                          {"enumeration", textOrNull(property.enumeration)},
                          {"enumerators", property.enumerators},
                          {"usage_name", textOrNull(property.usageName)},
                          {"members", propertiesJson(property.members)}});
    }
    return result;
}

/// What a column of types shows.
std::string typeText(const PropertyDefinition& property) {
    switch (property.kind) {
    case PropertyKind::Enumerated:
        return property.enumeration;
    case PropertyKind::Complex:
        return property.usageName;
    case PropertyKind::Table:
        if (property.definingType.empty()) break;
        return property.definingType + " -> " + (property.valueType.empty() ? "any" : property.valueType);
    default:
        break;
    }
    return property.valueType.empty() && !isQuantity(property.kind) ? "any" : property.valueType;
}

bool hasUnits(const std::vector<PropertyDefinition>& properties) {
    return std::ranges::any_of(
        properties, [](const auto& property) { return !property.unitType.empty() || hasUnits(property.members); });
}

class PropertyTable {
public:
    explicit PropertyTable(const SetDefinition& set) : _hasUnits(hasUnits(set.properties)), _table(columns(set)) {
        add(set.properties, {});
    }

    const TextTable& table() const { return _table; }

private:
    std::vector<TextTable::Column> columns(const SetDefinition& set) const {
        std::vector<TextTable::Column> result{{set.isQuantitySet ? "quantity" : "property"}, {"kind"}, {"type"}};
        if (_hasUnits) result.push_back({"unit"});
        return result;
    }
    void add(const std::vector<PropertyDefinition>& properties, const std::string& indent) {
        for (const PropertyDefinition& property : properties) {
            const std::string name = indent + property.name, type = typeText(property);
            std::vector<std::string_view> cells{name, wordOf(property.kind), type};
            if (_hasUnits) cells.push_back(property.unitType);
            _table.add(cells);
            add(property.members, indent + "  ");
        }
    }

    bool _hasUnits;
    TextTable _table;
};

void writeEnumerators(TextSink out, const std::vector<PropertyDefinition>& properties, const std::string& whole = {}) {
    constexpr std::size_t indent = 4;
    for (const PropertyDefinition& property : properties) {
        const std::string name = whole + property.name;
        if (!property.enumerators.empty()) {
            out << '\n' << "values of " << name << '\n';
            const std::string values = text::joined(property.enumerators);
            for (const std::string& line : wrapped(values, Page::widthOn(out) - indent, std::string_view::npos))
                out << "    " << line << '\n';
        }
        writeEnumerators(out, property.members, name + '.');
    }
}

} // namespace

void writeSets(TextSink out, const SetList& sets) {
    TextTable table({{"set"}, {"template"}, {"properties", TextTable::Right}, {"applies to"}});
    for (const SetDefinition* set : sets)
        table.add({set->name, wordOf(set->templateType), std::to_string(set->properties.size()), classesText(*set)});
    table.write(out);
}

Json setsJson(const SetCatalogue& catalogue, const SetList& sets) {
    Json result = Json::array();
    for (const SetDefinition* set : sets)
        result.push_back({{"name", set->name},
                          {"kind", kindOf(*set)},
                          {"template_type", stated(wordOf(set->templateType))},
                          {"properties", set->properties.size()},
                          {"applies_to", classesJson(*set)},
                          {"file", catalogue.path(set->name)}});
    return result;
}

void writeSetsCsv(TextSink out, const SetCatalogue& catalogue, const SetList& sets) {
    out << "name,kind,template_type,properties,applies_to,file\r\n";
    for (const SetDefinition* set : sets) {
        out << csvField(set->name) << ',' << kindOf(*set) << ',' << wordOf(set->templateType) << ','
            << set->properties.size() << ',' << csvField(classesText(*set, ";")) << ','
            << csvField(catalogue.path(set->name)) << "\r\n";
    }
}

void writeSet(TextSink out, const SetCatalogue& catalogue, const SetDefinition& set,
              const std::vector<std::string_view>& releases) {
    out << set.name << " of " << catalogue.release() << ", " << kindOf(set);
    if (set.templateType != TemplateType::Unspecified) out << ", " << wordOf(set.templateType);
    out << '\n';
    const auto paragraph = [&](const std::string& text) {
        for (const std::string& line : wrapped(text, Page::widthOn(out), std::string_view::npos)) out << line << '\n';
    };
    paragraph("applies to: " + (set.classes.empty() ? "nothing that is named" : classesText(set)));
    if (!set.methods.empty()) paragraph("methods of measurement: " + text::joined(set.methods));
    paragraph("defined by: " + text::joined(releases));
    out << "file: " << catalogue.path(set.name) << "\n\n";
    if (set.properties.empty()) {
        out << "no properties\n";
        return;
    }
    PropertyTable(set).table().write(out);
    writeEnumerators(out, set.properties);
}

Json setJson(const SetCatalogue& catalogue, const SetDefinition& set, const std::vector<std::string_view>& releases) {
    return {{"name", set.name},
            {"kind", kindOf(set)},
            {"template_type", stated(wordOf(set.templateType))},
            {"applies_to", classesJson(set)},
            {"methods", set.methods},
            {"properties", propertiesJson(set.properties)},
            {"releases", releases},
            {"file", catalogue.path(set.name)}};
}

} // namespace velkor::host
