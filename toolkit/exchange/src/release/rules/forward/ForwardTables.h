/// The parts that the table of what newer releases say otherwise is put together from, and what makes properties of
/// attributes.
#pragma once

#include "release/rules/RuleHelpers.h"

#include <span>
#include <string>
#include <string_view>

namespace velkor::exchange::forward {

RuleTable processRules();
RuleTable objectRules();
RuleTable laterObjectRules();
RuleTable propertyRules();
RuleTable controlRules();
RuleTable referenceRules();
RuleTable costRules();
RuleTable presentationRules();
RuleTable enumeratorRules();

/// An attribute, spelled as its property is to be called, as a property of the target. Empty when it is unset or no
/// property says it.
std::string propertyOf(Rebuilding& rebuilding, std::string_view attribute, std::string_view name = {});
/// The same for several; what is set and no property says is noted as dropped.
std::vector<std::string> propertiesOf(Rebuilding& rebuilding, std::span<const std::string_view> attributes);
/// Property with a value of the target; a reference to it.
std::string addProperty(Rebuilding& rebuilding, std::string_view name, std::string nominal);
/// Relates a new property set to the instance.
void addPropertySet(Rebuilding& rebuilding, std::string_view name, const std::vector<std::string>& properties);

} // namespace velkor::exchange::forward
