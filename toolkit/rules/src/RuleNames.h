/// How rules are called, and what they say, for people.
#pragma once

#include "RuleTables.h"
#include "velkor/rules/RuleCatalogue.h"

#include <string>

namespace velkor::rules {

/// Owner and label as the schema spells them, the owner alone when the rule has no label.
std::string nameOf(const RuleStore& store, const WhereRule& rule);
std::string nameOf(const RuleStore& store, const UniqueRule& rule);
std::string nameOf(const RuleStore& store, const InverseAttribute& attribute);

/// EXPRESS text with the release's name in qualified names.
std::string expressionOf(const RuleStore& store, const RuleTables& tables, TextId expression);

/// What must hold of the users of an inverse attribute: "1 IfcRelX refers to it by RelatedObjects".
std::string wordingOf(const RuleStore& store, const InverseAttribute& attribute);

/// Whether users can be too few or too many.
bool hasBounds(const InverseAttribute& attribute);
/// How many users there must be, for people: "1", "at most 1", "2 to 3".
std::string boundsText(const InverseAttribute& attribute);

/// A rule of a release: the list it stands in and its position there.
struct RulePlace {
    RuleKind kind;
    std::uint16_t index;
};

/// Every rule of a release, kind by kind.
std::vector<RulePlace> allPlaces(const RuleTables& tables);
std::string nameOf(const RuleStore& store, const RuleTables& tables, RulePlace place);
/// The rules that a name, as ruleNamed() understands it, stands for: none when it is unknown or ambiguous, more than
/// one only where the release itself gives two the same name.
std::vector<RulePlace> placesNamed(const RuleStore& store, const RuleTables& tables, std::string_view name);

} // namespace velkor::rules
