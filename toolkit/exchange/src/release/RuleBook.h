/// The rules of all tables, found by what they are for.
#pragma once

#include "release/Rebuilding.h"

#include <array>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor::exchange {

class RuleBook {
public:
    RuleBook();

    /// Rules for an entity of the source: its own before those of its supertypes.
    const std::vector<const RebuildRule*>& rebuilds(const sdai::EntityDefinition& entity);
    /// Values for an attribute of an entity of the target, nearest first.
    std::vector<const DefaultRule*> defaults(const sdai::EntityDefinition& entity, std::string_view attribute) const;
    /// What an enumerator that the target's type lacks is called there; empty when no rule knows.
    const EnumeratorRule* enumerator(const sdai::EnumerationType& to, std::string_view before) const;

    /// Whether an aggregate of an entity of the target is another one without one of its members.
    bool isWhole(const sdai::EntityDefinition& entity, std::string_view attribute) const;

    template <class Take>
    void eachValueRule(Take take) const {
        for (const RuleTable& table : _tables)
            for (const ValueRule& rule : table.values)
                if (take(rule)) return;
    }

    /// Every rule of the tables in their order, each once, those that follow from the dictionaries alone first.
    static std::vector<const ConversionRule*> all();

private:
    using Tables = std::array<RuleTable, 8>;
    static Tables tables();

    const Tables _tables = tables();
    std::unordered_map<std::string_view, std::vector<const RebuildRule*>> _byEntity;
    std::unordered_map<const sdai::EntityDefinition*, std::vector<const RebuildRule*>> _rebuilds;
};

/// Rules that follow from the two dictionaries.
namespace rules {
extern const ConversionRule entityRenamed;
extern const ConversionRule entityMapped;
extern const ConversionRule supertype;
extern const ConversionRule plainElement;
extern const ConversionRule attributeRenamed;
extern const ConversionRule attributeMapped;
extern const ConversionRule valueIntroduced;
extern const ConversionRule enumeratorAsText;
extern const ConversionRule selectType;
extern const ConversionRule numberForm;
extern const ConversionRule notDefined;
extern const ConversionRule emptyText;
extern const ConversionRule userDefinedText;
extern const ConversionRule oneOfSeveral;
extern const ConversionRule equalMember;
extern const ConversionRule relatedType;
extern const ConversionRule noEntity;
extern const ConversionRule noUse;
extern const ConversionRule noAttribute;
extern const ConversionRule noEnumerator;
extern const ConversionRule noValue;
extern const ConversionRule textShortened;
extern const ConversionRule referenceLost;
extern const ConversionRule memberLost;
extern const ConversionRule requiredLost;
extern const ConversionRule requiredMissing;
extern const ConversionRule shapeLost;
} // namespace rules

} // namespace velkor::exchange
