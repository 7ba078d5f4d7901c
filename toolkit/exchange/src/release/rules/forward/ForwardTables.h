/// The parts that the table of what newer releases say otherwise is put together from, and what they share.
#pragma once

#include "release/Rebuilding.h"

#include <initializer_list>
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

bool isUnset(std::string_view value);
/// Declared type of an attribute that the entity has.
const sdai::Type& attributeType(const sdai::EntityDefinition& entity, std::string_view attribute);
/// Entity of an instance of the source; null for what dangles or is not understood.
const sdai::EntityDefinition* entityOf(const sdai::Model& model, std::uint64_t id);
/// The same by a reference as the file has it.
const sdai::EntityDefinition* entityOf(const sdai::Model& model, std::string_view encoded);
/// Name of the entity of what an instance refers to; empty when nothing is understood there.
std::string_view entityNameAt(DXSdaiAppInstance& instance, std::string_view attribute);
/// An attribute of another instance of the source, as the file has it; "$" when there is none.
std::string_view encodedOf(const sdai::Model& model, std::uint64_t id, std::string_view attribute);
/// The ids that a value names, each once, in their order.
std::vector<std::uint64_t> idsOf(std::string_view encoded);

/// What Rebuilding::carried() gives. What the caller says of the instance in another way is not taken for dropped.
RecordBuilder carriedBut(Rebuilding& rebuilding, std::string_view entity,
                         std::initializer_list<std::string_view> handled = {});
/// An attribute of the instance in the form of one of the target's entity; false when there is nothing to set.
bool carry(Rebuilding& rebuilding, std::string_view from, RecordBuilder& record, std::string_view to);
/// An identifier that follows from that of the instance, as a literal.
std::string identifierBeside(Rebuilding& rebuilding, std::string_view what);
/// An object of the target that stands beside the instance and has its owner history.
RecordBuilder objectBeside(Rebuilding& rebuilding, std::string_view entity, std::string_view what);

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
