#include "ObjectTypes.h"

#include "RecordText.h"
#include "velkor/classification/ProductClasses.h"

namespace velkor::exchange {

ObjectTypes::ObjectTypes(const sdai::Model& model, const PlatformSetup& setup, const Progress& progress)
    : _model(model) {
    const auto classified = classifyAsConfigured(model, setup, progress);
    if (!classified) return;
    const Classification& classification = classified->classification;
    _isComplete = classification.isComplete;
    std::vector<std::uint32_t> kinds;
    for (const Classification::Decision& decision : classification.decisions)
        kinds.push_back(kindOf(decision.entity, decision.plmType, decision.neutralId));
    for (const Classification::Product& product : classification.products)
        _ofObject.emplace(product.number, kinds[product.decision]);
    addTypes();
}

void ObjectTypes::addTypes() {
    // The PLM type of the occurrences, or an empty one when they differ.
    std::unordered_map<std::uint32_t, std::string> plmTypes;
    for (const std::uint32_t relationship : _model.numbersOf("IFCRELDEFINESBYTYPE")) {
        eachNumber(_model.file(), parameterOf(_model, relationship, "RELATINGTYPE"), [&](std::uint32_t type) {
            eachNumber(_model.file(), parameterOf(_model, relationship, "RELATEDOBJECTS"), [&](std::uint32_t object) {
                const std::string& plmType = _kinds[kindOf(object)].plmType;
                const auto [known, isNew] = plmTypes.try_emplace(type, plmType);
                if (!isNew && known->second != plmType) known->second.clear();
            });
        });
    }
    for (const auto& [type, plmType] : plmTypes)
        if (!plmType.empty()) _ofObject.insert_or_assign(type, kindOf(_model.entityAt(type), plmType, {}));
}

std::uint32_t ObjectTypes::kindOf(std::uint32_t number) {
    const auto known = _ofObject.find(number);
    return known != _ofObject.end() ? known->second : kindOf(_model.entityAt(number), {}, {});
}

std::uint32_t ObjectTypes::kindOf(const sdai::EntityDefinition* entity, const std::string& plmType,
                                  const std::string& neutralId) {
    std::string key(entity == nullptr ? std::string_view() : entity->name());
    (((key += '\n') += plmType) += '\n') += neutralId;
    const auto [known, isNew] = _known.try_emplace(std::move(key), static_cast<std::uint32_t>(_kinds.size()));
    if (!isNew) return known->second;
    ObjectKind kind{plmType, {}};
    for (const std::string& name : {plmType, neutralId})
        if (!name.empty()) kind.names.push_back(name);
    for (; entity != nullptr; entity = entity->supertype()) kind.names.emplace_back(entity->name());
    _kinds.push_back(std::move(kind));
    return known->second;
}

} // namespace velkor::exchange
