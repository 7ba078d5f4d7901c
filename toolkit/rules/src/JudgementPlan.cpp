#include "JudgementPlan.h"

#include <algorithm>

namespace velkor::rules {

using sdai::AggregateType;
using sdai::EntityDefinition;
using sdai::SelectType;
using sdai::Type;
using sdai::TypeKind;

JudgementPlan::JudgementPlan(const RuleProgram& program, const RuleSelection& selection)
    : _program(program), _selection(selection) {
    const auto& schema = program.model().schema();
    for (const sdai::DefinedType* type : schema.definedTypes()) _types.push_back(planOf(*type));
    for (const EntityDefinition* entity : schema.entities()) _entities.push_back(planOf(*entity));
    for (std::size_t i = 0; i < program.tables().globalRules.size(); ++i) {
        const auto index = static_cast<std::uint16_t>(i);
        if (selection.takes(RuleKind::Global, index)) _globalRules.push_back(index);
    }
}

ValuePlan* JudgementPlan::planOf(const Type& type) {
    const auto [known, isNew] = _planned.try_emplace(&type, nullptr);
    if (!isNew) return known->second;
    ValuePlan* plan = &_values.emplace_back();
    known->second = plan;
    fill(*plan, type);
    return plan;
}

// A type that is met again within itself is not filled yet, and has no plan where that matters: the types of IFC do not
// contain themselves but by way of entities.
void JudgementPlan::fill(ValuePlan& plan, const Type& type) {
    plan.type = type.asDefined();
    if (plan.type != nullptr) plan.rules = _selection.taken(RuleKind::Type, _program.whereRulesOf(*plan.type));
    const Type& resolved = type.resolved();
    plan.aggregate = resolved.asAggregate();
    if (plan.aggregate != nullptr) {
        plan.mustDiffer = _selection.takesMembers() &&
                          (plan.aggregate->kind() == TypeKind::Set || plan.aggregate->hasUniqueElements());
        const ValuePlan* member = planOf(plan.aggregate->element());
        if (!member->isEmpty()) plan.member = member;
    }
    if (const SelectType* select = resolved.asSelect(); select != nullptr && hasPlan(*select)) plan.select = select;
}

bool JudgementPlan::hasPlan(const SelectType& select) {
    return std::ranges::any_of(
        select.items(), [&](const Type* item) { return item->asDefined() != nullptr && !planOf(*item)->isEmpty(); });
}

EntityPlan JudgementPlan::planOf(const EntityDefinition& entity) {
    EntityPlan plan;
    plan.whereRules = _selection.taken(RuleKind::Where, _program.whereRulesOf(entity));
    for (const std::uint16_t index : _selection.taken(RuleKind::Inverse, _program.inverseAttributesOf(entity))) {
        if (hasBounds(_program.tables().inverseAttributes[index])) plan.inverseAttributes.push_back(index);
    }
    const auto uniqueRules = _program.tables().uniqueRules;
    for (std::size_t i = 0; i < uniqueRules.size(); ++i) {
        const EntityDefinition* owner = _program.entity(uniqueRules[i].entity);
        const auto index = static_cast<std::uint16_t>(i);
        if (owner != nullptr && entity.isKindOf(*owner) && _selection.takes(RuleKind::Unique, index))
            plan.uniqueRules.push_back(index);
    }
    for (std::size_t i = 0; i < entity.attributes().size(); ++i) {
        const ValuePlan* value =
            _program.isDerived(entity, i) ? nullptr : planOf(entity.attributes()[i].attribute->type());
        plan.parameters.push_back(value == nullptr || value->isEmpty() ? nullptr : value);
    }
    while (!plan.parameters.empty() && plan.parameters.back() == nullptr) plan.parameters.pop_back();
    return plan;
}

} // namespace velkor::rules
