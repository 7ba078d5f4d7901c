// What stands for elements and spatial elements that a release lacks.
#include "release/Rebuilding.h"

namespace velkor::exchange {

namespace {} // namespace

RuleTable elementRules() {
    return {};
}

} // namespace velkor::exchange
