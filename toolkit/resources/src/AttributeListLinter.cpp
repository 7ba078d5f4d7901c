#include "AttributeListLinter.h"

namespace velkor::lint {

namespace {

constexpr const char* levelTag = "Level";
constexpr const char* entryTag = "AttributeID";
constexpr const char* early = "2X3";
constexpr const char* late = "4ANDABOVE";
constexpr const char* general = "General";

const Format& format() {
    static const Format result{
        nullptr, {{levelTag, {}, {"ID"}}, {entryTag, {levelTag}, {"Name", "Value"}, {"Entity", "PropertySet"}, true}}};
    return result;
}

Dictionaries::Releases releasesOf(const std::string& level) {
    if (level == toUpper(early)) return {"IFC2X3"};
    Dictionaries::Releases result = Dictionaries::all();
    if (level == toUpper(late)) result.erase(result.begin());
    return result;
}

} // namespace

AttributeListLinter::AttributeListLinter(Dictionaries& dictionaries) : Linter(format(), dictionaries) {}

void AttributeListLinter::judgeEntries(const XmlElement& root) {
    _keys.clear();
    root.visitNamed(levelTag, [&](const XmlElement& level) { judgeLevel(level); });
}

void AttributeListLinter::judgeLevel(const XmlElement& level) {
    const std::string& id = level.attribute("ID");
    std::string table = toUpper(id);
    if (table != early && table != late) {
        if (!id.empty() && table != toUpper(general)) {
            warn(level.line, "unknown-level",
                 "expected 2X3, 4ANDABOVE or General as the \"ID\" of a level, found " + quoted(id) +
                     ", which counts as general",
                 didYouMean({early, late, general}, id));
        }
        table = toUpper(general);
    }
    for (const XmlElement* outer = level.parent; outer != nullptr; outer = outer->parent) {
        if (outer->name != levelTag) continue;
        error(level.line, "nested-level",
              "the entries of this level count for the level " + inLine(outer->line) + " as well");
        break;
    }
    judgeBelow(level, table, releasesOf(table));
}

void AttributeListLinter::judgeBelow(const XmlElement& element, const std::string& level,
                                     const Dictionaries::Releases& releases) {
    for (const XmlElement& child : element.children) {
        if (child.name == levelTag) continue;
        if (child.name == entryTag) judgeEntry(child, level, releases);
        judgeBelow(child, level, releases);
    }
}

void AttributeListLinter::judgeEntry(const XmlElement& entry, const std::string& level,
                                     const Dictionaries::Releases& releases) {
    countEntry();
    const std::string& entity = entry.attribute("Entity");
    const std::string& set = entry.attribute("PropertySet");
    const std::string& name = entry.attribute("Name");
    if (judgeEntity(entry.line, entity, releases) && set.empty())
        judgeProperty(entry.line, entity, entry.attribute("Value"), releases);
    // Letter case counts here.
    const auto [first, isNew] = _keys.try_emplace(level + '\n' + name + '\n' + set + '\n' + entity, entry.line);
    if (isNew || name.empty()) return;
    warn(entry.line, "duplicate-key",
         quoted(name) + (entity.empty() ? "" : " of " + quoted(entity)) + (set.empty() ? "" : " in " + quoted(set)) +
             " has an entry " + inLine(first->second) + " already, which counts");
}

} // namespace velkor::lint
