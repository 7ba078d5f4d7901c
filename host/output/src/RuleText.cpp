#include "output/RuleText.h"

#include "output/ExpressText.h"
#include "terminal/DisplayText.h"
#include "terminal/Page.h"
#include "terminal/TextTable.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

const char* word(RuleKind kind) {
    switch (kind) {
    case RuleKind::Where:
        return "where";
    case RuleKind::Type:
        return "type";
    case RuleKind::Global:
        return "global";
    case RuleKind::Unique:
        return "unique";
    case RuleKind::Inverse:
        return "inverse";
    }
    return "";
}

std::string_view meaning(const RuleFacts& rule) {
    return rule.wording.empty() || rule.kind == RuleKind::Inverse ? rule.expression : rule.wording;
}

std::string noSuchRule(std::string_view schema, std::string_view name) {
    const std::string told = std::string(schema) + " has no rule " + text::quoted(name);
    if (const auto stated = rulesOf(schema, name); !stated.empty())
        return told + "; it states: " + text::joined(stated, ", ", &RuleFacts::name);
    std::vector<std::string> alike;
    const std::string label = '.' + std::string(name);
    for (const RuleFacts& rule : rulesOf(schema)) {
        const std::string_view whole = rule.name;
        if (whole.size() > label.size() && text::equalIgnoringCase(whole.substr(whole.size() - label.size()), label))
            alike.push_back(rule.name);
    }
    if (alike.size() > 1) {
        return text::counted(alike.size(), "rule", "rules") + " of " + std::string(schema) + " are called " +
               text::quoted(name) + "; expected the owner as well: " + alike.front();
    }
    const auto nearest = nearestRules(schema, name);
    return nearest.empty() ? told : told + "; nearest: " + text::joined(nearest);
}

void writeRules(TextSink out, const std::vector<RuleFacts>& rules) {
    TextTable table({{"rule"}, {"kind"}, {"expected"}});
    for (const RuleFacts& rule : rules) table.add({rule.name, word(rule.kind), meaning(rule)});
    if (table.empty())
        out << "no rules\n";
    else
        table.write(out);
}

void writeRule(TextSink out, std::string_view schema, const RuleFacts& rule) {
    constexpr std::size_t indent = 4;
    const auto paragraph = [&](std::string_view text) {
        for (const std::string& line : wrapped(text, Page::widthOn(out), std::string_view::npos)) out << line << '\n';
    };
    out << rule.name << " of " << schema << ", " << name(rule.kind) << '\n';
    if (!rule.wording.empty()) paragraph("expected: " + rule.wording);
    out << '\n';
    for (const std::string& line : expressLines(rule.expression, Page::widthOn(out) - indent))
        out << "    " << line << '\n';
    if (rule.fault.empty()) return;
    out << '\n';
    paragraph("known to be faulty, so that its findings are warnings: " + rule.fault);
    if (!rule.faultSource.empty()) paragraph("said in: " + rule.faultSource);
}

Json ruleJson(const RuleFacts& rule) {
    return {{"kind", word(rule.kind)},
            {"name", rule.name},
            {"owner", rule.owner},
            {"expression", rule.expression},
            {"wording", textOrNull(rule.wording)},
            {"fault", textOrNull(rule.fault)},
            {"fault_source", textOrNull(rule.faultSource)}};
}

Json rulesJson(const std::vector<RuleFacts>& rules) {
    Json result = Json::array();
    for (const RuleFacts& rule : rules) result.push_back(ruleJson(rule));
    return result;
}

Json countsJson(const RuleCounts& counts) {
    return {{"where", counts.where},   {"type", counts.type},       {"global", counts.global},
            {"unique", counts.unique}, {"inverse", counts.inverse}, {"total", counts.total()}};
}

} // namespace velkor::host
