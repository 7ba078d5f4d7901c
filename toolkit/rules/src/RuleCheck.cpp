#include "velkor/rules/RuleCheck.h"

#include "RuleChecker.h"

namespace velkor {

RuleCheckResult checkRules(const sdai::Model& model, const RuleCheckOptions& options) {
    // Members of aggregates are judged by the dictionary, whether or not its release states rules.
    static constexpr rules::RuleTables none{};
    const rules::RuleTables* tables = rules::ruleTables(model.schema().name());
    return rules::RuleChecker(model, tables == nullptr ? none : *tables, options).check();
}

} // namespace velkor
