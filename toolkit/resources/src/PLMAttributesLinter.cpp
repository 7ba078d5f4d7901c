#include "PLMAttributesLinter.h"

#include "ResourceKeys.h"
#include "ResourceNames.h"

#include <algorithm>

namespace velkor::lint {

namespace {

namespace names = velkor::names::plm;

const Format& format() {
    static const Format result{names::root,
                               {{names::root, {""}, {}},
                                {names::group, {names::root}, {names::id}},
                                {names::mapping, {names::root}, {names::type}},
                                {names::line,
                                 {names::group, names::mapping},
                                 {names::plmAttribute, names::propertySet, names::property},
                                 {names::direction}},
                                {names::include, {names::group, names::mapping}, {names::includedId}}}};
    return result;
}

bool isExported(const XmlElement& line) {
    return names::isExported(line.attribute(names::direction));
}

std::string targetOf(const XmlElement& line) {
    return line.attribute(names::propertySet) + '\n' + line.attribute(names::property);
}

} // namespace

const XmlElement* PLMAttributesLinter::Group::add(const XmlElement& line) {
    const auto [place, isNew] = byAttribute.try_emplace(toUpper(line.attribute(names::plmAttribute)), &line);
    if (isNew) lines.push_back(&line);
    return place->second;
}

PLMAttributesLinter::PLMAttributesLinter(Dictionaries& dictionaries) : Linter(format(), dictionaries) {}

void PLMAttributesLinter::judgeEntries(const XmlElement& root) {
    _groups.clear();
    _complete.clear();
    if (root.name != names::root || !root.namespaceUri.empty()) return;
    for (const XmlElement& part : root.children) {
        for (const XmlElement& line : part.children) {
            if (line.name == names::line) judgeLine(line);
        }
    }
    buildGroups(root);
    bool hasMapping = false;
    for (const XmlElement& mapping : root.children) {
        if (mapping.name != names::mapping) continue;
        hasMapping = true;
        judgeMapping(mapping);
    }
    if (!hasMapping) return warn(root.line, "no-entries", std::string("the document has no ") + names::mapping);
    tellUnused();
}

void PLMAttributesLinter::judgeLine(const XmlElement& line) {
    countEntry();
    const std::string& direction = line.attribute(names::direction);
    if (isExported(line)) return;
    warn(line.line, "line-dropped",
         quoted(line.attribute(names::plmAttribute)) + " is not exported, since its " + quoted(names::direction) +
             " is " + quoted(direction),
         direction == names::importOnly ? std::string()
                                        : didYouMean({names::both, names::exportOnly, names::importOnly}, direction));
}

void PLMAttributesLinter::buildGroups(const XmlElement& root) {
    for (const XmlElement& element : root.children) {
        if (element.name == names::group)
            _groups.push_back({element.attribute(names::id), &element, {}, {}, {}, false});
    }
    for (std::size_t i = 0; i < _groups.size(); ++i) buildGroup(i);
}

void PLMAttributesLinter::buildGroup(std::size_t index) {
    Group& group = _groups[index];
    for (const XmlElement& child : group.element->children) {
        if (child.name == names::include) include(index, child);
        if (child.name != names::line || !isExported(child)) continue;
        const XmlElement* counts = group.add(child);
        if (counts != &child && targetOf(*counts) != targetOf(child)) {
            warn(child.line, "duplicate-key",
                 quoted(child.attribute(names::plmAttribute)) + " of the group " + quoted(group.id) + " has a line " +
                     inLine(counts->line) + " already, which counts");
        }
    }
    if (group.id.empty()) return;
    if (const auto first = _complete.find(toUpper(group.id)); first != _complete.end()) {
        error(group.element->line, "duplicate-key",
              "the group " + quoted(group.id) + ' ' + inLine(_groups[first->second].element->line) + " alone counts");
        group.isUsed = true; // one finding will do
    } else if (group.lines.empty()) {
        warn(group.element->line, "empty-group", "the group " + quoted(group.id) + " has no line that is exported");
    } else {
        _complete.emplace(toUpper(group.id), index);
    }
}

void PLMAttributesLinter::include(std::size_t index, const XmlElement& include) {
    Group& current = _groups[index];
    const std::string wanted = toUpper(include.attribute(names::includedId));
    if (wanted.empty()) return;
    std::set<std::size_t> taken;
    for (const auto& [id, place] : _complete) taken.insert(place);
    takeIncludedPLMGroups(
        index, _groups.size(),
        [&] {
            for (const std::size_t k : taken) {
                for (const XmlElement* line : _groups[k].lines) current.add(*line);
            }
        },
        [&](std::size_t k) { return toUpper(_groups[k].id) == wanted && !_complete.contains(wanted); },
        [&](std::size_t k) {
            for (const XmlElement& child : _groups[k].element->children) {
                if (child.name == names::line && isExported(child)) current.add(child);
            }
            if (k != index) taken.insert(k);
        });
    judgeInclude(index, include, taken);
    current.sources.insert(taken.begin(), taken.end());
}

void PLMAttributesLinter::judgeInclude(std::size_t index, const XmlElement& include,
                                       const std::set<std::size_t>& taken) {
    const std::string& id = include.attribute(names::includedId);
    const std::size_t named = groupNamed(id);
    if (named == _groups.size() || (named < index && !_complete.contains(toUpper(id)))) return tellUnresolved(include);
    const auto hasIncludes = [](const XmlElement& group) {
        return std::ranges::find(group.children, names::include, &XmlElement::name) != group.children.end();
    };
    if (named == index) {
        error(include.line, "include-incomplete", "the group " + quoted(id) + " includes itself");
    } else if (named > index && hasIncludes(*_groups[named].element)) {
        error(include.line, "include-incomplete",
              "the group " + quoted(id) + " stands further down and comes without what it includes itself",
              "move it above");
    }
    std::vector<std::string_view> others;
    for (const std::size_t other : taken) {
        const auto& known = _groups[named].sources;
        if (other == named || known.contains(other) || _groups[index].sources.contains(other)) continue;
        others.push_back(_groups[other].id);
    }
    if (!others.empty()) {
        warn(include.line, "include-takes-more",
             "the include of " + quoted(id) + " takes in all groups above, also " + text::joined(others, ", ", quoted));
    }
}

void PLMAttributesLinter::judgeMapping(const XmlElement& mapping) {
    for (const XmlElement& child : mapping.children) {
        if (child.name == names::include) takeIn(mapping, child);
        if (child.name != names::line || !isExported(child)) continue;
        const Place* counts = addKey(mapping, child, child.line);
        if (counts == nullptr) continue;
        warn(child.line, "duplicate-key",
             quoted(child.attribute(names::plmAttribute)) + " of " + quoted(mapping.attribute(names::type)) +
                 " has a line " + shown(*counts) + " already, which counts");
    }
}

// The same line by two ways is no matter.
void PLMAttributesLinter::takeIn(const XmlElement& mapping, const XmlElement& include) {
    const std::string& id = include.attribute(names::includedId);
    if (id.empty()) return;
    const auto found = _complete.find(toUpper(id));
    if (found == _complete.end()) return tellUnresolved(include);
    Group& group = _groups[found->second];
    group.isUsed = true;
    for (const std::size_t source : group.sources) _groups[source].isUsed = true;
    std::vector<std::string> refused;
    std::string where;
    for (const XmlElement* line : group.lines) {
        const Place* counts = addKey(mapping, *line, include.line);
        if (counts == nullptr || counts->target == targetOf(*line)) continue;
        if (refused.empty()) where = shown(*counts);
        refused.push_back(line->attribute(names::plmAttribute));
    }
    if (refused.empty()) return;
    const std::string more = refused.size() > 1 ? " and " + std::to_string(refused.size() - 1) + " more" : "";
    warn(include.line, "duplicate-key",
         quoted(refused.front()) + more + " of group " + quoted(id) + ": " + quoted(mapping.attribute(names::type)) +
             " has a line " + where + " already, which counts");
}

const PLMAttributesLinter::Place* PLMAttributesLinter::addKey(const XmlElement& mapping, const XmlElement& line,
                                                              int number) {
    const std::string key = keyText({mapping.attribute(names::type), line.attribute(names::plmAttribute)});
    const auto [place, isNew] = _keys.try_emplace(key, Place{path(), targetOf(line), number});
    return isNew ? nullptr : &place->second;
}

void PLMAttributesLinter::tellUnresolved(const XmlElement& include) {
    const std::string& id = include.attribute(names::includedId);
    const bool exists = groupNamed(id) != _groups.size();
    std::vector<std::string_view> known;
    for (const auto& [name, index] : _complete) known.emplace_back(_groups[index].id);
    error(include.line, "unresolved-include",
          exists ? "the group " + quoted(id) + " has no line that is exported" : "there is no group " + quoted(id),
          exists ? std::string() : didYouMean(known, id));
}

void PLMAttributesLinter::tellUnused() {
    for (const Group& group : _groups) {
        if (group.isUsed || group.lines.empty() || group.id.empty()) continue;
        warn(group.element->line, "unused-group", "no mapping includes the group " + quoted(group.id));
    }
}

std::size_t PLMAttributesLinter::groupNamed(const std::string& id) const {
    const std::string wanted = toUpper(id);
    const auto found = std::ranges::find_if(_groups, [&](const Group& group) { return toUpper(group.id) == wanted; });
    return static_cast<std::size_t>(found - _groups.begin());
}

std::string PLMAttributesLinter::shown(const Place& place) const {
    return inLine(place.number) + (place.path == path() ? "" : " of " + place.path);
}

} // namespace velkor::lint
