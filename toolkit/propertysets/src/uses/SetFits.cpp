#include "uses/SetFits.h"

#include <algorithm>

namespace velkor {

namespace {

// Every object may have an object type of its own.
constexpr std::size_t mostDetails = 1000;

void add(Misfits& misfits, SetFit fit, const SetUse& use) noexcept {
    if (fit == SetFit::WrongTemplate) misfits.wrongTemplate.add(use);
    if (fit != SetFit::WrongClass && fit != SetFit::WrongPredefinedType) return;
    if (!misfits.notApplicable.isAny()) misfits.isPredefinedType = fit == SetFit::WrongPredefinedType;
    misfits.notApplicable.add(use);
}

} // namespace

void Misfits::add(const Misfits& more) noexcept {
    if (!notApplicable.isAny()) isPredefinedType = more.isPredefinedType;
    notApplicable.add(more.notApplicable);
    wrongTemplate.add(more.wrongTemplate);
}

SetFits::SetFits(const SetDefinition& definition, const sdai::SchemaDefinition& schema)
    : _applicability(definition, schema),
      _templateType(definition.templateType), _genericTypes{schema.entity("IFCTYPEOBJECT"),
                                                            schema.entity("IFCTYPEPRODUCT")} {}

Misfits SetFits::misfits(std::uint32_t group, BearerKinds& bearers) {
    if (bearers.uses().group(group).size() == 1) return found(group, bearers);
    auto [known, isNew] = _groups.try_emplace(group);
    if (isNew) known->second = found(group, bearers);
    return known->second;
}

Misfits SetFits::found(std::uint32_t group, BearerKinds& bearers) {
    Misfits misfits;
    bool countsDetail = false;
    for (const auto& alike : bearers.kindsOf(group)) {
        const SetFit fit = fitOf(alike.kind, alike.use.first, bearers.uses());
        countsDetail = countsDetail || fit == SetFit::WrongPredefinedType;
        add(misfits, fit, alike.use);
    }
    if (!countsDetail) return misfits;
    misfits = {};
    for (const auto& alike : bearers.detailsOf(group)) {
        SetFit fit = fitOf(alike.kind.kind, alike.use.first, bearers.uses());
        if (fit == SetFit::WrongPredefinedType) fit = fitOf(alike.kind);
        add(misfits, fit, alike.use);
    }
    return misfits;
}

SetFit SetFits::fitOf(const ObjectKind& kind, ObjectIndex object, const SetUses& uses) {
    if (kind.first != nullptr && std::ranges::find(_genericTypes, kind.first) != _genericTypes.end())
        return fitOfGenericType(uses.numberOf(object), uses);
    const auto [known, isNew] = _kinds.try_emplace(kind);
    if (isNew) known->second = _applicability.fit({{.entity = kind.first}, {.entity = kind.second}});
    return known->second;
}

// A type that says nothing about the class leaves that to its objects.
SetFit SetFits::fitOfGenericType(std::uint32_t type, const SetUses& uses) const {
    const auto entities = uses.entitiesOf(type);
    const auto isRight = [&](const sdai::EntityDefinition* entity) {
        return _applicability.fit({{.entity = entity}}) != SetFit::WrongClass;
    };
    if (!entities.empty() && std::ranges::none_of(entities, isRight)) return SetFit::WrongClass;
    const bool isForNoType =
        _templateType == TemplateType::OccurrenceDriven || _templateType == TemplateType::PerformanceDriven;
    return isForNoType ? SetFit::WrongTemplate : SetFit::Applies;
}

SetFit SetFits::fitOf(const BearerDetail& detail) {
    if (const auto known = _details.find(detail); known != _details.end()) return known->second;
    SetFit fit = _applicability.fit(detail.bearer());
    if (detail.isOpen && fit == SetFit::WrongPredefinedType) fit = SetFit::Applies;
    if (_details.size() < mostDetails) _details.emplace(detail, fit);
    return fit;
}

} // namespace velkor
