#include "ReportText.h"

#include "output/PropertySetText.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>

namespace velkor::host {

namespace {

using Style = Page::Style;

// Without those that are blank.
std::string joined(std::vector<std::string> texts, std::string_view separator = ", ") {
    std::erase_if(texts, [](const std::string& text) { return text::trimmed(text).empty(); });
    return text::joined(texts, separator);
}

std::string sizeText(std::uint64_t bytes) {
    const std::string size = shortSizeText(bytes);
    return bytes < 1000 ? size : size + " (" + text::counted(bytes, "byte", "bytes") + ')';
}

std::string contentText(const ModelFacts& facts) {
    if (facts.contents.empty()) return "no site, building or element";
    return text::joined(facts.contents, ", ", [](const ContentCount& content) {
        return text::counted(content.count, content.singular, content.plural);
    });
}

Style styleOf(const ProblemSummary& problems) {
    if (problems.total == 0) return Style::Good;
    return problems.errors > 0 ? Style::Bad : Style::Doubtful;
}

// As a shell takes it.
std::string shellQuoted(const std::string& path) {
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-+./,:@%";
    if (!path.empty() && path.find_first_not_of(plain) == std::string::npos) return path;
    std::string result = "'";
    for (const char c : path) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + '\'';
}

std::string unitWorth(const UnitReport& report, std::string_view type, double factor, const char* siUnit) {
    const auto* unit = report.inForce(type);
    return "1 model unit = " + text::shortest(factor) + siUnit +
           (unit != nullptr && !unit->name.empty() ? " (" + unit->name + ")" : std::string());
}

} // namespace

std::string fileName(const ModelFacts& facts) {
    return std::filesystem::path(facts.path).filename().string();
}

std::string headline(const Report& report) {
    return report.facts.release + " model, " + text::counted(report.facts.instanceCount, "instance", "instances") +
           ", " + problemCounts(report.problems);
}

Entries fileEntries(const ModelFacts& facts) {
    Entries entries{{"Path", facts.path}};
    if (!facts.member.empty()) entries.emplace_back("In archive", facts.member);
    entries.insert(entries.end(),
                   {{"Size", sizeText(facts.bytes)},
                    {"Release", facts.isReleaseAsWritten ? facts.release
                                                         : facts.release + ", read from FILE_SCHEMA " +
                                                               text::quoted(joined(facts.fileSchemas, "\", \""))},
                    {"Model view", joined(facts.views)}});
    if (!facts.descriptions.empty()) entries.emplace_back("Description", joined(facts.descriptions, "; "));
    entries.emplace_back("Name in header", facts.header.name);
    entries.emplace_back("Time stamp", facts.header.timeStamp);
    entries.emplace_back("Author", joined(facts.header.author));
    entries.emplace_back("Organization", joined(facts.header.organization));
    entries.emplace_back("Written by", facts.header.originatingSystem);
    entries.emplace_back("Preprocessor", facts.header.preprocessorVersion);
    return entries;
}

Remark projectRemark(const ModelFacts& facts) {
    if (!facts.project) return {"none in the file", Style::Doubtful};
    if (facts.projectCount == 1) return {};
    return {"the first of " + text::grouped(facts.projectCount) + ", although a file should have one", Style::Doubtful};
}

Entries projectEntries(const ModelFacts& facts) {
    Entries entries;
    if (facts.project) {
        const ProjectFacts& project = *facts.project;
        entries.emplace_back("Name", project.name);
        if (!project.longName.empty()) entries.emplace_back("Long name", project.longName);
        if (!project.description.empty()) entries.emplace_back("Description", project.description);
        if (!project.phase.empty()) entries.emplace_back("Phase", project.phase);
    }
    entries.emplace_back("Contains", contentText(facts));
    return entries;
}

std::string keywordText(const sdai::Model::KeywordCount& keyword) {
    const bool isComplex = keyword.keyword.starts_with('(');
    return keyword.entity != nullptr || isComplex ? keyword.keyword : keyword.keyword + " (unknown)";
}

std::uint64_t otherInstances(const ModelFacts& facts, std::size_t shown) {
    std::uint64_t others = 0;
    for (std::size_t i = shown; i < facts.keywords.size(); ++i) others += facts.keywords[i].count;
    return others;
}

std::string shortSizeText(std::uint64_t bytes) {
    constexpr std::array<std::string_view, 4> units{"kB", "MB", "GB", "TB"};
    if (bytes < 1000) return text::counted(bytes, "byte", "bytes");
    std::size_t unit = 0;
    double size = static_cast<double>(bytes) / 1000.0;
    for (; size >= 999.95 && unit + 1 < units.size(); ++unit) size /= 1000.0;
    return decimal(size, 1).append(" ").append(units[unit]);
}

std::string decimal(double value, int digits) {
    std::array<char, 64> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, digits);
    return {buffer.data(), end.ptr};
}

std::string shareText(std::uint64_t part, std::uint64_t whole) {
    const double share = whole == 0 ? 0.0 : static_cast<double>(part) / static_cast<double>(whole);
    return share > 0.0 && share < 0.001 ? "< 0.1 %" : decimal(share * 100.0, 1).append(" %");
}

std::string problemCounts(const ProblemSummary& problems, std::string_view none) {
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

std::string placeText(const ProblemSummary::Kind& kind) {
    std::string place = kind.count > 1 ? text::grouped(kind.count) + " times, first in line " : "in line ";
    place += text::grouped(kind.first.line);
    if (kind.first.instance != 0) place += ", #" + std::to_string(kind.first.instance);
    return place;
}

std::string commandText(std::string_view command, const ModelFacts& facts) {
    return std::string("velkor ").append(command).append(" ").append(shellQuoted(facts.path));
}

Remark instancesRemark(const ModelFacts& facts) {
    return {text::grouped(facts.instanceCount) + " of " +
            text::counted(facts.keywords.size(), "entity", "different entities")};
}

Remark unitsRemark(const UnitReport& units) {
    if (!units.assignment) return {"none in the file", Style::Doubtful};
    return {'#' + std::to_string(*units.assignment) + ", " + text::counted(units.units.size(), "unit", "units")};
}

Entries unitEntries(const UnitReport& units) {
    if (!units.assignment) return {};
    Entries entries{{"Length", unitWorth(units, "LENGTHUNIT", units.lengthFactor, " mm")},
                    {"Plane angle", unitWorth(units, "PLANEANGLEUNIT", units.angleFactor, " rad")}};
    std::string others;
    for (const UnitReport::Unit& unit : units.units) {
        if (unit.type == "LENGTHUNIT" || unit.type == "PLANEANGLEUNIT" || unit.name.empty()) continue;
        if (!others.empty()) others += ", ";
        others += unit.name;
    }
    if (!others.empty()) entries.emplace_back("Others", others);
    return entries;
}

Remark identifiersRemark(const Report& report) {
    if (report.identifierCount == 0) return {"none in the file", Style::Doubtful};
    return {text::grouped(report.identifierCount) + ", " +
                problemCounts(report.identifiers, "all well-formed and unique"),
            styleOf(report.identifiers)};
}

Remark propertySetsRemark(const Report& report) {
    const PropertySetCheck& sets = report.propertySets;
    if (!sets.hasDefinitions)
        return {"not checked: velkor resources says where definitions are looked for", Style::Doubtful};
    if (sets.sets == 0) return {"none in the file"};
    // Nothing is found where nothing has been looked at.
    const bool isAnyChecked = sets.checkedSets > 0;
    const ProblemSummary& findings = report.setFindings;
    return {text::counted(sets.sets, "set", "sets") + ", " +
                problemCounts(findings, isAnyChecked ? "nothing wrong with those checked" : "none of them checked"),
            isAnyChecked || findings.total > 0 ? styleOf(findings) : Style::Doubtful};
}

Entries propertySetEntries(const PropertySetCheck& sets, std::size_t mostNames) {
    if (!sets.hasDefinitions || sets.sets == 0) return {};
    Entries entries{
        {"Checked", text::grouped(sets.checkedSets) + " with " +
                        text::counted(sets.checkedProperties, "property or quantity", "properties and quantities")}};
    if (sets.customSets > 0) entries.emplace_back("Of your own", text::grouped(sets.customSets));
    if (sets.uncheckedSets() > 0) {
        entries.emplace_back("Not checked", text::grouped(sets.uncheckedSets()) +
                                                " without a definition: " + undefinedText(sets, mostNames));
    }
    return entries;
}

Remark classificationRemark(const Report& report) {
    if (!report.classified) return {"not done", Style::Doubtful};
    const Classification& classification = report.classified->classification;
    const std::size_t total = classification.products.size();
    if (total == 0) return {"no products in the file"};
    const bool isComplete = classification.unclassified == 0;
    return {text::counted(total, "product", "products") + ", " +
                (isComplete ? "each with a neutral identifier"
                            : text::grouped(classification.unclassified) + " without a neutral identifier"),
            isComplete ? Style::Good : Style::Doubtful};
}

Remark problemsRemark(const Report& report) {
    return {problemCounts(report.problems, "none found"), styleOf(report.problems)};
}

std::vector<ProductClass> classesByWeight(const Classification& classification) {
    std::vector<ProductClass> classes = classesOf(classification);
    std::ranges::stable_sort(classes, [](const ProductClass& a, const ProductClass& b) {
        const bool isOpen = a.decision->neutralId.empty();
        return isOpen != b.decision->neutralId.empty() ? isOpen : a.count > b.count;
    });
    return classes;
}

} // namespace velkor::host
