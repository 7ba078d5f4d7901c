/// The rules of all releases as constant data, as velkor-rulegen writes them: one store of texts, numbers and code that
/// all share, and a unit per release that says what it states. Positions in place of pointers keep the data free of
/// relocations.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace velkor::rules {

/// A position in RuleStore::textPlaces.
using TextId = std::uint16_t;
/// In place of a text where there is none.
inline constexpr TextId noText = 0xFFFF;

struct RuleStore {
    /// Texts, one behind the other, each with a zero byte at its end. Names of types come first, in upper case, then
    /// names of attributes, then all others.
    const char* texts;
    /// Where each text begins; one place more than there are texts.
    std::span<const std::uint32_t> textPlaces;
    std::uint16_t typeNames;
    std::uint16_t attributeNames;
    std::span<const std::int64_t> integers;
    std::span<const double> reals;
    std::span<const std::uint16_t> code;

    std::string_view text(TextId id) const noexcept {
        return {texts + textPlaces[id], textPlaces[id + 1U] - textPlaces[id] - 1};
    }
};

/// A WHERE clause of an entity, a defined type or a global RULE.
struct WhereRule {
    /// Upper case: the entity, the type, or the global rule.
    TextId owner;
    /// As spelled in the source.
    TextId ownerName;
    /// Label of the clause as spelled in the source; empty when it has none.
    TextId label;
    /// EXPRESS text on one line. Stands for the schema's name in qualified names: "\x01" ('\x01.IFCWALL').
    TextId expression;
    /// What must hold, in words for people: "Depth is above 0".
    TextId wording;
    /// First unit of the code, which leaves a LOGICAL.
    std::uint32_t code;
};

/// A derived attribute with its expression. One that redeclares an explicit attribute has that one's name: an instance
/// has
/// "*" there.
struct DerivedAttribute {
    TextId entity;
    TextId name;
    std::uint32_t code;
};

struct InverseAttribute {
    TextId entity;
    TextId name;
    /// Who refers, and by which attribute.
    TextId user;
    TextId attribute;
    std::int32_t lower;
    /// -1 when unbounded.
    std::int32_t upper;
    /// A SET or BAG; otherwise its value is the one user itself.
    bool isAggregate;
    bool isBag;
    /// Entity and name as spelled in the source, and the declaration on one line, "SET [0:1] OF IfcRelVoidsElement FOR
    /// RelatedBuildingElement"; noText where they are not carried.
    TextId entityName = noText;
    TextId spelledName = noText;
    TextId expression = noText;
};

/// A UNIQUE clause. Its attributes are store texts of RuleTables::uniqueAttributes.
struct UniqueRule {
    TextId entity;
    TextId entityName;
    TextId label;
    /// "GlobalId", "UsageName, OfProduct": as spelled.
    TextId expression;
    std::uint16_t firstAttribute;
    std::uint16_t attributeCount;
};

struct Function {
    TextId name;
    std::uint16_t parameterCount;
    std::uint32_t code;
};

/// One release. All lists are sorted by their first member.
struct RuleTables {
    std::string_view schema;
    std::span<const WhereRule> entityRules;
    std::span<const WhereRule> typeRules;
    std::span<const WhereRule> globalRules;
    std::span<const UniqueRule> uniqueRules;
    std::span<const TextId> uniqueAttributes;
    std::span<const InverseAttribute> inverseAttributes;
    std::span<const DerivedAttribute> derivedAttributes;
    std::span<const Function> functions;
};

RuleStore ruleStore() noexcept;

/// The rules of a release by the name of its dictionary; null when there are none of the name.
const RuleTables* ruleTables(std::string_view schema) noexcept;

} // namespace velkor::rules
