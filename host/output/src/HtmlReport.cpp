#include "HtmlPage.h"
#include "output/ClassificationText.h"
#include "output/Report.h"
#include "ReportText.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <span>
#include <tuple>

namespace velkor::host {

namespace {

// A page stays one that a browser shows at once, whatever the model.
constexpr std::size_t shownKeywords = 25;
constexpr std::size_t shownKinds = 100;
constexpr std::size_t shownNames = 20;
constexpr std::size_t shownRows = 100;

// A section of the page, and what its entry in the navigation says.
struct Section {
    std::string_view id;
    std::string_view heading;
    Remark remark = {};
    // What the navigation says where there is no remark.
    std::string summary = {};
};

void writeRemark(const Html& html, const Remark& remark) {
    if (!remark.text.empty()) html << "<p class=\"" << styleClass(remark.style) << "\">" << remark.text << "</p>\n";
}

void beginSection(const Html& html, const Section& section) {
    html << "<section id=\"" << section.id << "\" aria-labelledby=\"" << section.id << "-heading\">\n<h2 id=\""
         << section.id << "-heading\">" << section.heading << "</h2>\n";
    writeRemark(html, section.remark);
}

void endSection(const Html& html) {
    html << "</section>\n";
}

void writeEntries(const Html& html, const Entries& entries) {
    if (entries.empty()) return;
    html << "<dl>\n";
    for (const auto& [label, text] : entries) {
        html << "<dt>" << label << "</dt>";
        if (text.empty())
            html << "<dd class=\"dim\">not stated</dd>\n";
        else
            html << "<dd>" << text << "</dd>\n";
    }
    html << "</dl>\n";
}

void writeRest(const Html& html, std::size_t count, std::string_view singular, std::string_view plural) {
    if (count > 0) html << "<p class=\"dim\">and " << text::counted(count, singular, plural) << "</p>\n";
}

void writeCommand(const Html& html, TextSink::Literal lead, std::string_view command, const ModelFacts& facts) {
    html << "<p class=\"dim\">" << lead << ": <code>" << commandText(command, facts) << "</code></p>\n";
}

void writeInstances(const Html& html, const ModelFacts& facts) {
    if (facts.keywords.empty()) return;
    beginTable(html, "Instances by entity", {{"Entity"}, {"Count", true}, {"Share", true}, {"Bar"}});
    const auto most = static_cast<double>(facts.keywords.front().count);
    const std::size_t shown = std::min(shownKeywords, facts.keywords.size());
    for (const auto& keyword : std::span(facts.keywords).first(shown)) {
        writeRowHeading(html, keywordText(keyword));
        writeNumber(html, text::grouped(keyword.count));
        writeNumber(html, shareText(keyword.count, facts.instanceCount));
        writeBar(html, static_cast<double>(keyword.count) / most);
    }
    if (const std::uint64_t others = otherInstances(facts, shown); others > 0) {
        writeRowHeading(html, text::counted(facts.keywords.size() - shown, "other", "others"));
        writeNumber(html, text::grouped(others));
        writeNumber(html, shareText(others, facts.instanceCount));
        html << "<td></td></tr>\n";
    }
    endTable(html);
}

void writeUnits(const Html& html, const UnitReport& report) {
    if (report.units.empty()) return;
    beginTable(html, "Units", {{"Type"}, {"Name"}, {"SI base units in one", true}, {"Instance", true}});
    const std::size_t shown = std::min(shownRows, report.units.size());
    for (const UnitReport::Unit& unit : std::span(report.units).first(shown)) {
        writeRowHeading(html, unit.type.empty() ? unit.entity : unit.type);
        writeText(html, unit.name);
        writeNumber(html, text::shortest(unit.factor));
        writeNumber(html, '#' + std::to_string(unit.id));
        html << "</tr>\n";
    }
    endTable(html);
    writeRest(html, report.units.size() - shown, "unit more", "units more");
}

// Each kind with its first place, and the command that lists all.
void writeKinds(const Html& html, const ProblemSummary& problems, std::string_view command, const ModelFacts& facts) {
    if (problems.total == 0) return;
    const std::size_t shown = std::min(shownKinds, problems.kinds.size());
    html << "<ul class=\"kinds\">\n";
    for (const ProblemSummary::Kind& kind : std::span(problems.kinds).first(shown)) {
        const bool isError = kind.severity == sdai::Severity::Error;
        html << "<li class=\"" << styleClass(isError ? Page::Style::Bad : Page::Style::Doubtful) << "\"><strong>"
             << name(kind.severity) << "</strong> <code>" << kind.code << "</code> <span class=\"place\">"
             << placeText(kind) << "</span>\n<p>" << kind.first.message << "</p></li>\n";
    }
    html << "</ul>\n";
    writeRest(html, problems.kinds.size() - shown, "kind more", "kinds more");
    writeCommand(html, "All of them", command, facts);
}

// Those with something wrong or missing first.
std::vector<const SetSummary*> setsByWeight(const PropertySetCheck& sets) {
    std::vector<const SetSummary*> result;
    for (const SetSummary& set : sets.summaries) result.push_back(&set);
    std::ranges::stable_sort(result, [](const SetSummary* a, const SetSummary* b) {
        return std::tie(b->isDefined, b->wrong, b->missing) < std::tie(a->isDefined, a->wrong, a->missing);
    });
    return result;
}

void writeCoverage(const Html& html, const PropertySetCheck& check) {
    if (!check.hasDefinitions || check.summaries.empty()) return;
    html << "<h3>Coverage</h3>\n";
    beginTable(
        html, "Coverage of property sets",
        {{"Set"}, {"Sets", true}, {"Objects", true}, {"Filled", true}, {"Missing", true}, {"Wrong", true}, {"Bar"}});
    const std::vector<const SetSummary*> sets = setsByWeight(check);
    const std::size_t shown = std::min(shownRows, sets.size());
    for (const SetSummary* set : std::span(sets).first(shown)) {
        writeRowHeading(html, set->name.empty() ? "sets without a name" : set->name);
        writeNumber(html, text::grouped(set->sets));
        writeNumber(html, text::grouped(set->objects));
        writeNumber(html, text::grouped(set->filled));
        if (!set->isDefined) {
            html << "<td class=\"number dim\" colspan=\"3\">no definition</td></tr>\n";
            continue;
        }
        writeNumber(html, text::grouped(set->missing));
        html << "<td class=\"number " << (set->wrong > 0 ? "bad" : "plain") << "\">" << text::grouped(set->wrong)
             << "</td>";
        const std::uint64_t all = set->filled + set->missing;
        writeBar(html, all == 0 ? 0.0 : static_cast<double>(set->filled) / static_cast<double>(all));
    }
    endTable(html);
    writeRest(html, sets.size() - shown, "name more", "names more");
    html << "<p class=\"dim\">Filled, missing and wrong count the properties and quantities of the definition over all "
            "sets; the bar is the part that is filled.</p>\n";
}

void writeClassification(const Html& html, const Report& report) {
    if (!report.classified) {
        html << "<p>" << report.classified.error() << "</p>\n";
        return;
    }
    const Classification& classification = report.classified->classification;
    if (classification.products.empty()) return;
    beginTable(html, "Products by class", {{"Entity"}, {"Neutral id"}, {"PLM type"}, {"Count", true}});
    const std::vector<ProductClass> classes = classesByWeight(classification);
    const std::size_t shown = std::min(shownRows, classes.size());
    for (const ProductClass& group : std::span(classes).first(shown)) {
        writeRowHeading(html, entityName(*group.decision));
        writeText(html, group.decision->neutralId);
        writeText(html, group.decision->plmType);
        writeNumber(html, text::grouped(group.count));
        html << "</tr>\n";
    }
    endTable(html);
    writeRest(html, classes.size() - shown, "class more", "classes more");
    writeCommand(html, "Each of them", "classify", report.facts);
}

void writeHeader(const Html& html, const Report& report, std::span<const Section> sections) {
    html << "<header>\n<h1>" << fileName(report.facts) << "</h1>\n<p>" << headline(report)
         << "</p>\n</header>\n<nav aria-label=\"Sections\">\n<ul>\n";
    for (const Section& section : sections) {
        html << "<li><a href=\"#" << section.id << "\"><strong>" << section.heading << "</strong> <span class=\""
             << styleClass(section.remark.style) << "\">"
             << (section.remark.text.empty() ? section.summary : section.remark.text) << "</span></a></li>\n";
    }
    html << "</ul>\n</nav>\n";
}

} // namespace

void writeReportHtml(TextSink out, const Report& report) {
    const ModelFacts& facts = report.facts;
    const Html html(out);
    const Section file{"file", "File", {}, facts.release},
        project{"project", "Project", projectRemark(facts), facts.project ? facts.project->name : std::string()},
        instances{"instances", "Instances", instancesRemark(facts)}, units{"units", "Units", unitsRemark(report.units)},
        identifiers{"identifiers", "Identifiers", identifiersRemark(report)},
        propertySets{"property-sets", "Property sets", propertySetsRemark(report)},
        classification{"classification", "Classification", classificationRemark(report)},
        problems{"problems", "Problems", problemsRemark(report)};
    beginPage(html, fileName(facts) + " - model report");
    const Section sections[] = {file, project, instances, units, identifiers, propertySets, classification, problems};
    writeHeader(html, report, sections);
    html << "<main>\n";
    beginSection(html, file);
    writeEntries(html, fileEntries(facts));
    endSection(html);
    beginSection(html, project);
    writeEntries(html, projectEntries(facts));
    endSection(html);
    beginSection(html, instances);
    writeInstances(html, facts);
    endSection(html);
    beginSection(html, units);
    writeEntries(html, unitEntries(report.units));
    writeUnits(html, report.units);
    endSection(html);
    beginSection(html, identifiers);
    writeKinds(html, report.identifiers, "guid check", facts);
    endSection(html);
    beginSection(html, propertySets);
    writeEntries(html, propertySetEntries(report.propertySets, shownNames));
    writeCoverage(html, report.propertySets);
    if (report.setFindings.total > 0) html << "<h3>Findings</h3>\n";
    writeKinds(html, report.setFindings, "validate", facts);
    endSection(html);
    beginSection(html, classification);
    writeClassification(html, report);
    endSection(html);
    beginSection(html, problems);
    writeKinds(html, report.problems, "check", facts);
    endSection(html);
    html << "</main>\n";
    endPage(html);
}

} // namespace velkor::host
