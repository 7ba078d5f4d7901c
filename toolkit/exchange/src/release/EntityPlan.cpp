#include "release/EntityPlan.h"

#include <algorithm>

namespace velkor::exchange {

using sdai::EntityDefinition;

const EntityPlan& EntityPlans::plan(const EntityDefinition& source, const EntityDefinition& target) {
    auto& plan = _plans[std::pair(&source, &target)];
    if (plan == nullptr) plan = make(source, target);
    return *plan;
}

std::unique_ptr<EntityPlan> EntityPlans::make(const EntityDefinition& source, const EntityDefinition& target) {
    auto plan = std::make_unique<EntityPlan>();
    plan->source = &source;
    plan->target = &target;
    const Releases& releases = _plan.releases();
    std::vector<bool> isTaken(source.attributes().size(), false);
    plan->isIdentity = source.name() == target.name() && source.attributes().size() == target.attributes().size();
    for (std::size_t i = 0; i < target.attributes().size(); ++i) {
        EntityPlan::Slot slot;
        slot.attribute = target.attributes()[i].attribute;
        slot.isDerived = releases.target.isDerived(target, i);
        slot.isRequired = !slot.attribute->isOptional();
        if (slot.isRequired) slot.defaults = _plan.book().defaults(target, slot.attribute->name());
        slot.isWhole = _plan.book().isWhole(target, slot.attribute->name());
        const ReleaseNames::Slot place = _plan.names().slot(source, slot.attribute->name());
        slot.source = place.index;
        slot.renamed = place.rule;
        if (place.index >= 0) {
            const auto from = static_cast<std::size_t>(place.index);
            isTaken[from] = true;
            slot.from = &source.attributes()[from].attribute->type();
            const bool wasDerived = releases.source.isDerived(source, from);
            const bool wasOptional = source.attributes()[from].attribute->isOptional() || wasDerived;
            slot.isRaw =
                !wasDerived && (!slot.isRequired || !wasOptional) && _fit.isRaw(*slot.from, slot.attribute->type());
            if (slot.isDerived && wasDerived) slot.isRaw = true;
        } else {
            slot.introduced = _plan.names().introduced(target, slot.attribute->name());
        }
        plan->isIdentity =
            plan->isIdentity && slot.isRaw && place.index == static_cast<int>(i) && place.rule == nullptr;
        plan->isRisky = plan->isRisky || (slot.isRequired && !slot.isDerived && !slot.isRaw);
        plan->slots.push_back(std::move(slot));
    }
    for (std::size_t i = 0; i < isTaken.size(); ++i)
        if (!isTaken[i] && !releases.source.isDerived(source, i)) plan->dropped.push_back(i);
    plan->isIdentity = plan->isIdentity && plan->dropped.empty();
    plan->predefinedType = target.attributeIndex("PREDEFINEDTYPE");
    for (const char* name : {"OBJECTTYPE", "ELEMENTTYPE", "PROCESSTYPE", "RESOURCETYPE"})
        if (plan->userText < 0) plan->userText = target.attributeIndex(name);
    return plan;
}

} // namespace velkor::exchange
