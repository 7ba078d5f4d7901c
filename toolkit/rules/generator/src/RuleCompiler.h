/// Compiles the rules of schemas into the tables that the toolkit evaluates.
///
///     RuleCompiler compiler({{"IFC4.exp", schema, true}});
///     if (!compiler.diagnostics().empty()) …
///     const rules::RuleTables tables = compiler.tables(0);
#pragma once

#include "Diagnostics.h"
#include "ExpressSchema.h"
#include "RuleTables.h"
#include "StoreBuilder.h"

#include <string>
#include <vector>

namespace velkor::rulegen {

struct RuleSource {
    /// For messages.
    std::string name;
    express::ExpressSchema schema;
    /// False for a source that holds the data structure alone: expressions of its derived attributes may need functions
    /// that it lacks, and are indeterminate.
    bool hasFunctions = true;
};

class RuleCompiler {
public:
    explicit RuleCompiler(std::vector<RuleSource> sources);

    /// "SOURCE:LINE: …"; without errors the tables are whole.
    const std::vector<std::string>& errors() const { return _errors; }
    /// What is odd in a source and compiled as it stands.
    const std::vector<std::string>& notes() const { return _notes; }

    std::size_t count() const { return _releases.size(); }
    /// Views into the compiler.
    rules::RuleStore store() { return _store.store(); }
    rules::RuleTables tables(std::size_t release) const;

private:
    struct Release {
        std::string schema;
        std::vector<rules::WhereRule> entityRules;
        std::vector<rules::WhereRule> typeRules;
        std::vector<rules::WhereRule> globalRules;
        std::vector<rules::UniqueRule> uniqueRules;
        std::vector<rules::TextId> uniqueAttributes;
        std::vector<rules::InverseAttribute> inverseAttributes;
        std::vector<rules::DerivedAttribute> derivedAttributes;
        std::vector<rules::Function> functions;
    };
    class ReleaseCompiler;

    StoreBuilder _store;
    std::vector<Release> _releases;
    std::vector<std::string> _errors;
    std::vector<std::string> _notes;
};

} // namespace velkor::rulegen
