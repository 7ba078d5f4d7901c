#include "AECLinter.h"

#include "ResourceNames.h"
#include "velkor/text/QORUnicodeString.h"

#include <map>

namespace velkor::lint {

namespace {

namespace names = velkor::names::aec;

const Format& format() {
    static const Format result{
        nullptr,
        {{names::neutral, {}, {names::name}},
         {names::ifc, {names::neutral}, {names::name}, {names::priority}},
         {names::plm, {names::neutral}, {names::name}, {names::priority}},
         {names::condition, {names::ifc, names::plm}, {}, {names::attribute, names::value}, true},
         {names::valuate, {names::ifc, names::plm}, {names::attribute}, {names::value}}}};
    return result;
}

std::vector<const XmlElement*> conditionsOf(const XmlElement& side) {
    std::vector<const XmlElement*> result;
    side.visitNamed(names::condition, [&](const XmlElement& condition) { result.push_back(&condition); });
    return result;
}

bool readPriority(const XmlElement& side, int& priority) {
    return QORUnicodeString(std::string_view(side.attribute(names::priority))).ConvertToNum(priority);
}

} // namespace

AECLinter::AECLinter(Dictionaries& dictionaries) : Linter(format(), dictionaries) {}

void AECLinter::judgeEntries(const XmlElement& root) {
    std::map<std::string, int> known;
    root.visitNamed(names::neutral, [&](const XmlElement& neutral) {
        countEntry();
        const std::string& name = neutral.attribute(names::name);
        const auto [first, isNew] = known.try_emplace(toUpper(name), neutral.line);
        if (!isNew && !name.empty()) {
            warn(neutral.line, "duplicate-key",
                 quoted(name) + " has an entry " + inLine(first->second) + " already, which alone answers for it");
        }
        judgeNeutral(neutral);
    });
    judgeOrder(AECSide::IFC);
    judgeOrder(AECSide::PLM);
}

void AECLinter::judgeNeutral(const XmlElement& neutral) {
    for (const char* tag : {names::ifc, names::plm}) {
        const XmlElement* first = nullptr;
        for (const XmlElement& side : neutral.children) {
            if (side.name != tag) continue;
            judgePlace(side);
            judgeSide(side);
            if (!side.isExamined()) continue;
            if (first != nullptr) {
                warn(side.line, "duplicate-side",
                     quoted(neutral.attribute(names::name)) + " has another " + tag + ' ' + inLine(first->line) +
                         ", which alone answers for it");
            } else {
                first = &side;
            }
        }
    }
}

void AECLinter::judgeSide(const XmlElement& side) {
    if (side.name == names::ifc) judgeEntity(side.line, side.attribute(names::name), {});
    int priority = 0;
    if (side.hasAttribute(names::priority) && !readPriority(side, priority)) {
        warn(side.line, "bad-priority",
             "expected a whole number as " + quoted(names::priority) + ", found " +
                 quoted(side.attribute(names::priority)) + ", which counts as 0");
    }
    for (const XmlElement& child : side.children) {
        if (child.name == names::valuate) judgePlace(child);
    }
    judgeCondition(side);
}

void AECLinter::judgeCondition(const XmlElement& side) {
    const auto conditions = conditionsOf(side);
    for (std::size_t i = 1; i < conditions.size(); ++i) {
        warn(conditions[i]->line, "condition-ignored",
             "the first condition of an entry alone counts, the one " + inLine(conditions.front()->line));
    }
    if (conditions.empty()) return;
    const XmlElement& condition = *conditions.front();
    const std::string& attribute = condition.attribute(names::attribute);
    if (attribute.empty()) {
        warn(condition.line, "condition-ignored", "a condition without " + quoted(names::attribute) + " always holds");
        return;
    }
    if (!condition.hasAttribute(names::value))
        error(condition.line, "missing-value", std::string(names::condition) + " has no " + quoted(names::value));
    if (side.name != names::ifc) return;
    const std::string& entity = side.attribute(names::name);
    judgeProperty(condition.line, entity, attribute, {});
    judgeEnumerator(condition.line, entity, attribute, condition.attribute(names::value), {}, true);
}

void AECLinter::judgeOrder(AECSide side) {
    AECEntries entries;
    QORIFCAECEntries::GetEntries(document(), side, entries);
    for (const auto& [type, ofType] : entries) {
        // By condition; one without any decides whatever follows.
        std::map<std::string, int> seen;
        for (const AECEntry& entry : ofType) {
            const std::string condition =
                entry.condition ? entry.condition->wantedName + '\n' + entry.condition->value : std::string();
            const auto always = seen.find("");
            const auto [same, isNew] = seen.try_emplace(condition, entry.line);
            if (always == seen.end() && isNew) continue;
            const auto& [firstCondition, firstLine] = always == seen.end() ? *same : *always;
            warn(entry.line, "unreachable",
                 quoted(entry.type) + " is always decided by the entry " + inLine(firstLine) +
                     (firstCondition.empty() ? ", which comes first and has no condition"
                                             : ", which comes first with the same condition"));
        }
    }
}

} // namespace velkor::lint
