#include "velkor/propertysets/SetApplicability.h"

#include "TypeNames.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <string>

namespace velkor {

namespace {

// IFCTYPEPRODUCT describes IFCPRODUCT.
constexpr std::string_view prefix = "IFC", typePrefix = "IFCTYPE";

std::string joinedName(std::string_view first, std::string_view second) {
    std::string name(first);
    return name.append(second);
}

// The entity whose objects a type describes; null when the release knows them by the type alone.
const sdai::EntityDefinition* describedBy(const sdai::EntityDefinition& type) {
    const std::string_view name = type.name();
    const sdai::SchemaDefinition& schema = type.schema();
    if (const std::string_view described = describedName(name); !described.empty()) return schema.entity(described);
    if (!name.starts_with(typePrefix)) return nullptr;
    return schema.entity(joinedName(prefix, name.substr(typePrefix.size())));
}

bool isThatType(const SetBearer::Part& part, std::string_view wanted) {
    if (text::equalIgnoringCase(part.predefinedType, wanted)) return true;
    const bool isOfItsOwn = part.predefinedType.empty() || text::equalIgnoringCase(part.predefinedType, "USERDEFINED");
    return isOfItsOwn && text::equalIgnoringCase(part.objectType, wanted);
}

} // namespace

SetApplicability::SetApplicability(const SetDefinition& definition, const sdai::SchemaDefinition& schema)
    : _templateType(definition.templateType), _schema(schema), _typeObject(schema.entity("IFCTYPEOBJECT")),
      _performanceHistory(schema.entity("IFCPERFORMANCEHISTORY")) {
    for (const ApplicableClass& named : definition.classes) addClass(named);
}

void SetApplicability::addClass(const ApplicableClass& named) {
    Class made;
    made.predefinedType = named.predefinedType;
    const sdai::EntityDefinition* entity = _schema.entity(named.entity);
    if (entity != nullptr && !isType(*entity)) {
        made.entity = entity;
        for (const std::string_view ending : typeEndings)
            made.types.push_back(_schema.entity(joinedName(entity->name(), ending)));
        if (entity->name().starts_with(prefix))
            made.types.push_back(_schema.entity(joinedName(typePrefix, entity->name().substr(prefix.size()))));
    } else {
        made.types.push_back(entity != nullptr ? entity : _schema.entity(joinedName(named.entity, typeEndings[0])));
        if (const sdai::EntityDefinition* type = made.types.front(); type != nullptr) {
            made.entity = describedBy(*type);
            if (made.entity == nullptr && type->supertype() != nullptr) made.standIn = describedBy(*type->supertype());
        }
    }
    std::erase(made.types, nullptr);
    _classes.push_back(std::move(made));
}

bool SetApplicability::isType(const sdai::EntityDefinition& entity) const {
    return _typeObject != nullptr && entity.isKindOf(*_typeObject);
}

bool SetApplicability::describes(const Class& applicable, const sdai::EntityDefinition& type) const {
    const auto isOf = [&](const sdai::EntityDefinition* each) { return type.isKindOf(*each); };
    if (std::ranges::any_of(applicable.types, isOf)) return true;
    if (applicable.entity == nullptr) return false;
    const sdai::EntityDefinition* described = nullptr;
    for (const auto* each = &type; each != nullptr && described == nullptr; each = each->supertype())
        described = describedBy(*each);
    return described != nullptr && described->isKindOf(*applicable.entity);
}

bool SetApplicability::matches(const Class& applicable, const SetBearer& bearer) const {
    const sdai::EntityDefinition& entity = *bearer.object.entity;
    if (isType(entity)) return describes(applicable, entity);
    if (applicable.entity != nullptr && entity.isKindOf(*applicable.entity)) return true;
    if (bearer.type.entity != nullptr && describes(applicable, *bearer.type.entity)) return true;
    // Its type, where it has one that says something, says that it is another class.
    return applicable.standIn == &entity &&
           (bearer.type.entity == nullptr || describedBy(*bearer.type.entity) == &entity ||
            bearer.type.entity->supertype() == _typeObject || bearer.type.entity == _typeObject);
}

bool SetApplicability::fitsTemplate(const sdai::EntityDefinition& entity) const {
    switch (_templateType) {
    case TemplateType::TypeDrivenOnly:
        return isType(entity);
    case TemplateType::OccurrenceDriven:
        return !isType(entity);
    case TemplateType::PerformanceDriven:
        return _performanceHistory == nullptr || entity.isKindOf(*_performanceHistory);
    default:
        return true;
    }
}

SetFit SetApplicability::fit(const SetBearer& bearer) const {
    if (bearer.object.entity == nullptr) return SetFit::Applies;
    const sdai::EntityDefinition& entity = *bearer.object.entity;
    // Its classes say whose performance it is.
    if (_templateType == TemplateType::PerformanceDriven && fitsTemplate(entity)) return SetFit::Applies;
    SetFit fit = SetFit::WrongClass;
    for (const Class& applicable : _classes) {
        if (!matches(applicable, bearer)) continue;
        if (!fitsTemplate(entity)) return SetFit::WrongTemplate;
        if (applicable.predefinedType.empty() || isThatType(bearer.object, applicable.predefinedType) ||
            isThatType(bearer.type, applicable.predefinedType))
            return SetFit::Applies;
        fit = SetFit::WrongPredefinedType;
    }
    return fit;
}

bool SetApplicability::mayApplyTo(const sdai::EntityDefinition& entity) const {
    const SetFit whatever = fit({.object = {.entity = &entity}});
    return whatever == SetFit::Applies || whatever == SetFit::WrongPredefinedType;
}

} // namespace velkor
