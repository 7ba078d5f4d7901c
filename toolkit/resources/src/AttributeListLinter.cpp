#include "AttributeListLinter.h"

#include "ResourceNames.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <iterator>

namespace velkor::lint {

namespace {

namespace names = velkor::names::attributelist;

const Format& format() {
    static const Format result{
        nullptr,
        {{names::level, {}, {names::id}},
         {names::entry, {names::level}, {names::name, names::value}, {names::entity, names::propertySet}, true}}};
    return result;
}

std::vector<std::string_view> levelIds() {
    std::vector<std::string_view> result;
    for (const AttributeLevel& level : attributeLevels) result.emplace_back(level.id);
    return result;
}

Dictionaries::Releases releasesOf(IfcLevel level) {
    const auto isOf = [&](const std::string& release) {
        return level == IfcLevelGeneral || (release == "IFC2X3") == (level == IfcLevel2X3);
    };
    Dictionaries::Releases result;
    std::ranges::copy_if(Dictionaries::all(), std::back_inserter(result), isOf);
    return result;
}

} // namespace

AttributeListLinter::AttributeListLinter(Dictionaries& dictionaries) : Linter(format(), dictionaries) {}

void AttributeListLinter::judgeEntries(const XmlElement& root) {
    _keys.clear();
    root.visitNamed(names::level, [&](const XmlElement& level) { judgeLevel(level); });
}

void AttributeListLinter::judgeLevel(const XmlElement& level) {
    const std::string& id = level.attribute(names::id);
    const auto known = levelIds();
    const auto isId = [&](std::string_view knownId) { return text::equalIgnoringCase(knownId, id); };
    if (!id.empty() && std::ranges::none_of(known, isId)) {
        warn(level.line, "unknown-level",
             "expected " + text::alternatives(known) + " as the " + quoted(names::id) + " of a level, found " +
                 quoted(id) + ", which counts as general",
             didYouMean(known, id));
    }
    for (const XmlElement* outer = level.parent; outer != nullptr; outer = outer->parent) {
        if (outer->name != names::level) continue;
        error(level.line, "nested-level",
              "the entries of this level count for the level " + inLine(outer->line) + " as well");
        break;
    }
    const IfcLevel meant = IFCAttributeList::GetLevel(QORUnicodeString(std::string_view(id)));
    judgeBelow(level, meant, releasesOf(meant));
}

void AttributeListLinter::judgeBelow(const XmlElement& element, IfcLevel level,
                                     const Dictionaries::Releases& releases) {
    for (const XmlElement& child : element.children) {
        if (child.name == names::level) continue;
        if (child.name == names::entry) judgeEntry(child, level, releases);
        judgeBelow(child, level, releases);
    }
}

void AttributeListLinter::judgeEntry(const XmlElement& entry, IfcLevel level, const Dictionaries::Releases& releases) {
    countEntry();
    const std::string& entity = entry.attribute(names::entity);
    const std::string& set = entry.attribute(names::propertySet);
    const std::string& name = entry.attribute(names::name);
    if (judgeEntity(entry.line, entity, releases) && set.empty())
        judgeProperty(entry.line, entity, entry.attribute(names::value), releases);
    // Letter case counts here.
    const auto [first, isNew] =
        _keys.try_emplace(std::to_string(level) + '\n' + name + '\n' + set + '\n' + entity, entry.line);
    if (isNew || name.empty()) return;
    warn(entry.line, "duplicate-key",
         quoted(name) + (entity.empty() ? "" : " of " + quoted(entity)) + (set.empty() ? "" : " in " + quoted(set)) +
             " has an entry " + inLine(first->second) + " already, which counts");
}

} // namespace velkor::lint
