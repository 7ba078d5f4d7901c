/// Records of an entity, made by the names of attributes.
///
///     RecordBuilder point(schema, "IFCCARTESIANPOINT");
///     point.set("COORDINATES", "(0.,0.)");
///     edit.add(point.text());
#pragma once

#include "ReleaseSchema.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::exchange {

class RecordBuilder {
public:
    /// Derived attributes are "*", the others unset. The entity must be one of the schema.
    RecordBuilder(const ReleaseSchema& schema, const sdai::EntityDefinition& entity);
    RecordBuilder(const ReleaseSchema& schema, std::string_view entity);

    const sdai::EntityDefinition& entity() const noexcept { return *_entity; }
    /// An encoded value (Part21Encoding.h). False, and nothing done, when the entity has no explicit attribute of the
    /// name, letter case ignored, or it is derived.
    bool set(std::string_view attribute, std::string encoded);
    /// "$" as long as nothing was set.
    std::string_view value(std::string_view attribute) const;
    std::string text() const;

private:
    const sdai::EntityDefinition* _entity;
    std::vector<std::string> _values;
};

/// Encoded values, in one expression.
std::string reference(std::uint64_t id);
std::string literal(std::string_view utf8);
std::string enumerator(std::string_view name);
/// A real that is finite; "0." for one that is not.
std::string real(double value);
std::string integer(std::int64_t value);
std::string listOf(const std::vector<std::string>& members);
/// IFCLABEL('x').
std::string typed(std::string_view type, std::string_view value);

} // namespace velkor::exchange
