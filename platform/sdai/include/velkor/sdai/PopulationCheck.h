/// Judges every instance of a model against its dictionary.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/sdai/Model.h"
#include "velkor/sdai/SyntaxCheck.h"

#include <span>
#include <string_view>

namespace velkor::sdai {

/// An entity and one of its attributes by name, letter case ignored.
struct DerivedSlot {
    std::string_view entity;
    std::string_view attribute;
};

/// What a check is made with.
struct PopulationCheckOptions {
    std::size_t limit = 10'000;
    /// Explicit attributes that entities redeclare as derived, for schemas whose dictionary does not carry them: an
    /// instance of the entity or a subtype has "*" there. What the schema does not know is passed over.
    std::span<const DerivedSlot> derivedSlots;
    /// Defined types that are NUMBER in EXPRESS, upper case: dictionaries state them as REAL, but a whole
    /// number may stand there.
    std::span<const std::string_view> numberTypes;
    Progress progress;
    CodeChoice choice;
};

/// Decodes every instance once: unknown and abstract entities, wrong number or type of
/// attributes, missing required values, bounds of aggregates, lengths of texts, dangling
/// references and references to the wrong entity, unknown enumerators. Problems in file order.
/// Damage to the exchange structure itself is checkSyntax's; a value that is no token is passed over.
VELKOR_PLATFORM_API std::vector<Problem> checkPopulation(const Model& model, const PopulationCheckOptions& options,
                                                         std::uint64_t* total = nullptr);

} // namespace velkor::sdai
