#include "DefinitionFaults.h"
#include "DefinitionTexts.h"
#include "velkor/propertysets/DefinitionFile.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"
#include "velkor/units/MeasureUnits.h"

#include <algorithm>

namespace velkor {

namespace {

using namespace definitions;
constexpr std::string_view classPrefix = "Ifc";
constexpr std::string_view typeEndings[] = {"Type", "Style"};
// What sets of performance histories are called by.
constexpr std::string_view historyWord = "PHistory";
constexpr std::string_view performanceHistory = "IfcPerformanceHistory";
// Where an entity says of which predefined type its objects are.
constexpr std::string_view typeAttributes[] = {"PredefinedType", "OperationType"};
// What properties can have for a value, and what they can refer to.
constexpr std::string_view valueSelect = "IfcValue", referenceSelect = "IfcObjectReferenceSelect";

std::string joined(std::string_view first, std::string_view second) {
    std::string result(first);
    return result.append(second);
}

class Mender {
public:
    Mender(SetDefinition& definition, const sdai::SchemaDefinition& schema)
        : _definition(definition), _schema(schema), _values(select(valueSelect)), _references(select(referenceSelect)) {
    }

    std::vector<DefinitionFault> mend() {
        mendTemplateType();
        std::erase_if(_definition.classes, [this](const ApplicableClass& named) { return !isKnown(named); });
        if (_definition.classes.empty()) nameClass();
        mendPredefinedTypes();
        for (PropertyDefinition& property : _definition.properties) mendProperty(property);
        return std::move(_faults);
    }

private:
    const sdai::SelectType* select(std::string_view name) const {
        const sdai::DefinedType* type = _schema.definedType(name);
        return type == nullptr ? nullptr : type->resolved().asSelect();
    }

    void mendTemplateType() {
        if (_definition.templateType != TemplateType::Unspecified ||
            _definition.name.find(historyWord) == std::string::npos ||
            std::ranges::find(_definition.classes, performanceHistory, &ApplicableClass::entity) !=
                _definition.classes.end())
            return;
        _definition.templateType = TemplateType::PerformanceDriven;
        fault(definitionfaults::templateUnknown, "no template type",
              "for performance histories, as the set's name says");
    }

    // "IfcElementAssembly" of Pset_ElementAssemblyCommon: the longest beginning of the name that is an entity.
    void nameClass() {
        for (const std::string_view prefix : {propertySetPrefix, quantitySetPrefix}) {
            if (!_definition.name.starts_with(prefix)) continue;
            std::string entity = joined(classPrefix, std::string_view(_definition.name).substr(prefix.size()));
            while (entity.size() > classPrefix.size() && _schema.entity(entity) == nullptr) entity.pop_back();
            if (entity.size() == classPrefix.size()) break;
            fault(definitionfaults::classMissing, "no class", entity + ", as the set's name says");
            _definition.classes.push_back({std::move(entity), {}});
            return;
        }
        fault(definitionfaults::classMissing, "no class", "it applies to nothing");
    }

    // A release may know the objects of a class by their type alone.
    bool isKnown(const ApplicableClass& named) {
        if (_schema.entity(named.entity) != nullptr || _schema.entity(joined(named.entity, typeEndings[0])) != nullptr)
            return true;
        fault(definitionfaults::classUnknown, "class " + shown(named.entity), "left out");
        return false;
    }

    void mendPredefinedTypes() {
        std::vector<ApplicableClass> mended;
        for (ApplicableClass& named : _definition.classes) {
            // Words of people are object types.
            if (isEnumerator(named.predefinedType))
                mendPredefinedType(std::move(named), mended);
            else
                mended.push_back(std::move(named));
        }
        _definition.classes = std::move(mended);
    }

    void mendPredefinedType(ApplicableClass named, std::vector<ApplicableClass>& mended) {
        const std::vector<std::string_view> known = predefinedTypes(named.entity);
        std::vector<std::string> beginning;
        for (const std::string_view each : known)
            if (each.starts_with(named.predefinedType)) beginning.emplace_back(each);
        if (known.empty() || std::ranges::find(known, named.predefinedType) != known.end()) {
            mended.push_back(std::move(named));
            return;
        }
        const std::string found = "predefined type " + shown(named.predefinedType) + " of class " + shown(named.entity);
        if (beginning.empty()) {
            fault(definitionfaults::predefinedTypeUnknown, found, "objects whose object type is that are meant");
            mended.push_back(std::move(named));
            return;
        }
        fault(definitionfaults::predefinedTypeUnknown, found, "read as " + text::joined(beginning));
        for (std::string& each : beginning) mended.push_back({named.entity, std::move(each)});
    }

    // Those of the class and of the types of its objects.
    std::vector<std::string_view> predefinedTypes(std::string_view className) const {
        std::vector<std::string_view> result;
        for (const std::string_view ending : {std::string_view(), typeEndings[0], typeEndings[1]}) {
            const sdai::EntityDefinition* entity = _schema.entity(joined(className, ending));
            if (entity == nullptr) continue;
            for (const std::string_view name : typeAttributes) {
                const sdai::Attribute* attribute = entity->attribute(name);
                const auto* types = attribute == nullptr ? nullptr : attribute->type().resolved().asEnumeration();
                if (types == nullptr) continue;
                for (const std::string_view each : types->values())
                    if (std::ranges::find(result, each) == result.end()) result.push_back(each);
            }
        }
        return result;
    }

    static bool isEnumerator(std::string_view text) {
        const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'; };
        return !text.empty() && std::ranges::all_of(text, isLetter);
    }

    void mendProperty(PropertyDefinition& property) {
        mendType(property, property.definingType);
        if (property.kind == PropertyKind::Reference)
            mendReference(property);
        else
            mendType(property, property.valueType);
        mendUnit(property, property.definingUnitType, property.definingType);
        mendUnit(property, property.unitType, property.valueType);
        for (PropertyDefinition& member : property.members) mendProperty(member);
    }

    void mendReference(PropertyDefinition& property) {
        if (property.valueType.empty()) return;
        const sdai::EntityDefinition* entity = _schema.entity(property.valueType);
        if (entity != nullptr && canRefer(*entity)) return;
        fault(definitionfaults::typeUnknown,
              "reference of property " + shown(property.name) + " to " + shown(property.valueType), "any will do");
        property.valueType.clear();
    }

    // To the entity itself, or to some that are of its kind.
    bool canRefer(const sdai::EntityDefinition& entity) const {
        if (_references == nullptr) return false;
        return _references->accepts(entity) ||
               std::ranges::any_of(entity.subtypes(), [this](const auto* subtype) { return canRefer(*subtype); });
    }

    void mendType(PropertyDefinition& property, std::string& type) {
        if (type.empty()) return;
        if (const sdai::EntityDefinition* entity = _schema.entity(type)) {
            mendEntity(property, type, *entity);
            return;
        }
        const sdai::DefinedType* defined = _schema.definedType(type);
        if (defined != nullptr &&
            (defined->resolved().asSelect() != nullptr || _values == nullptr || _values->accepts(*defined)))
            return;
        fault(definitionfaults::typeUnknown, "type " + shown(type) + " of property " + shown(property.name),
              "any will do");
        type.clear();
    }

    void mendEntity(PropertyDefinition& property, std::string& type, const sdai::EntityDefinition& entity) {
        const std::string found = "value of property " + shown(property.name) + " of the entity " + shown(type);
        if (property.kind == PropertyKind::Single && canRefer(entity)) {
            fault(definitionfaults::typeIsEntity, found, "read as a reference");
            property.kind = PropertyKind::Reference;
            return;
        }
        fault(definitionfaults::typeIsEntity, found, "any will do");
        type.clear();
    }

    void mendUnit(const PropertyDefinition& property, std::string& unitType, const std::string& valueType) {
        if (unitType.empty()) return;
        const std::string found = "unit type " + shown(unitType) + " of property " + shown(property.name);
        const sdai::DefinedType* measure = _schema.definedType(unitType);
        if (measure != nullptr || unitType.starts_with(text::asciiUpper(classPrefix))) {
            unitType = measure == nullptr ? std::string() : unitTypeOf(*measure);
            fault(definitionfaults::unitIsMeasure, found, unitType.empty() ? "none is taken" : "read as " + unitType);
        } else if (!isUnitType(_schema, unitType)) {
            fault(definitionfaults::unitUnknown, found, "none is taken");
            unitType.clear();
        }
        checkUnitOfValues(property, unitType, valueType);
    }

    void checkUnitOfValues(const PropertyDefinition& property, std::string& unitType, const std::string& valueType) {
        const sdai::DefinedType* values = _schema.definedType(valueType);
        if (unitType.empty() || values == nullptr) return;
        const std::string expected = unitTypeOf(*values);
        if (expected.empty() || expected == unitType) return;
        fault(definitionfaults::unitMismatch, "unit type " + shown(unitType) + " of property " + shown(property.name),
              "left out, since that of " + valueType + " is " + expected);
        unitType.clear();
    }

    void fault(std::string_view kind, std::string found, std::string_view becomes) {
        addFault(_faults, 0, kind, std::move(found), becomes);
    }

    SetDefinition& _definition;
    const sdai::SchemaDefinition& _schema;
    const sdai::SelectType* _values;
    const sdai::SelectType* _references;
    std::vector<DefinitionFault> _faults;
};

} // namespace

std::vector<DefinitionFault> mendDefinition(SetDefinition& definition, std::string_view release) {
    const auto schema = DXSdaiDictionaryRepo::TheOne().schema(release);
    return schema ? Mender(definition, **schema).mend() : std::vector<DefinitionFault>();
}

} // namespace velkor
