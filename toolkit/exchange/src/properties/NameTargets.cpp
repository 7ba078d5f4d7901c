#include "NameTargets.h"

#include "PropertyRules.h"

namespace velkor::exchange {

std::optional<Target> NameTargets::find(const ObjectKind& kind, const std::string& set, const std::string& property,
                                        bool isQuantity) const {
    if (_options.customMapping) {
        const bool isExport = *_options.customMapping == MappingDirection::Export;
        for (const std::string& name : kind.names) {
            if (auto mapped = _mapping.custom(name, isExport, set, property))
                return Target{std::move(mapped->set), std::move(mapped->property), &customName};
            if (auto mapped = _mapping.custom(name, isExport, set, {}))
                return Target{std::move(mapped->set), property, &customName};
        }
    }
    if (_options.plmAttributes && !kind.plmType.empty() && !isQuantity) {
        if (auto mapped = _mapping.plmAttribute(kind.plmType, property))
            return Target{std::move(mapped->set), std::move(mapped->property), &plmAttribute};
    }
    return std::nullopt;
}

const Target* NameTargets::of(const ObjectKind& kind, std::uint32_t position, const std::string& set,
                              const std::string& property, bool isQuantity) {
    std::string key = std::to_string(position);
    ((((key += isQuantity ? 'q' : 'p') += set) += '\0') += property);
    const auto [known, isNew] = _known.try_emplace(std::move(key), nullptr);
    if (!isNew) return known->second;
    auto target = find(kind, set, property, isQuantity);
    if (target && (target->set != set || target->property != property))
        known->second = &*_targets.insert(std::move(*target)).first;
    return known->second;
}

} // namespace velkor::exchange
