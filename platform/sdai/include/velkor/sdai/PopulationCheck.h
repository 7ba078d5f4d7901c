/// Judges every instance of a model against its dictionary.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/sdai/Model.h"
#include "velkor/sdai/SyntaxCheck.h"

#include <span>
#include <string_view>

namespace velkor::sdai {

struct PopulationCheckOptions {
    std::size_t limit = 10'000;
    /// A neighbouring release whose dictionary carries all derived attributes, for schemas
    /// whose own does not: an attribute that an entity of the same name derives there counts as
    /// derived. May be null.
    const SchemaDefinition* derivedAttributes = nullptr;
    /// Defined types that are NUMBER in EXPRESS, upper case: dictionaries state them as REAL, but a whole
    /// number may stand there.
    std::span<const std::string_view> numberTypes;
    Progress progress;
};

/// Decodes every instance once: unknown and abstract entities, wrong number or type of
/// attributes, missing required values, bounds of aggregates, lengths of texts, dangling
/// references and references to the wrong entity, unknown enumerators. Problems in file order.
/// Damage to the exchange structure itself is checkSyntax's; a value that is no token is passed over.
VELKOR_PLATFORM_API std::vector<Problem> checkPopulation(const Model& model, const PopulationCheckOptions& options,
                                                         std::uint64_t* total = nullptr);

} // namespace velkor::sdai
