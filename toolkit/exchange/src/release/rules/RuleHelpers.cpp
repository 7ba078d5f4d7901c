#include "release/rules/RuleHelpers.h"

#include "identifiers/DerivedIdentifier.h"
#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <unordered_set>

namespace velkor::exchange {

const sdai::Type& attributeType(const sdai::EntityDefinition& entity, std::string_view attribute) {
    const auto place = static_cast<std::size_t>(entity.attributeIndex(attribute));
    return entity.attributes()[place].attribute->type();
}

const sdai::EntityDefinition* entityOf(const sdai::Model& model, std::uint64_t id) {
    const auto number = model.file().find(id);
    return number ? model.entityAt(*number) : nullptr;
}

const sdai::EntityDefinition* entityOf(const sdai::Model& model, std::string_view encoded) {
    return entityOf(model, sdai::decodeInstanceName(encoded));
}

std::string_view entityNameAt(DXSdaiAppInstance& instance, std::string_view attribute) {
    const sdai::EntityDefinition* entity = entityOf(instance.model(), instance.GetAttr(attribute).encoded());
    return entity == nullptr ? std::string_view() : entity->name();
}

std::string_view encodedOf(const sdai::Model& model, std::uint64_t id, std::string_view attribute) {
    const auto number = model.file().find(id);
    std::string_view text = number ? parameterOf(model, *number, attribute) : std::string_view();
    while (!text.empty() && (text.back() == ' ' || text.back() == '\n' || text.back() == '\r' || text.back() == '\t'))
        text.remove_suffix(1);
    return text.empty() ? sdai::omittedValue : text;
}

std::vector<std::uint64_t> idsOf(std::string_view encoded) {
    std::vector<std::uint64_t> ids;
    std::unordered_set<std::uint64_t> known;
    eachReference(encoded, [&](std::uint64_t id) {
        if (known.insert(id).second) ids.push_back(id);
    });
    return ids;
}

RecordBuilder carriedBut(Rebuilding& rebuilding, std::string_view entity,
                         std::initializer_list<std::string_view> handled) {
    for (const std::string_view attribute : handled) static_cast<void>(rebuilding.encoded(attribute));
    return rebuilding.carried(*rebuilding.target().entity(entity));
}

bool carry(Rebuilding& rebuilding, std::string_view from, RecordBuilder& record, std::string_view to) {
    const std::string_view value = rebuilding.encoded(from);
    if (isUnset(value) || record.entity().attributeIndex(to) < 0) return false;
    auto said =
        rebuilding.translated(value, attributeType(rebuilding.entity(), from), attributeType(record.entity(), to));
    return said && record.set(to, std::move(*said));
}

std::string identifierBeside(Rebuilding& rebuilding, std::string_view what) {
    std::string text(rebuilding.encoded("GLOBALID"));
    ((text += ' ') += reference(rebuilding.id())) += ' ';
    return literal(derivedIdentifier(text += what));
}

RecordBuilder objectBeside(Rebuilding& rebuilding, std::string_view entity, std::string_view what) {
    RecordBuilder record(rebuilding.target(), entity);
    record.set("GLOBALID", identifierBeside(rebuilding, what));
    record.set("OWNERHISTORY", std::string(rebuilding.encoded("OWNERHISTORY")));
    return record;
}

} // namespace velkor::exchange
