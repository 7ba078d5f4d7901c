#include "UnitEvaluation.h"

#include "QORIFCUnitServices.h"
#include "UnitPositions.h"
#include "UnitSlots.h"
#include "velkor/objectmodeler/Assertion.h"

#include <cmath>

namespace velkor::library {

namespace {

// Real units take three or four; the bound keeps a hostile file off the end of the stack.
constexpr int deepest = 1000;

} // namespace

double UnitEvaluation::factor(const DXSdaiAppInstance* unit) {
    if (unit == nullptr) return 1.0;
    if (unit->IsKindOf("IFCSIUNIT")) return siFactor(*unit);
    if (unit->IsKindOf("IFCCONVERSIONBASEDUNIT")) {
        return evaluateOnce(*unit, [&] { return conversionFactor(*unit); });
    }
    if (unit->IsKindOf("IFCDERIVEDUNIT")) {
        return evaluateOnce(*unit, [&] { return derivedFactor(*unit); });
    }
    return 1.0;
}

double UnitEvaluation::siFactor(const DXSdaiAppInstance& unit) const {
    const double prefix =
        QORIFCUnitServices::GetPrefixValue(unitPosition(unit.GetAttr("PREFIX").asEnumeration(), _schema));
    switch (unitPosition(unit.GetAttr("UNITTYPE").asEnumeration(), _schema)) {
    case AreaUnit:
        return std::pow(prefix, 2.0);
    case VolumeUnit:
        return std::pow(prefix, 3.0);
    // IFC names the gram, SI's base unit is the kilogram.
    case MassUnit:
        return prefix / 1000.0;
    default:
        return prefix;
    }
}

double UnitEvaluation::conversionFactor(const DXSdaiAppInstance& unit) {
    const DXSdaiAppInstance* measure = unit.GetAttr("CONVERSIONFACTOR").asInstance();
    if (measure == nullptr) return 1.0;
    const double value = measure->GetAttr("VALUECOMPONENT").asSelect().underlyingValue().asReal().value_or(1.0);
    return factor(measure->GetAttr("UNITCOMPONENT").asInstance()) * value;
}

double UnitEvaluation::derivedFactor(const DXSdaiAppInstance& unit) {
    double result = 1.0;
    for (const sdai::Primitive member : unit.GetAttr("ELEMENTS").asAggregate()) {
        const DXSdaiAppInstance* element = member.asInstance();
        if (element == nullptr) continue;
        const double base = factor(element->GetAttr("UNIT").asInstance());
        const auto exponent = element->GetAttr("EXPONENT").asInteger().value_or(0);
        result *= std::pow(base, static_cast<double>(exponent));
    }
    return result;
}

template <typename Evaluate>
double UnitEvaluation::evaluateOnce(const DXSdaiAppInstance& unit, Evaluate evaluate) {
    const auto [entry, isNew] = _states.try_emplace(&unit);
    State& state = entry->second;
    if (isNew && _depth < deepest) {
        ++_depth;
        state.factor = evaluate();
        --_depth;
        state.isFinished = true;
    }
    if (!state.isFinished) VELKOR_ASSERTION_FAILED();
    return state.factor;
}

} // namespace velkor::library
