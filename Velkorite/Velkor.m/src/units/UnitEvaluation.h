/// Factors of units that are defined by other units.
#pragma once

#include "Fileschema.h"

#include "velkor/sdai/DXSdaiAppInstance.h"

#include <unordered_map>

namespace velkor::library {

/// Evaluates one unit. Every unit on the way is evaluated once, so that units built from each other cost
/// no more than their number.
class UnitEvaluation {
public:
    explicit UnitEvaluation(Fileschema schema) noexcept : _schema(schema) {}

    /// Number of SI base units in one of the unit; 1.0 for null.
    double factor(const DXSdaiAppInstance* unit);

private:
    double siFactor(const DXSdaiAppInstance& unit) const;
    double conversionFactor(const DXSdaiAppInstance& unit);
    double derivedFactor(const DXSdaiAppInstance& unit);
    template <typename Evaluate>
    double evaluateOnce(const DXSdaiAppInstance& unit, Evaluate evaluate);

    struct State {
        bool isFinished = false;
        double factor = 1.0;
    };

    Fileschema _schema;
    int _depth = 0;
    std::unordered_map<const DXSdaiAppInstance*, State> _states;
};

} // namespace velkor::library
