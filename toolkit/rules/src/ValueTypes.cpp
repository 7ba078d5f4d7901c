#include "ValueTypes.h"

#include <algorithm>
#include <array>

namespace velkor::rules {

namespace {

/// Whether a select takes a value of a defined type or of one that it is made of.
bool accepts(const sdai::SelectType& select, const sdai::DefinedType& type) noexcept {
    for (const auto* made = &type; made != nullptr; made = made->underlying().asDefined()) {
        if (select.accepts(*made)) return true;
    }
    return false;
}

} // namespace

const sdai::EntityDefinition* ValueTypes::entity(const Value& value) const {
    if (value.kind() == ValueKind::Instance) return _program.model().entityAt(value.instance());
    return value.kind() == ValueKind::Entity ? value.entity().entity : nullptr;
}

bool ValueTypes::includes(const Value& value, const sdai::Type& named) const {
    const sdai::SelectType* select = named.resolved().asSelect();
    if (const sdai::EntityDefinition* is = entity(value)) {
        const sdai::EntityDefinition* wanted = named.asEntity();
        return wanted != nullptr ? is->isKindOf(*wanted) : select != nullptr && select->accepts(*is);
    }
    const sdai::DefinedType* own = _reader.definedType(value);
    if (own == nullptr) return false;
    if (select != nullptr) return accepts(*select, *own);
    for (const auto* made = own; made != nullptr; made = made->underlying().asDefined()) {
        if (made == &named) return true;
    }
    return false;
}

std::span<const sdai::Type* const> ValueTypes::of(const Value& value) {
    if (const sdai::EntityDefinition* is = entity(value)) {
        _entityTypes.resize(_program.model().schema().entities().size());
        Types& types = _entityTypes[is->position()];
        if (types.empty()) addEntity(types, *is);
        return types;
    }
    const sdai::DefinedType* own = _reader.definedType(value);
    if (own == nullptr) return {};
    _definedTypes.resize(_program.model().schema().definedTypes().size());
    Types& types = _definedTypes[own->position()];
    if (types.empty()) addDefined(types, *own);
    return types;
}

void ValueTypes::addEntity(Types& types, const sdai::EntityDefinition& entity) const {
    for (const auto* at = &entity; at != nullptr; at = at->supertype()) types.push_back(at);
    for (const sdai::DefinedType* type : _program.model().schema().definedTypes()) {
        const sdai::SelectType* select = type->resolved().asSelect();
        if (select != nullptr && select->accepts(entity)) types.push_back(type);
    }
}

void ValueTypes::addDefined(Types& types, const sdai::DefinedType& type) const {
    for (const auto* made = &type; made != nullptr; made = made->underlying().asDefined()) types.push_back(made);
    for (const sdai::DefinedType* candidate : _program.model().schema().definedTypes()) {
        const sdai::SelectType* select = candidate->resolved().asSelect();
        if (select != nullptr && accepts(*select, type)) types.push_back(candidate);
    }
}

std::span<const std::string_view> ValueTypes::builtIn(const Value& value) const noexcept {
    static constexpr std::array<std::string_view, 4> aggregates{"LIST", "SET", "BAG", "ARRAY"};
    // The declared type counts, not the value: .F. and .U. of a LOGICAL are of the same types.
    if (const sdai::DefinedType* own = _reader.definedType(value); own != nullptr && own->resolved().isSimple()) {
        return builtIn(own->resolved().kind());
    }
    switch (value.kind()) {
    case ValueKind::Integer:
        return builtIn(sdai::TypeKind::Integer);
    case ValueKind::Real:
        return builtIn(sdai::TypeKind::Real);
    case ValueKind::Logical:
        return builtIn(value.logical() == Logical::Unknown ? sdai::TypeKind::Logical : sdai::TypeKind::Boolean);
    case ValueKind::String:
    case ValueKind::TypeName:
        return builtIn(sdai::TypeKind::String);
    case ValueKind::Binary:
        return builtIn(sdai::TypeKind::Binary);
    case ValueKind::Aggregate: {
        const auto kind = static_cast<std::size_t>(value.aggregate().kind);
        return kind < aggregates.size() ? std::span(aggregates).subspan(kind, 1) : std::span<const std::string_view>();
    }
    default:
        return {};
    }
}

std::span<const std::string_view> ValueTypes::builtIn(sdai::TypeKind kind) noexcept {
    static constexpr std::array<std::string_view, 3> integer{"INTEGER", "REAL", "NUMBER"};
    static constexpr std::array<std::string_view, 2> truth{"BOOLEAN", "LOGICAL"};
    static constexpr std::array<std::string_view, 1> string{"STRING"};
    static constexpr std::array<std::string_view, 1> binary{"BINARY"};
    switch (kind) {
    case sdai::TypeKind::Integer:
        return integer;
    case sdai::TypeKind::Real:
        return std::span(integer).subspan(1);
    case sdai::TypeKind::Boolean:
        return truth;
    case sdai::TypeKind::Logical:
        return std::span(truth).subspan(1);
    case sdai::TypeKind::String:
        return string;
    case sdai::TypeKind::Binary:
        return binary;
    default:
        return {};
    }
}

} // namespace velkor::rules
