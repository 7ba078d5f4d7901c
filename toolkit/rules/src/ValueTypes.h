/// What TYPEOF answers (ISO 10303-11, 15.25): the types of a value, with all that it is a value of as well.
#pragma once

#include "ValueReader.h"

#include <span>
#include <string_view>
#include <vector>

namespace velkor::rules {

class ValueTypes {
public:
    ValueTypes(const RuleProgram& program, const ValueReader& reader) : _program(program), _reader(reader) {}

    /// Whether a type of the dictionary is among the value's.
    bool includes(const Value& value, const sdai::Type& named) const;
    /// All of them in the dictionary: the entity and its supertypes, or the defined type and those that it is made of,
    /// and every select that takes one of these, at any depth.
    std::span<const sdai::Type* const> of(const Value& value);
    /// Names of the built-in types that the value is of.
    std::span<const std::string_view> builtIn(const Value& value) const noexcept;
    /// Null unless the value is an instance or an entity value.
    const sdai::EntityDefinition* entity(const Value& value) const;

private:
    static std::span<const std::string_view> builtIn(sdai::TypeKind kind) noexcept;

    using Types = std::vector<const sdai::Type*>;

    void addEntity(Types& types, const sdai::EntityDefinition& entity) const;
    void addDefined(Types& types, const sdai::DefinedType& type) const;

    const RuleProgram& _program;
    const ValueReader& _reader;
    // By position of the entity or defined type; empty until asked for.
    std::vector<Types> _entityTypes;
    std::vector<Types> _definedTypes;
};

} // namespace velkor::rules
