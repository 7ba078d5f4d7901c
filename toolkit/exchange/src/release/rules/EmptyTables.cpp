// Tables that have no rule yet; each goes from here when it has.
#include "release/Rebuilding.h"

namespace velkor::exchange {

RuleTable forwardRules() {
    return {};
}

} // namespace velkor::exchange
