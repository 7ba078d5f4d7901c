#include "release/rules/forward/ForwardTables.h"

#include <vector>

namespace velkor::exchange {

namespace forward {

namespace {

/// The rows of all parts, in their order.
struct AllRules {
    std::vector<RebuildRule> rebuilds;
    std::vector<ValueRule> values;
    std::vector<DefaultRule> defaults;
    std::vector<EnumeratorRule> enumerators;

    AllRules() {
        for (const RuleTable& part :
             {processRules(), objectRules(), laterObjectRules(), propertyRules(), controlRules(), referenceRules(),
              costRules(), presentationRules(), enumeratorRules()}) {
            rebuilds.insert(rebuilds.end(), part.rebuild.begin(), part.rebuild.end());
            values.insert(values.end(), part.values.begin(), part.values.end());
            defaults.insert(defaults.end(), part.defaults.begin(), part.defaults.end());
            enumerators.insert(enumerators.end(), part.enumerators.begin(), part.enumerators.end());
        }
    }
};

} // namespace

} // namespace forward

RuleTable forwardRules() {
    static const forward::AllRules all;
    return {.rebuild = all.rebuilds, .values = all.values, .defaults = all.defaults, .enumerators = all.enumerators};
}

} // namespace velkor::exchange
