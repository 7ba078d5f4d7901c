#include "velkor/rules/DerivedSlots.h"

#include "RuleTables.h"

namespace velkor {

std::vector<sdai::DerivedSlot> derivedSlots(const sdai::SchemaDefinition& schema) {
    std::vector<sdai::DerivedSlot> slots;
    const rules::RuleTables* tables = rules::ruleTables(schema.name());
    if (tables == nullptr) return slots;
    const rules::RuleStore store = rules::ruleStore();
    for (const rules::DerivedAttribute& derived : tables->derivedAttributes) {
        const std::string_view entity = store.text(derived.entity), name = store.text(derived.name);
        const sdai::EntityDefinition* definition = schema.entity(entity);
        if (definition != nullptr && definition->attributeIndex(name) >= 0) slots.push_back({entity, name});
    }
    return slots;
}

} // namespace velkor
