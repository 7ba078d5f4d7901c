/// The parts that the table of what older releases lack is put together from.
#pragma once

#include "release/Rebuilding.h"

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
std::span<const ValueRule> backwardObjectValues();
std::span<const DefaultRule> backwardDefaults();
std::span<const EnumeratorRule> backwardEnumerators();

/// The rule of a row of the table.
const ConversionRule& backwardRule(std::string_view name);

bool isUnset(std::string_view value);
/// Declared type of an attribute that the entity has.
const sdai::Type& attributeType(const sdai::EntityDefinition& entity, std::string_view attribute);
/// Whether a type may refer to an instance of an entity of the target.
bool takesEntity(const sdai::Type& to, std::string_view entity);
/// Entity of the source under an id; null for what dangles or is not understood.
const sdai::EntityDefinition* sourceEntity(const sdai::Model& model, std::uint64_t id);
/// An attribute of another instance of the source, as the file has it; "$" when there is none.
std::string encodedOf(const sdai::Model& model, std::uint64_t id, std::string_view attribute);
/// An identifier, as a literal, for an object that is made of the instance. Others than those of another file, as long
/// as the two have not the same project.
std::string newIdentifier(Rebuilding& rebuilding, std::string_view what);
/// Sets the identifier and the owner history of what is made of the instance.
void setRoot(Rebuilding& rebuilding, RecordBuilder& record, std::string_view what);

} // namespace velkor::exchange
