#include "velkor/sdai/Dictionary.h"

#include "Names.h"
#include "velkor/text/Wording.h"

namespace velkor::sdai {

namespace {

std::string_view nameOf(const Type& type) noexcept {
    if (const DefinedType* definedType = type.asDefined()) return definedType->name();
    const EntityDefinition* entity = type.asEntity();
    return entity ? entity->name() : std::string_view();
}

std::string simpleText(const SimpleType& type) {
    std::string result;
    switch (type.kind()) {
    case TypeKind::Integer:
        return "INTEGER";
    case TypeKind::Boolean:
        return "BOOLEAN";
    case TypeKind::Logical:
        return "LOGICAL";
    // The width of a REAL is its size in bytes, which EXPRESS does not state.
    case TypeKind::Real:
        return "REAL";
    case TypeKind::Binary:
        result = "BINARY";
        break;
    default:
        result = "STRING";
        break;
    }
    if (type.width() != 0) result += '(' + std::to_string(type.width()) + ')';
    if (type.isFixed()) result += " FIXED";
    return result;
}

std::string aggregateText(const AggregateType& type) {
    const char* keyword = type.kind() == TypeKind::List ? "LIST" : type.kind() == TypeKind::Set ? "SET" : "ARRAY";
    std::string result = std::string(keyword) + " [" + std::to_string(type.lowerBound()) + ':';
    // An upper bound of 0 is written for an expression, whose value is not known here.
    result += type.upperBound() == -1 || type.upperBound() == 0 ? "?" : std::to_string(type.upperBound());
    result += "] OF ";
    if (type.hasOptionalElements()) result += "OPTIONAL ";
    if (type.hasUniqueElements()) result += "UNIQUE ";
    return result;
}

template <class Items, class Name>
std::string listText(const char* keyword, const Items& items, Name&& name) {
    return std::string(keyword) + " (" + text::joined(items, ", ", name) + ')';
}

} // namespace

const SimpleType* Type::asSimple() const noexcept {
    return isSimple() ? static_cast<const SimpleType*>(this) : nullptr;
}

const DefinedType* Type::asDefined() const noexcept {
    return _kind == TypeKind::Defined ? static_cast<const DefinedType*>(this) : nullptr;
}

const EnumerationType* Type::asEnumeration() const noexcept {
    return _kind == TypeKind::Enumeration ? static_cast<const EnumerationType*>(this) : nullptr;
}

const SelectType* Type::asSelect() const noexcept {
    return _kind == TypeKind::Select ? static_cast<const SelectType*>(this) : nullptr;
}

const AggregateType* Type::asAggregate() const noexcept {
    return isAggregate() ? static_cast<const AggregateType*>(this) : nullptr;
}

const EntityDefinition* Type::asEntity() const noexcept {
    return _kind == TypeKind::Entity ? static_cast<const EntityDefinition*>(this) : nullptr;
}

const Type& Type::resolved() const noexcept {
    const DefinedType* definedType = asDefined();
    return definedType ? *definedType->_resolved : *this;
}

std::string Type::expressText() const {
    std::string result;
    const Type* type = this;
    for (; type->isAggregate(); type = &type->asAggregate()->element()) result += aggregateText(*type->asAggregate());
    if (const SimpleType* simple = type->asSimple()) return result + simpleText(*simple);
    if (const EnumerationType* enumeration = type->asEnumeration()) {
        return result + listText("ENUMERATION OF", enumeration->values(), [](std::string_view value) { return value; });
    }
    if (const SelectType* select = type->asSelect()) {
        return result + listText("SELECT", select->items(), [](const Type* item) { return nameOf(*item); });
    }
    return result.append(nameOf(*type));
}

int EnumerationType::position(std::string_view name) const noexcept {
    return names::find(_positions, name, [this](int i) { return _values[static_cast<std::size_t>(i)]; });
}

std::string_view EnumerationType::text(int positionFrom1) const noexcept {
    const auto position = static_cast<std::size_t>(positionFrom1) - 1;
    return position < _values.size() ? _values[position] : std::string_view();
}

bool SelectType::accepts(const EntityDefinition& entity) const noexcept {
    if (&entity.schema() != &_definedType->schema()) return false;
    const std::uint32_t bit = entity._first;
    return (_accepted[bit / 64] >> bit % 64 & 1) != 0;
}

bool SelectType::accepts(const DefinedType& type) const noexcept {
    const SchemaDefinition& schema = _definedType->schema();
    if (&type.schema() != &schema) return false;
    const std::size_t bit = schema.entities().size() + type.position();
    return (_accepted[bit / 64] >> bit % 64 & 1) != 0;
}

bool EntityDefinition::isKindOf(std::string_view ancestorName) const noexcept {
    const EntityDefinition* ancestor = _schema->entity(ancestorName);
    return ancestor != nullptr && isKindOf(*ancestor);
}

int EntityDefinition::place(std::string_view name, std::uint32_t hash) const noexcept {
    return names::find(_names, hash, name, [this](int i) {
        const auto position = static_cast<std::size_t>(i);
        return position < _slots.size() ? _slots[position].attribute->name()
                                        : _derived[position - _slots.size()]->name();
    });
}

int EntityDefinition::attributeIndex(std::string_view name) const noexcept {
    const int index = place(name, names::hash(name));
    return index < static_cast<int>(_slots.size()) ? index : -1;
}

const Attribute* EntityDefinition::attribute(std::string_view name) const noexcept {
    const int index = place(name, names::hash(name));
    if (index < 0) return nullptr;
    const auto position = static_cast<std::size_t>(index);
    return position < _slots.size() ? _slots[position].attribute : _derived[position - _slots.size()];
}

const Type* SchemaDefinition::named(std::string_view name) const noexcept {
    const int position =
        names::find(_names, name, [this](int i) { return nameOf(*_named[static_cast<std::size_t>(i)]); });
    return position < 0 ? nullptr : _named[static_cast<std::size_t>(position)];
}

const EntityDefinition* SchemaDefinition::entity(std::string_view name) const noexcept {
    const Type* type = named(name);
    return type ? type->asEntity() : nullptr;
}

const DefinedType* SchemaDefinition::definedType(std::string_view name) const noexcept {
    const Type* type = named(name);
    return type ? type->asDefined() : nullptr;
}

} // namespace velkor::sdai
