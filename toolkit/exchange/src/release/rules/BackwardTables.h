/// The parts that the table of what older releases lack is put together from.
#pragma once

#include "release/rules/RuleHelpers.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace velkor::exchange {

std::span<const RebuildRule> backwardTimeRules();
std::span<const RebuildRule> backwardReferenceRules();
std::span<const ValueRule> backwardReferenceValues();
std::span<const RebuildRule> backwardCoordinateRules();
std::span<const RebuildRule> backwardObjectRules();
std::span<const DefaultRule> backwardDefaults();
std::span<const EnumeratorRule> backwardEnumerators();

/// Whether a type may refer to an instance of an entity of the target.
bool takesEntity(const sdai::Type& to, std::string_view entity);
/// An identifier, as a literal, for an object that is made of the instance. Others than those of another file, as long
/// as the two have not the same project.
std::string newIdentifier(Rebuilding& rebuilding, std::string_view what);
/// Sets the identifier and the owner history of what is made of the instance.
void setRoot(Rebuilding& rebuilding, RecordBuilder& record, std::string_view what);

} // namespace velkor::exchange
