#include "output/ClassificationText.h"
#include "output/Report.h"
#include "ReportText.h"
#include "terminal/DisplayText.h"
#include "terminal/Page.h"
#include "terminal/TextTable.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <span>

namespace velkor::host {

namespace {

using Style = Page::Style;

constexpr std::size_t shownKeywords = 10;
constexpr std::size_t shownKinds = 6;
constexpr std::size_t shownNames = 5;
constexpr std::size_t shownClasses = 10;
constexpr std::size_t widestName = 44;
constexpr std::size_t shareWidth = 7;

void writeSection(Page& page, std::string_view heading, const Remark& remark, const Entries& entries = {}) {
    page.section(heading, remark.text, remark.style);
    for (const auto& [label, text] : entries) page.entry(label, text);
}

void writeInstances(TextSink out, Page& page, const ModelFacts& facts) {
    writeSection(page, "Instances", instancesRemark(facts));
    if (facts.keywords.empty()) return;
    const auto shown = std::min(shownKeywords, facts.keywords.size());
    std::vector<std::string> names, counts;
    std::size_t nameWidth = 0, countWidth = 0;
    for (std::size_t i = 0; i < shown; ++i) {
        counts.push_back(text::grouped(facts.keywords[i].count));
        countWidth = std::max(countWidth, counts.back().size());
    }
    // Counts and shares with the blanks before them. Names have what they leave, and the bars the rest.
    const std::size_t taken = 2 + 2 + countWidth + 2 + shareWidth;
    const std::size_t nameRoom = std::min(widestName, page.width() - std::min(page.width(), taken));
    for (std::size_t i = 0; i < shown; ++i) {
        names.push_back(shortenedOn(out, keywordText(facts.keywords[i]), nameRoom));
        nameWidth = std::min(nameRoom, std::max(nameWidth, displayWidth(names.back())));
    }
    const auto most = static_cast<double>(facts.keywords.front().count);
    const std::size_t room = page.width() - std::min(page.width(), taken + nameWidth + 2);
    const std::size_t barWidth = std::min<std::size_t>(24, room);
    for (std::size_t i = 0; i < shown; ++i) {
        const std::uint64_t count = facts.keywords[i].count;
        page.line({padded(names[i], nameWidth) + "  " + rightAligned(counts[i], countWidth) + "  " +
                       rightAligned(shareText(count, facts.instanceCount), shareWidth),
                   {barWidth == 0 ? "" : "  " + bar(static_cast<double>(count) / most, barWidth), Style::Dim}});
    }
    const std::uint64_t others = otherInstances(facts, shown);
    if (others == 0) return;
    const std::string label = text::counted(facts.keywords.size() - shown, "other", "others");
    page.line(padded(label, nameWidth) + "  " + rightAligned(text::grouped(others), countWidth) + "  " +
              rightAligned(shareText(others, facts.instanceCount), shareWidth));
}

// Each kind with its first place, and the command that lists all.
void writeKinds(Page& page, const ProblemSummary& problems, std::string_view command, const ModelFacts& facts) {
    if (problems.total == 0) return;
    const auto shown = std::min(shownKinds, problems.kinds.size());
    for (std::size_t i = 0; i < shown; ++i) {
        const ProblemSummary::Kind& kind = problems.kinds[i];
        const bool isError = kind.severity == sdai::Severity::Error;
        page.line({{isError ? "error  " : "warning", isError ? Style::Bad : Style::Doubtful},
                   "  " + kind.code + (kind.count > 1 ? ", " : " ") + placeText(kind)});
        page.paragraph(kind.first.message, 11);
    }
    if (problems.kinds.size() > shown) {
        page.line("and " + text::counted(problems.kinds.size() - shown, "kind more", "kinds more"));
    }
    page.line({"All of them: " + commandText(command, facts), Style::Dim});
}

void writePropertySets(Page& page, const Report& report) {
    const PropertySetCheck& sets = report.propertySets;
    writeSection(page, "Property sets", propertySetsRemark(report), propertySetEntries(sets, shownNames));
    if (sets.hasDefinitions) writeKinds(page, report.setFindings, "validate", report.facts);
}

void writeClasses(TextSink out, const std::vector<ProductClass>& classes) {
    const std::string indent(2, ' ');
    TextTable table({{"entity"}, {"neutral id"}, {"PLM type"}, {"count", TextTable::Right}});
    for (const ProductClass& group : std::span(classes).first(std::min(shownClasses, classes.size()))) {
        table.add({orDash(entityName(*group.decision)), orDash(group.decision->neutralId),
                   orDash(group.decision->plmType), text::grouped(group.count)});
    }
    table.write(out, indent);
    if (classes.size() > shownClasses)
        out << indent << "and " << text::counted(classes.size() - shownClasses, "class more", "classes more") << '\n';
}

void writeClassification(TextSink out, Page& page, const Report& report) {
    writeSection(page, "Classification", classificationRemark(report));
    if (!report.classified) {
        page.paragraph(report.classified.error());
    } else if (!report.classified->classification.products.empty()) {
        writeClasses(out, classesByWeight(report.classified->classification));
        page.line({"Each of them: " + commandText("classify", report.facts), Style::Dim});
    }
}

} // namespace

void writeReportPage(TextSink out, bool color, const Report& report) {
    const ModelFacts& facts = report.facts;
    Page page(out, color);
    page.title(fileName(facts));
    page.paragraph(headline(report), 0);
    writeSection(page, "File", {}, fileEntries(facts));
    writeSection(page, "Project", projectRemark(facts), projectEntries(facts));
    writeInstances(out, page, facts);
    writeSection(page, "Units", unitsRemark(report.units), unitEntries(report.units));
    writeSection(page, "Identifiers", identifiersRemark(report));
    writeKinds(page, report.identifiers, "guid check", facts);
    writePropertySets(page, report);
    writeClassification(out, page, report);
    writeSection(page, "Problems", problemsRemark(report));
    writeKinds(page, report.problems, "check", facts);
}

} // namespace velkor::host
