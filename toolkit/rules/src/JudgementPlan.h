/// What there is to judge of an instance, by its entity: settled once, so that instances with nothing to judge cost
/// nothing. Immutable once made, shared by all threads.
#pragma once

#include "RuleProgram.h"
#include "RuleSelection.h"

#include <deque>
#include <unordered_map>
#include <vector>

namespace velkor::rules {

/// What there is to judge of a value, by its type.
struct ValuePlan {
    /// The defined type, and those of its rules that are judged.
    const sdai::DefinedType* type = nullptr;
    std::vector<std::uint16_t> rules;
    /// The aggregate that the value is; its members are judged when they have a plan, and compared when they must
    /// differ.
    const sdai::AggregateType* aggregate = nullptr;
    const ValuePlan* member = nullptr;
    bool mustDiffer = false;
    /// The select that the value is chosen by, when any of its types has a plan.
    const sdai::SelectType* select = nullptr;

    bool isEmpty() const noexcept { return rules.empty() && member == nullptr && !mustDiffer && select == nullptr; }
};

struct EntityPlan {
    std::vector<std::uint16_t> whereRules;
    std::vector<std::uint16_t> inverseAttributes;
    std::vector<std::uint16_t> uniqueRules;
    /// By parameter, up to the last that has something to judge; null for those that have not.
    std::vector<const ValuePlan*> parameters;
};

class JudgementPlan {
public:
    JudgementPlan(const RuleProgram& program, const RuleSelection& selection);

    const RuleProgram& program() const noexcept { return _program; }
    const EntityPlan& of(const sdai::EntityDefinition& entity) const noexcept { return _entities[entity.position()]; }
    /// Of a value that names its type; null when there is nothing to judge.
    const ValuePlan* of(const sdai::DefinedType& type) const noexcept {
        const ValuePlan* plan = _types[type.position()];
        return plan->isEmpty() ? nullptr : plan;
    }
    const std::vector<std::uint16_t>& globalRules() const noexcept { return _globalRules; }
    std::span<const TextId> uniqueAttributes(const UniqueRule& rule) const noexcept {
        return _program.tables().uniqueAttributes.subspan(rule.firstAttribute, rule.attributeCount);
    }

private:
    ValuePlan* planOf(const sdai::Type& type);
    void fill(ValuePlan& plan, const sdai::Type& type);
    bool hasPlan(const sdai::SelectType& select);
    EntityPlan planOf(const sdai::EntityDefinition& entity);

    const RuleProgram& _program;
    const RuleSelection& _selection;
    std::deque<ValuePlan> _values;
    std::unordered_map<const sdai::Type*, ValuePlan*> _planned;
    std::vector<const ValuePlan*> _types;
    std::vector<EntityPlan> _entities;
    std::vector<std::uint16_t> _globalRules;
};

} // namespace velkor::rules
