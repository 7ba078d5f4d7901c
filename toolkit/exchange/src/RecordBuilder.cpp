#include "RecordBuilder.h"

#include "velkor/sdai/Part21Encoding.h"

namespace velkor::exchange {

RecordBuilder::RecordBuilder(const ReleaseSchema& schema, const sdai::EntityDefinition& entity) : _entity(&entity) {
    const std::size_t count = entity.attributes().size();
    _values.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        _values.emplace_back(schema.isDerived(entity, i) ? sdai::derivedValue : sdai::omittedValue);
}

RecordBuilder::RecordBuilder(const ReleaseSchema& schema, std::string_view entity)
    : RecordBuilder(schema, *schema.entity(entity)) {}

bool RecordBuilder::set(std::string_view attribute, std::string encoded) {
    const int index = _entity->attributeIndex(attribute);
    if (index < 0 || _values[static_cast<std::size_t>(index)] == sdai::derivedValue) return false;
    _values[static_cast<std::size_t>(index)] = std::move(encoded);
    return true;
}

std::string_view RecordBuilder::value(std::string_view attribute) const {
    const int index = _entity->attributeIndex(attribute);
    return index < 0 ? sdai::omittedValue : std::string_view(_values[static_cast<std::size_t>(index)]);
}

std::string RecordBuilder::text() const {
    return std::string(_entity->name()) + listOf(_values);
}

std::string reference(std::uint64_t id) {
    std::string text;
    return sdai::appendReference(text, id) ? text : std::string(sdai::omittedValue);
}

std::string literal(std::string_view utf8) {
    std::string text;
    sdai::appendString(text, utf8);
    return text;
}

std::string enumerator(std::string_view name) {
    std::string text;
    return sdai::appendEnumeration(text, name) ? text : std::string(sdai::omittedValue);
}

std::string real(double value) {
    std::string text;
    return sdai::appendReal(text, value) ? text : "0.";
}

std::string integer(std::int64_t value) {
    std::string text;
    sdai::appendInteger(text, value);
    return text;
}

std::string listOf(const std::vector<std::string>& members) {
    std::string text(1, '(');
    for (const std::string& member : members) {
        if (text.size() > 1) text += ',';
        text += member;
    }
    return text += ')';
}

std::string typed(std::string_view type, std::string_view value) {
    std::string text(type);
    ((text += '(') += value) += ')';
    return text;
}

} // namespace velkor::exchange
