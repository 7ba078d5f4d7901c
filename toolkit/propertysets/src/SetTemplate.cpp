#include "velkor/propertysets/SetTemplate.h"

#include "TemplateRecord.h"
#include "TypeNames.h"
#include "velkor/identifiers/GuidText.h"
#include "velkor/identifiers/NamedGuid.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_set>

namespace velkor {

namespace {

using sdai::SchemaDefinition;

/// The first release that has templates; the others are older.
constexpr std::string_view firstWithTemplates = "IFC4";
constexpr std::string_view templateEntity = "IFCPROPERTYSETTEMPLATE";
/// Of the values of enumerations.
constexpr std::string_view enumeratorType = "IfcLabel";
/// Of a label or an identifier of the schema, in characters.
constexpr std::size_t longestLabel = 255;
/// Of a name in a note, in bytes.
constexpr std::size_t longestQuoted = 60;

bool hasRoom(std::string_view label) {
    return text::characterCount(label) <= longestLabel;
}

// Drawn at random, once.
constexpr guid::Uuid identifierSpace{0xf2, 0xb7, 0x88, 0x89, 0x6d, 0x6f, 0x44, 0xc4,
                                     0xbb, 0x7e, 0x04, 0xc5, 0xc1, 0x01, 0x3a, 0x29};

/// In file terms; empty for what is no simple template.
std::string_view templateTypeOf(PropertyKind kind) {
    switch (kind) {
    case PropertyKind::Single:
        return "P_SINGLEVALUE";
    case PropertyKind::Enumerated:
        return "P_ENUMERATEDVALUE";
    case PropertyKind::Bounded:
        return "P_BOUNDEDVALUE";
    case PropertyKind::List:
        return "P_LISTVALUE";
    case PropertyKind::Table:
        return "P_TABLEVALUE";
    case PropertyKind::Reference:
        return "P_REFERENCEVALUE";
    case PropertyKind::Length:
        return "Q_LENGTH";
    case PropertyKind::Area:
        return "Q_AREA";
    case PropertyKind::Volume:
        return "Q_VOLUME";
    case PropertyKind::Count:
        return "Q_COUNT";
    case PropertyKind::Weight:
        return "Q_WEIGHT";
    case PropertyKind::Time:
        return "Q_TIME";
    case PropertyKind::Number:
        return "Q_NUMBER";
    case PropertyKind::Complex:
    case PropertyKind::Any:
        break;
    }
    return {};
}

std::string_view templateTypeOf(const SetDefinition& set) {
    switch (set.templateType) {
    case TemplateType::TypeDrivenOnly:
        return set.isQuantitySet ? "QTO_TYPEDRIVENONLY" : "PSET_TYPEDRIVENONLY";
    case TemplateType::TypeDrivenOverride:
        return set.isQuantitySet ? "QTO_TYPEDRIVENOVERRIDE" : "PSET_TYPEDRIVENOVERRIDE";
    case TemplateType::OccurrenceDriven:
        return set.isQuantitySet ? "QTO_OCCURRENCEDRIVEN" : "PSET_OCCURRENCEDRIVEN";
    case TemplateType::PerformanceDriven:
        return "PSET_PERFORMANCEDRIVEN";
    case TemplateType::MaterialDriven:
        return "PSET_MATERIALDRIVEN";
    case TemplateType::ProfileDriven:
        return "PSET_PROFILEDRIVEN";
    case TemplateType::Unspecified:
        break;
    }
    return {};
}

bool hasEnumerator(const SchemaDefinition& schema, std::string_view type, std::string_view enumerator) {
    const sdai::DefinedType* defined = schema.definedType(type);
    const auto* enumeration = defined == nullptr ? nullptr : defined->underlying().asEnumeration();
    return enumeration != nullptr && enumeration->position(enumerator) >= 0;
}

/// Whether there is a property to declare and room for the set's name.
bool hasTemplate(const SetDefinition& set) {
    return hasRoom(set.name) &&
           std::ranges::any_of(set.properties, [](const auto& property) { return hasRoom(property.name); });
}

bool isQuantities(const PropertyDefinition& property) {
    return isQuantity(property.kind) ||
           (property.kind == PropertyKind::Complex && std::ranges::any_of(property.members, isQuantities));
}

class TemplateWriter {
public:
    TemplateWriter(const SchemaDefinition& schema, std::string_view release) : _schema(schema), _release(release) {}

    void addProject(const std::vector<const SetDefinition*>& sets) {
        const std::string names =
            text::joined(sets, "\n", [](const SetDefinition* set) -> const std::string& { return set->name; });
        _projectNames = "project\n" + names;
        _project = add(TemplateRecord("IFCPROJECT")
                           .text(identifier(_projectNames))
                           .unset()
                           .text(sets.size() == 1 ? sets.front()->name : "Templates")
                           .unset(6));
    }

    void addSet(const SetDefinition& set) {
        _set = &set;
        const auto properties = addProperties(set.properties, set.name);
        if (!set.methods.empty()) note("methods of measurement are left out: " + text::joined(set.methods));
        TemplateRecord record(templateEntity);
        record.text(identifier(set.name)).unset().text(set.name).unset();
        putTemplateType(record, "IFCPROPERTYSETTEMPLATETYPEENUM", templateTypeOf(set));
        _templates.push_back(add(record.text(applicableEntity(set)).references(properties)));
    }

    std::string finished(const SetTemplateHeader& header) {
        add(TemplateRecord("IFCRELDECLARES")
                .text(identifier("declares\n" + _projectNames))
                .unset(3)
                .reference(_project)
                .references(_templates));
        std::string text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION(('ViewDefinition [notYetAssigned]'),'2;1');\n";
        const auto literal = [](std::string_view value) {
            std::string result;
            sdai::appendString(result, value);
            return result;
        };
        text.append("FILE_NAME(").append(literal(header.name)).append(1, ',').append(literal(header.timeStamp));
        text.append(",(''),(''),'Velkor " VELKOR_VERSION "','Velkor " VELKOR_VERSION "','');\nFILE_SCHEMA((");
        text.append(literal(_schema.name())).append("));\nENDSEC;\nDATA;\n").append(_instances);
        return text.append("ENDSEC;\nEND-ISO-10303-21;\n");
    }

    std::vector<std::string> takeNotes() { return std::move(_notes); }

private:
    std::uint64_t add(const TemplateRecord& record) {
        _instances.append(1, '#').append(std::to_string(++_lastId)).append(1, '=');
        _instances.append(record.end()).append(";\n");
        return _lastId;
    }
    std::string identifier(const std::string& name) const {
        return guid::compressed(guid::named(identifierSpace, _release + '\n' + name)).value();
    }
    void note(std::string_view what) { _notes.emplace_back(_set->name + ": ").append(what); }

    std::vector<std::uint64_t> addProperties(const std::vector<PropertyDefinition>& properties,
                                             const std::string& whole) {
        std::vector<std::uint64_t> ids;
        std::unordered_set<std::string_view> names;
        for (const PropertyDefinition& property : properties) {
            const std::string path = whole + '\n' + property.name;
            const std::string quoted = text::quotedBeginning(property.name, longestQuoted);
            // A set of the schema has a name once.
            if (!hasRoom(property.name))
                note("the property " + quoted + " is left out: its name is longer than the schema has room for");
            else if (!names.insert(property.name).second)
                note("the second property " + quoted + " is left out");
            else
                ids.push_back(property.kind == PropertyKind::Complex ? addComplex(property, path)
                                                                     : addSimple(property, path));
        }
        return ids;
    }

    std::uint64_t addComplex(const PropertyDefinition& property, const std::string& path) {
        const auto members = addProperties(property.members, path);
        return add(TemplateRecord("IFCCOMPLEXPROPERTYTEMPLATE")
                       .text(identifier(path))
                       .unset()
                       .text(property.name)
                       .unset()
                       .text(property.usageName)
                       .enumerator(isQuantities(property) ? "Q_COMPLEX" : "P_COMPLEX")
                       .references(members));
    }

    std::uint64_t addSimple(const PropertyDefinition& property, const std::string& path) {
        const bool isTable = property.kind == PropertyKind::Table;
        const std::uint64_t enumeration = addEnumeration(property);
        TemplateRecord record("IFCSIMPLEPROPERTYTEMPLATE");
        record.text(identifier(path)).unset().text(property.name).unset();
        putTemplateType(record, "IFCSIMPLEPROPERTYTEMPLATETYPEENUM", templateTypeOf(property.kind));
        record.text(isTable            ? std::string_view(property.definingType)
                    : enumeration == 0 ? std::string_view(property.valueType)
                                       : enumeratorType);
        record.text(isTable ? property.valueType : std::string());
        return add(record.reference(enumeration).unset(4));
    }

    void putTemplateType(TemplateRecord& record, std::string_view type, std::string_view enumerator) {
        if (!enumerator.empty() && hasEnumerator(_schema, type, enumerator)) {
            record.enumerator(enumerator);
            return;
        }
        record.unset();
        if (!enumerator.empty())
            note("the template type is left out: " + std::string(_schema.name()) + " has no " +
                 std::string(enumerator));
    }

    /// 0 when the definition lists none.
    std::uint64_t addEnumeration(const PropertyDefinition& property) {
        if (property.kind != PropertyKind::Enumerated || property.enumerators.empty()) return 0;
        std::vector<std::string_view> values;
        std::unordered_set<std::string_view> known;
        for (const std::string& value : property.enumerators)
            if (hasRoom(value) && known.insert(value).second) values.push_back(value);
        std::string name = property.enumeration.empty() ? property.name : property.enumeration;
        // Enumerations have names of their own; those of two definitions may differ under one name.
        for (int count = 1; _enumerations.contains(name); ++count) {
            const Enumeration& other = _enumerations.at(name);
            if (other.values == values) return other.id;
            name = _set->name + '.' + property.name;
            if (count > 1) name.append(1, ' ').append(std::to_string(count));
        }
        const std::uint64_t id = add(TemplateRecord("IFCPROPERTYENUMERATION").text(name).labels(values).unset());
        _enumerations.emplace(name, Enumeration{id, values});
        return id;
    }

    /// The classes with a comma between them, as far as the schema has them and there is room.
    std::string applicableEntity(const SetDefinition& set) {
        std::vector<ApplicableClass> classes;
        for (const ApplicableClass& one : set.classes) {
            if (_schema.entity(one.entity) != nullptr)
                classes.push_back(one);
            else
                note("the class " + textOf(one) + " is left out: " + std::string(_schema.name()) + " has none");
        }
        std::string result = text::joined(classes, ",", [](const ApplicableClass& one) { return textOf(one); });
        if (hasRoom(result)) return result;
        // A class goes for its types.
        std::erase_if(classes, [known = classes](const ApplicableClass& one) {
            const std::string described(describedName(one.entity));
            return std::ranges::find(known, ApplicableClass{described, one.predefinedType}) != known.end();
        });
        result = text::joined(classes, ",", [](const ApplicableClass& one) { return textOf(one); });
        if (hasRoom(result)) return result;
        note("the classes are left out: their names are longer than the schema has room for");
        return {};
    }

    struct Enumeration {
        std::uint64_t id = 0;
        std::vector<std::string_view> values;
    };

    const SchemaDefinition& _schema;
    std::string _release;
    const SetDefinition* _set = nullptr;
    std::uint64_t _lastId = 0;
    std::uint64_t _project = 0;
    std::string _projectNames;
    std::string _instances;
    std::vector<std::uint64_t> _templates;
    std::map<std::string, Enumeration, std::less<>> _enumerations;
    std::vector<std::string> _notes;
};

} // namespace

tl::expected<SetTemplateFile, std::string> setTemplates(const std::vector<const SetDefinition*>& definitions,
                                                        std::string_view release, const SetTemplateHeader& header) {
    auto schema = DXSdaiDictionaryRepo::TheOne().schema(release);
    if (schema && (*schema)->entity(templateEntity) == nullptr)
        schema = DXSdaiDictionaryRepo::TheOne().schema(firstWithTemplates);
    if (!schema) return tl::unexpected(schema.error().message);
    if (definitions.empty()) return tl::unexpected(std::string("no set was given"));
    for (const SetDefinition* set : definitions)
        if (!hasTemplate(*set)) return tl::unexpected(set->name + " has no properties that a template has room for");
    TemplateWriter writer(**schema, release);
    writer.addProject(definitions);
    for (const SetDefinition* set : definitions) writer.addSet(*set);
    return SetTemplateFile{writer.finished(header), std::string((*schema)->name()), writer.takeNotes()};
}

} // namespace velkor
