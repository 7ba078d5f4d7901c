#include "output/ClassificationText.h"
#include "output/PropertySetText.h"
#include "output/Report.h"
#include "output/UnitText.h"
#include "terminal/DisplayText.h"
#include "terminal/Page.h"
#include "terminal/TextTable.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <span>

namespace velkor::host {

namespace {

using Style = Page::Style;

constexpr std::size_t shownKeywords = 10;
constexpr std::size_t shownKinds = 6;
constexpr std::size_t shownNames = 5;
constexpr std::size_t shownClasses = 10;

// Without those that are blank.
std::string joined(std::vector<std::string> texts, std::string_view separator = ", ") {
    std::erase_if(texts, [](const std::string& text) { return text.find_first_not_of(" \t\r\n") == text.npos; });
    return text::joined(texts, separator);
}

std::string decimal(double value, int digits) {
    std::array<char, 64> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, digits);
    return {buffer.data(), end.ptr};
}

std::string sizeText(std::uint64_t bytes) {
    constexpr std::array<std::string_view, 4> units{"kB", "MB", "GB", "TB"};
    std::string exact = text::counted(bytes, "byte", "bytes");
    if (bytes < 1000) return exact;
    std::size_t unit = 0;
    double size = static_cast<double>(bytes) / 1000.0;
    for (; size >= 999.95 && unit + 1 < units.size(); ++unit) size /= 1000.0;
    return decimal(size, 1).append(" ").append(units[unit]).append(" (").append(exact).append(")");
}

std::string problemCounts(const ProblemSummary& problems, std::string_view none = "no problems found") {
    if (problems.total == 0) return std::string(none);
    std::string result;
    if (problems.errors > 0) result = text::counted(problems.errors, "error", "errors");
    if (problems.warnings > 0) {
        if (!result.empty()) result += " and ";
        result += text::counted(problems.warnings, "warning", "warnings");
    }
    if (problems.total > problems.listed()) {
        result += " among the first " + text::grouped(problems.listed()) + " of " + text::grouped(problems.total) +
                  " problems";
    }
    return result;
}

void writeTitle(Page& page, const Report& report) {
    const ModelFacts& facts = report.facts;
    page.title(std::filesystem::path(facts.path).filename().string());
    page.paragraph(facts.release + " model, " + text::counted(facts.instanceCount, "instance", "instances") + ", " +
                       problemCounts(report.problems),
                   0);
}

void writeFile(Page& page, const ModelFacts& facts) {
    page.section("File");
    page.entry("Path", facts.path);
    page.entry("Size", sizeText(facts.bytes));
    page.entry("Release", facts.isReleaseAsWritten ? facts.release
                                                   : facts.release + ", read from FILE_SCHEMA " +
                                                         text::quoted(joined(facts.fileSchemas, "\", \"")));
    page.entry("Model view", joined(facts.views));
    if (!facts.descriptions.empty()) page.entry("Description", joined(facts.descriptions, "; "));
    page.entry("Name in header", facts.header.name);
    page.entry("Time stamp", facts.header.timeStamp);
    page.entry("Author", joined(facts.header.author));
    page.entry("Organization", joined(facts.header.organization));
    page.entry("Written by", facts.header.originatingSystem);
    page.entry("Preprocessor", facts.header.preprocessorVersion);
}

std::string contentText(const ModelFacts& facts) {
    if (facts.contents.empty()) return "no site, building or element";
    return text::joined(facts.contents, ", ", [](const ContentCount& content) {
        return text::counted(content.count, content.singular, content.plural);
    });
}

void writeProject(Page& page, const ModelFacts& facts) {
    if (!facts.project) {
        page.section("Project", "none in the file", Style::Doubtful);
    } else {
        const ProjectFacts& project = *facts.project;
        page.section("Project",
                     facts.projectCount == 1
                         ? ""
                         : "the first of " + text::grouped(facts.projectCount) + ", although a file should have one",
                     Style::Doubtful);
        page.entry("Name", project.name);
        if (!project.longName.empty()) page.entry("Long name", project.longName);
        if (!project.description.empty()) page.entry("Description", project.description);
        if (!project.phase.empty()) page.entry("Phase", project.phase);
    }
    page.entry("Contains", contentText(facts));
}

std::string shareText(double share) {
    return share > 0.0 && share < 0.001 ? "< 0.1 %" : decimal(share * 100.0, 1).append(" %");
}

void writeInstances(Page& page, const ModelFacts& facts) {
    page.section("Instances", text::grouped(facts.instanceCount) + " of " +
                                  text::counted(facts.keywords.size(), "entity", "different entities"));
    if (facts.keywords.empty()) return;
    const auto shown = std::min(shownKeywords, facts.keywords.size());
    std::vector<std::string> names, counts;
    std::size_t nameWidth = 0, countWidth = 0;
    for (std::size_t i = 0; i < shown; ++i) {
        const auto& keyword = facts.keywords[i];
        const bool isComplex = keyword.keyword.starts_with('(');
        std::string name = keyword.keyword;
        if (keyword.entity == nullptr && !isComplex) name += " (unknown)";
        names.push_back(wrapped(name, 44, 1).front());
        counts.push_back(text::grouped(keyword.count));
        nameWidth = std::max(nameWidth, displayWidth(names.back()));
        countWidth = std::max(countWidth, counts.back().size());
    }
    const auto most = static_cast<double>(facts.keywords.front().count);
    for (std::size_t i = 0; i < shown; ++i) {
        const auto count = static_cast<double>(facts.keywords[i].count);
        const std::string share = shareText(count / static_cast<double>(facts.instanceCount));
        page.line({padded(names[i], nameWidth) + "  " + rightAligned(counts[i], countWidth) + "  " +
                       rightAligned(share, 7) + "  ",
                   {bar(count / most, 24), Style::Dim}});
    }
    std::uint64_t others = 0;
    for (std::size_t i = shown; i < facts.keywords.size(); ++i) others += facts.keywords[i].count;
    if (others == 0) return;
    const std::string label = text::counted(facts.keywords.size() - shown, "other", "others");
    page.line(padded(label, nameWidth) + "  " + rightAligned(text::grouped(others), countWidth) + "  " +
              rightAligned(shareText(static_cast<double>(others) / static_cast<double>(facts.instanceCount)), 7));
}

std::string placeText(const sdai::Problem& problem) {
    std::string place = "line " + text::grouped(problem.line);
    if (problem.instance != 0) place += ", #" + std::to_string(problem.instance);
    return place;
}

// As a shell takes it.
std::string shellQuoted(const std::string& path) {
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-+./,:@%";
    if (!path.empty() && path.find_first_not_of(plain) == std::string::npos) return path;
    std::string result = "'";
    for (const char c : path) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + '\'';
}

Style styleOf(const ProblemSummary& problems) {
    if (problems.total == 0) return Style::Good;
    return problems.errors > 0 ? Style::Bad : Style::Doubtful;
}

// Each kind with its first place, and the command that lists all.
void writeKinds(Page& page, const ProblemSummary& problems, const std::string& command, const std::string& path) {
    if (problems.total == 0) return;
    const auto shown = std::min(shownKinds, problems.kinds.size());
    for (std::size_t i = 0; i < shown; ++i) {
        const ProblemSummary::Kind& kind = problems.kinds[i];
        const bool isError = kind.severity == sdai::Severity::Error;
        page.line({{isError ? "error  " : "warning", isError ? Style::Bad : Style::Doubtful},
                   "  " + kind.code + (kind.count > 1 ? ", " + text::grouped(kind.count) + " times, first" : "") +
                       " in " + placeText(kind.first)});
        page.paragraph(kind.first.message, 11);
    }
    if (problems.kinds.size() > shown) {
        page.line("and " + text::counted(problems.kinds.size() - shown, "kind more", "kinds more"));
    }
    page.line({"All of them: velkor " + command + ' ' + shellQuoted(path), Style::Dim});
}

void writeIdentifiers(Page& page, const Report& report) {
    const ProblemSummary& problems = report.identifiers;
    const bool areAny = report.identifierCount > 0;
    page.section("Identifiers",
                 areAny ? text::grouped(report.identifierCount) + ", " +
                              problemCounts(problems, "all well-formed and unique")
                        : "none in the file",
                 areAny ? styleOf(problems) : Style::Doubtful);
    writeKinds(page, problems, "guid check", report.facts.path);
}

void writePropertySets(Page& page, const Report& report) {
    const PropertySetCheck& sets = report.propertySets;
    const std::string count = text::counted(sets.sets, "set", "sets");
    if (!sets.hasDefinitions) {
        page.section("Property sets", "not checked: velkor resources says where definitions are looked for",
                     Style::Doubtful);
        return;
    }
    if (sets.sets == 0) {
        page.section("Property sets", "none in the file");
        return;
    }
    const ProblemSummary& findings = report.setFindings;
    // Nothing is found where nothing has been looked at.
    const bool isAnyChecked = sets.checkedSets > 0;
    page.section(
        "Property sets",
        count + ", " +
            problemCounts(findings, isAnyChecked ? "nothing wrong with those checked" : "none of them checked"),
        isAnyChecked || findings.total > 0 ? styleOf(findings) : Style::Doubtful);
    page.entry("Checked",
               text::grouped(sets.checkedSets) + " with " +
                   text::counted(sets.checkedProperties, "property or quantity", "properties and quantities"));
    if (sets.customSets > 0) page.entry("Of your own", text::grouped(sets.customSets));
    if (sets.uncheckedSets() > 0) {
        page.entry("Not checked",
                   text::grouped(sets.uncheckedSets()) + " without a definition: " + undefinedText(sets, shownNames));
    }
    writeKinds(page, findings, "validate", report.facts.path);
}

// Most frequent first, those without a neutral identifier before the others.
std::vector<ProductClass> classesByWeight(const Classification& classification) {
    std::vector<ProductClass> classes = classesOf(classification);
    std::ranges::stable_sort(classes, [](const ProductClass& a, const ProductClass& b) {
        const bool isOpen = a.decision->neutralId.empty();
        return isOpen != b.decision->neutralId.empty() ? isOpen : a.count > b.count;
    });
    return classes;
}

void writeClasses(TextSink out, const std::vector<ProductClass>& classes) {
    constexpr std::size_t widestCell = 26;
    const std::string indent(2, ' ');
    TextTable table({{"entity"}, {"neutral id"}, {"PLM type"}, {"count", TextTable::Right}});
    for (const ProductClass& group : std::span(classes).first(std::min(shownClasses, classes.size()))) {
        const auto cell = [](const std::string& text) { return shortened(orDash(text), widestCell); };
        table.add({cell(entityName(*group.decision)), cell(group.decision->neutralId), cell(group.decision->plmType),
                   text::grouped(group.count)});
    }
    table.write(out, indent);
    if (classes.size() > shownClasses)
        out << indent << "and " << text::counted(classes.size() - shownClasses, "class more", "classes more") << '\n';
}

void writeClassification(TextSink out, Page& page, const Report& report) {
    if (!report.classified) {
        page.section("Classification", "not done", Style::Doubtful);
        page.paragraph(report.classified.error());
        return;
    }
    const Classification& classification = report.classified->classification;
    const std::size_t total = classification.products.size();
    if (total == 0) {
        page.section("Classification", "no products in the file");
        return;
    }
    const bool isComplete = classification.unclassified == 0;
    page.section("Classification",
                 text::counted(total, "product", "products") + ", " +
                     (isComplete ? "each with a neutral identifier"
                                 : text::grouped(classification.unclassified) + " without a neutral identifier"),
                 isComplete ? Style::Good : Style::Doubtful);
    writeClasses(out, classesByWeight(classification));
    page.line({"Each of them: velkor classify " + shellQuoted(report.facts.path), Style::Dim});
}

void writeProblems(Page& page, const Report& report) {
    page.section("Problems", problemCounts(report.problems, "none found"), styleOf(report.problems));
    writeKinds(page, report.problems, "check", report.facts.path);
}

} // namespace

void writeReportPage(TextSink out, bool color, const Report& report) {
    Page page(out, color);
    writeTitle(page, report);
    writeFile(page, report.facts);
    writeProject(page, report.facts);
    writeInstances(page, report.facts);
    writeUnits(page, report.units);
    writeIdentifiers(page, report);
    writePropertySets(page, report);
    writeClassification(out, page, report);
    writeProblems(page, report);
}

} // namespace velkor::host
