#include "identifiers/DerivedIdentifier.h"
#include "RecordText.h"
#include "release/rules/BackwardTables.h"

#include "velkor/sdai/Part21Encoding.h"

#include <vector>

namespace velkor::exchange {

namespace {

template <class Rule>
std::vector<Rule> joined(std::initializer_list<std::span<const Rule>> parts) {
    std::vector<Rule> all;
    for (const std::span<const Rule> part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// Identifier of the project of the source; empty when there is none.
const std::string& projectIdentifier(Rebuilding& rebuilding) {
    struct Identifier {
        std::string text;
    };
    const sdai::Model& model = rebuilding.source();
    // What the model as a whole has is remembered under ids that no instance has.
    std::any& known = rebuilding.remembered(~std::uint64_t{0});
    if (const auto* identifier = std::any_cast<Identifier>(&known)) return identifier->text;
    const std::vector<std::uint32_t> projects = model.numbersOf("IFCPROJECT");
    std::string text = projects.empty() ? std::string() : textOf(parameterOf(model, projects.front(), "GLOBALID"));
    known = Identifier{std::move(text)};
    return std::any_cast<Identifier>(&known)->text;
}

} // namespace

RuleTable backwardRules() {
    static const std::vector<RebuildRule> rebuilds =
        joined({backwardTimeRules(), backwardReferenceRules(), backwardCoordinateRules(), backwardObjectRules()});
    return {.rebuild = rebuilds,
            .values = backwardReferenceValues(),
            .defaults = backwardDefaults(),
            .enumerators = backwardEnumerators()};
}

bool takesEntity(const sdai::Type& to, std::string_view entity) {
    const sdai::Type& resolved = to.resolved();
    if (const auto* wanted = resolved.asEntity()) {
        const sdai::EntityDefinition* found = wanted->schema().entity(entity);
        return found != nullptr && found->isKindOf(*wanted);
    }
    const auto* select = resolved.asSelect();
    const sdai::EntityDefinition* found = select == nullptr ? nullptr : select->definedType().schema().entity(entity);
    return found != nullptr && select->accepts(*found);
}

std::string newIdentifier(Rebuilding& rebuilding, std::string_view what) {
    std::string text(projectIdentifier(rebuilding));
    ((text += ' ') += reference(rebuilding.id())) += ' ';
    return literal(derivedIdentifier(text += what));
}

void setRoot(Rebuilding& rebuilding, RecordBuilder& record, std::string_view what) {
    record.set("GLOBALID", newIdentifier(rebuilding, what));
    if (!isUnset(record.value("OWNERHISTORY"))) return;
    for (const DefaultRule& rule : requiredValueRules().defaults)
        if (rule.attribute == "OWNERHISTORY")
            if (auto history = rule.make(rebuilding)) record.set("OWNERHISTORY", std::move(*history));
}

} // namespace velkor::exchange
