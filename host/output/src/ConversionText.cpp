#include "output/ConversionText.h"

#include "output/Csv.h"
#include "terminal/DisplayText.h"
#include "terminal/Page.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

constexpr std::size_t countIndent = 4, ruleIndent = 20;

std::string upperFirst(std::string_view word) {
    std::string text(word);
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 32);
    return text;
}

std::string counts(const StepReport& step) {
    std::vector<std::string> words;
    const auto say = [&words](std::uint64_t number, std::string_view what) {
        if (number == 0) return;
        std::string text = text::grouped(number);
        words.push_back((text += ' ') += what);
    };
    say(step.kept, "kept");
    say(step.converted, "converted");
    say(step.rebuilt, "rebuilt");
    say(step.lost, "lost");
    say(step.added, "added");
    return words.empty() ? "no instances" : text::joined(words);
}

Page::Style styleOf(Effect effect) {
    return effect == Effect::Lost ? Page::Style::Bad : Page::Style::Plain;
}

/// What is lost is what people look for, then what was not done.
int rank(Effect effect) {
    switch (effect) {
    case Effect::Lost:
        return 0;
    case Effect::Kept:
        return 1;
    case Effect::Rebuilt:
        return 2;
    case Effect::Converted:
        break;
    }
    return 3;
}

std::string placeText(const Change& change) {
    if (change.id == 0) return change.detail;
    std::string text(1, '#');
    text += std::to_string(change.id);
    if (change.line != 0) (text += " in line ") += std::to_string(change.line);
    (text += ", ") += change.entity;
    return change.detail.empty() ? text : (text += ": ") += change.detail;
}

void writePlaces(Page& page, const RuleUse& use) {
    for (const Change& change : use.first) page.paragraph(placeText(change), ruleIndent + 2, Page::Style::Dim);
    if (use.count <= use.first.size()) return;
    const std::string others = text::grouped(use.count - use.first.size());
    page.paragraph("and at " + others + " more (--limit shows more)", ruleIndent + 2, Page::Style::Dim);
}

void writeUse(Page& page, const RuleUse& use, bool allPlaces) {
    const bool isWarning = rank(use.rule->effect) < 2;
    std::string text(use.rule->what);
    ((text += " [") += use.rule->name) += ']';
    const auto lines = wrapped(text, page.width() - ruleIndent, std::string_view::npos);
    const std::string label = padded(word(use.rule->effect), 10) + rightAligned(text::grouped(use.count), 6) + "  ";
    for (std::size_t i = 0; i < lines.size(); ++i) {
        page.line({Page::Span(i == 0 ? label : std::string(label.size(), ' '), styleOf(use.rule->effect)),
                   Page::Span(lines[i])});
    }
    if (isWarning) page.paragraph("why: " + std::string(use.rule->reason), ruleIndent);
    if (isWarning || allPlaces) writePlaces(page, use);
}

void writeStep(Page& page, const StepReport& step, bool allPlaces) {
    page.section(upperFirst(step.step), counts(step), step.lost > 0 ? Page::Style::Bad : Page::Style::Plain);
    std::vector<const RuleUse*> uses;
    for (const RuleUse& use : step.uses) uses.push_back(&use);
    std::ranges::stable_sort(uses, {}, [](const RuleUse* use) { return rank(use->rule->effect); });
    for (const RuleUse* use : uses) writeUse(page, *use, allPlaces);
}

std::string verdict(const FullReport& report) {
    if (report.steps.empty()) return "a copy";
    if (report.isLossless()) return "nothing lost";
    std::uint64_t losses = 0;
    for (const StepReport& step : report.steps)
        for (const RuleUse& use : step.uses) losses += use.rule->effect == Effect::Lost ? use.count : 0;
    return text::counted(std::max<std::uint64_t>(losses, 1), "loss", "losses");
}

Json changeJson(const Change& change) {
    return {{"instance", change.id == 0 ? Json() : Json(change.id)},
            {"line", change.line == 0 ? Json() : Json(change.line)},
            {"entity", textOrNull(change.entity)},
            {"detail", textOrNull(change.detail)}};
}

Json ruleJson(const ConversionRule& rule) {
    return {{"rule", rule.name}, {"effect", word(rule.effect)}, {"what", rule.what}, {"reason", rule.reason}};
}

Json useJson(const RuleUse& use) {
    Json result = ruleJson(*use.rule), places = Json::array();
    for (const Change& change : use.first) places.push_back(changeJson(change));
    result["count"] = use.count;
    result["first"] = std::move(places);
    return result;
}

Json stepJson(const StepReport& step) {
    Json uses = Json::array();
    for (const RuleUse& use : step.uses) uses.push_back(useJson(use));
    return {{"step", step.step}, {"kept", step.kept},   {"converted", step.converted}, {"rebuilt", step.rebuilt},
            {"lost", step.lost}, {"added", step.added}, {"rules", std::move(uses)}};
}

} // namespace

void writeConversion(TextSink out, bool color, const ConversionFiles& files, const FullReport& report, bool allPlaces) {
    Page page(out, color);
    page.title(files.source + (files.result.empty() ? std::string() : " to " + files.result));
    std::string summary = files.sourceRelease;
    if (files.resultRelease != files.sourceRelease) (summary += " to ") += files.resultRelease;
    (summary += ", ") += text::counted(files.instances, "instance", "instances");
    (summary += ", ") += verdict(report);
    if (files.result.empty()) summary += "; nothing is written";
    page.paragraph(summary, 0, report.isLossless() ? Page::Style::Good : Page::Style::Bad);
    for (const StepReport& step : report.steps) writeStep(page, step, allPlaces);
}

Json conversionJson(const ConversionFiles& files, const FullReport& report) {
    Json steps = Json::array();
    for (const StepReport& step : report.steps) steps.push_back(stepJson(step));
    return {{"file", files.source},
            {"release", files.sourceRelease},
            {"instances", files.instances},
            {"result", textOrNull(files.result)},
            {"result_release", files.resultRelease},
            {"lossless", report.isLossless()},
            {"changed_identifiers", report.identifiers.size()},
            {"steps", std::move(steps)}};
}

void writeConversionRules(TextSink out, bool color, const std::vector<StepRules>& steps) {
    Page page(out, color);
    bool isFirst = true;
    for (const StepRules& step : steps) {
        if (!isFirst) out << '\n';
        isFirst = false;
        page.title(upperFirst(step.step));
        for (const ConversionRule* rule : step.rules) {
            page.line({Page::Span(padded(word(rule->effect), 10), styleOf(rule->effect)),
                       Page::Span(std::string(rule->name), Page::Style::Bold)});
            page.paragraph(rule->what, countIndent + 8);
            page.paragraph("why: " + std::string(rule->reason), countIndent + 8, Page::Style::Dim);
        }
    }
}

Json conversionRulesJson(const std::vector<StepRules>& steps) {
    Json result = Json::array();
    for (const StepRules& step : steps) {
        Json rules = Json::array();
        for (const ConversionRule* rule : step.rules) rules.push_back(ruleJson(*rule));
        result.push_back({{"step", step.step}, {"rules", std::move(rules)}});
    }
    return {{"steps", std::move(result)}};
}

std::string identifierTable(const std::vector<IdentifierReport::Entry>& identifiers) {
    std::string table = "instance,before,after\r\n";
    for (const IdentifierReport::Entry& entry : identifiers) {
        table += std::to_string(entry.id);
        (table += ',') += csvField(entry.before);
        (table += ',') += csvField(entry.after);
        table += "\r\n";
    }
    return table;
}

} // namespace velkor::host
