#include "judge/SetFits.h"

#include <algorithm>

namespace velkor {

namespace {

bool isOfRightClass(SetFit fit) noexcept {
    return fit != SetFit::WrongClass;
}

void add(Misfits& misfits, SetFit fit, const SetUse& use) noexcept {
    if (fit == SetFit::WrongTemplate) misfits.wrongTemplate.add(use);
    if (fit != SetFit::WrongClass && fit != SetFit::WrongPredefinedType) return;
    if (misfits.notApplicable.first == nullptr) misfits.isPredefinedType = fit == SetFit::WrongPredefinedType;
    misfits.notApplicable.add(use);
}

} // namespace

void Misfits::add(const Misfits& more) noexcept {
    if (notApplicable.first == nullptr) isPredefinedType = more.isPredefinedType;
    notApplicable.add(more.notApplicable);
    wrongTemplate.add(more.wrongTemplate);
}

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
        const SetFit fit = fitOf(alike, bearers.uses());
        countsDetail = countsDetail || fit == SetFit::WrongPredefinedType;
        add(misfits, fit, alike.use);
    }
    if (!countsDetail) return misfits;
    misfits = {};
    for (const auto& alike : bearers.detailsOf(group)) {
        SetFit fit = fitOf({alike.kind.kind, alike.use}, bearers.uses());
        if (fit == SetFit::WrongPredefinedType) fit = fitOf(alike.kind);
        add(misfits, fit, alike.use);
    }
    return misfits;
}

SetFit SetFits::fitOf(const BearerKinds::Alike<ObjectKind>& alike, const SetUses& uses) {
    const DXSdaiAppInstance* first = alike.use.first;
    if (first->IsInstanceOf("IFCTYPEOBJECT") || first->IsInstanceOf("IFCTYPEPRODUCT"))
        return fitOfGenericType(first, uses);
    const auto [known, isNew] = _kinds.try_emplace(alike.kind);
    if (isNew) known->second = _applicability.fit({{.entity = alike.kind.first}, {.entity = alike.kind.second}});
    return known->second;
}

// A type that says nothing about the class leaves that to its objects.
SetFit SetFits::fitOfGenericType(const DXSdaiAppInstance* type, const SetUses& uses) const {
    const auto occurrences = uses.occurrencesOf(type);
    const auto isRight = [&](const DXSdaiAppInstance* object) {
        return isOfRightClass(_applicability.fit({{.entity = object->entity()}}));
    };
    if (!occurrences.empty() && std::ranges::none_of(occurrences, isRight)) return SetFit::WrongClass;
    return _templateType == TemplateType::OccurrenceDriven ? SetFit::WrongTemplate : SetFit::Applies;
}

SetFit SetFits::fitOf(const BearerDetail& detail) {
    const auto [known, isNew] = _details.try_emplace(detail);
    if (isNew) known->second = _applicability.fit(detail.bearer());
    return known->second;
}

} // namespace velkor
