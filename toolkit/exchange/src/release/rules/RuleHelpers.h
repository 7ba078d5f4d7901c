/// What rules of several tables do alike.
#pragma once

#include "RecordText.h"
#include "release/Rebuilding.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::exchange {

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

} // namespace velkor::exchange
