#include "output/DictionaryDiffText.h"

#include "output/RuleText.h"
#include "terminal/TextTable.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace velkor::host {

namespace {

Json changesJson(const std::vector<DictionaryDiff::Change>& changes) {
    Json result = Json::array();
    for (const auto& change : changes) {
        result.push_back({{"name", change.name}, {"before", change.before}, {"after", change.after}});
    }
    return result;
}

Json itemsJson(const std::vector<DictionaryDiff::Item>& items) {
    Json result = Json::array();
    for (const auto& item : items) result.push_back({{"name", item.name}, {"type", item.description}});
    return result;
}

void writeNames(TextSink out, const char* title, const std::vector<std::string_view>& names) {
    if (names.empty()) return;
    out << '\n' << title << '\n';
    for (const std::string_view name : names) out << "  " << name << '\n';
}

void writeChanges(TextSink out, const std::vector<DictionaryDiff::Change>& changes) {
    for (const auto& change : changes) {
        out << "    ~ " << change.name << ": " << change.before << " -> " << change.after << '\n';
    }
}

void writeRules(TextSink out, const char* title, const std::vector<RuleFacts>& rules) {
    if (rules.empty()) return;
    out << '\n' << title << '\n';
    for (const RuleFacts& rule : rules) out << "  " << rule.name << ": " << meaning(rule) << '\n';
}

void writeRuleChanges(TextSink out, const DictionaryDiff& diff) {
    writeRules(out, "added rules", diff.addedRules);
    writeRules(out, "removed rules", diff.removedRules);
    if (!diff.renamedRules.empty()) out << "\nrenamed rules\n";
    for (const auto& rule : diff.renamedRules) out << "  " << rule.before << " -> " << rule.after << '\n';
    if (!diff.changedRules.empty()) out << "\nchanged rules\n";
    for (const auto& rule : diff.changedRules)
        out << "  " << rule.name << "\n    - " << rule.before << "\n    + " << rule.after << '\n';
}

} // namespace

void writeDiff(TextSink out, std::string_view before, std::string_view after, const DictionaryDiff& diff) {
    out << before << " -> " << after << '\n'
        << "entities: " << diff.addedEntities.size() << " added, " << diff.removedEntities.size() << " removed, "
        << diff.changedEntities.size() << " changed\n"
        << "types: " << diff.addedTypes.size() << " added, " << diff.removedTypes.size() << " removed, "
        << diff.changedTypes.size() << " changed\n"
        << "rules: " << diff.addedRules.size() << " added, " << diff.removedRules.size() << " removed, "
        << diff.renamedRules.size() << " renamed, " << diff.changedRules.size() << " changed\n";
    writeNames(out, "added entities", diff.addedEntities);
    writeNames(out, "removed entities", diff.removedEntities);
    if (!diff.changedEntities.empty()) out << "\nchanged entities\n";
    for (const auto& entity : diff.changedEntities) {
        out << "  " << entity.name << '\n';
        writeChanges(out, entity.properties);
        for (const auto& item : entity.addedAttributes)
            out << "    + " << item.name << ": " << item.description << '\n';
        for (const auto& item : entity.removedAttributes) {
            out << "    - " << item.name << ": " << item.description << '\n';
        }
        writeChanges(out, entity.changedAttributes);
        if (entity.reordered) out << "    ~ attributes in another order\n";
    }
    writeNames(out, "added types", diff.addedTypes);
    writeNames(out, "removed types", diff.removedTypes);
    if (!diff.changedTypes.empty()) out << "\nchanged types\n";
    for (const auto& type : diff.changedTypes) {
        out << "  " << type.name << " (" << type.kind << ")\n";
        writeChanges(out, type.definition);
        for (const std::string& name : type.added) out << "    + " << name << '\n';
        for (const std::string& name : type.removed) out << "    - " << name << '\n';
        if (type.reordered) out << "    ~ in another order\n";
    }
    writeRuleChanges(out, diff);
}

Json diffJson(std::string_view before, std::string_view after, const DictionaryDiff& diff) {
    Json entities = Json::array(), types = Json::array();
    for (const auto& entity : diff.changedEntities) {
        entities.push_back({{"name", entity.name},
                            {"properties", changesJson(entity.properties)},
                            {"added_attributes", itemsJson(entity.addedAttributes)},
                            {"removed_attributes", itemsJson(entity.removedAttributes)},
                            {"changed_attributes", changesJson(entity.changedAttributes)},
                            {"reordered", entity.reordered}});
    }
    for (const auto& type : diff.changedTypes) {
        types.push_back({{"name", type.name},
                         {"kind", type.kind},
                         {"definition", changesJson(type.definition)},
                         {"added", type.added},
                         {"removed", type.removed},
                         {"reordered", type.reordered}});
    }
    Json renamed = Json::array();
    for (const auto& rule : diff.renamedRules) renamed.push_back({{"before", rule.before}, {"after", rule.after}});
    return {{"before", before},
            {"after", after},
            {"entities", {{"added", diff.addedEntities}, {"removed", diff.removedEntities}, {"changed", entities}}},
            {"types", {{"added", diff.addedTypes}, {"removed", diff.removedTypes}, {"changed", types}}},
            {"rules",
             {{"added", rulesJson(diff.addedRules)},
              {"removed", rulesJson(diff.removedRules)},
              {"renamed", std::move(renamed)},
              {"changed", changesJson(diff.changedRules)}}}};
}

} // namespace velkor::host
