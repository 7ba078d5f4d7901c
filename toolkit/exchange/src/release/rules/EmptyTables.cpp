// Tables that have no rule yet; each goes from here when it has.
#include "release/Rebuilding.h"

namespace velkor::exchange {

RuleTable forwardRules() {
    return {};
}

RuleTable backwardRules() {
    return {};
}

} // namespace velkor::exchange
