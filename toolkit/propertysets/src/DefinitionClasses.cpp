#include "DefinitionClasses.h"

#include "DefinitionFaults.h"
#include "DefinitionTexts.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace velkor::definitions {

namespace {

constexpr std::string_view classPrefix = "Ifc";
// Of classes in one text.
constexpr std::string_view classSeparators = ",;";

// Takes what stands before a separator off a text, without blanks around it.
std::string_view taken(std::string_view& text, std::string_view separators) {
    const std::size_t end = std::min(text.find_first_of(separators), text.size());
    const std::string_view first = trimmed(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    return first;
}

// An object type may have a comma too, but what follows there is no class.
bool namesSeveral(std::string_view text) {
    if (text.find_first_of(classSeparators) == std::string_view::npos) return false;
    while (!text.empty()) {
        const std::string_view piece = taken(text, classSeparators).substr(0, classPrefix.size());
        if (!piece.empty() && !text::equalIgnoringCase(piece, classPrefix)) return false;
    }
    return true;
}

bool isIdentifier(std::string_view text) {
    return std::ranges::all_of(text, [](char c) {
        const char lower = text::asciiLower(c);
        return (lower >= 'a' && lower <= 'z') || (c >= '0' && c <= '9') || c == '_';
    });
}

// Where a condition on a class is one of these, objects of that kind are meant.
constexpr std::string_view typeAttributes[] = {"PredefinedType", "ObjectType", "ElementType", "OperationType"};
// What has the class as its type, or is the performance history of such a thing.
constexpr std::string_view relatedPrefix = "RelatedEntityIs:";
constexpr std::string_view performanceHistory = "IfcPerformanceHistory";

struct Condition {
    bool isOfRelated = false;
    std::string_view entity;
    std::vector<std::string_view> values;
};

// Values in quotation marks, commas between them.
bool takeValues(std::string_view text, std::vector<std::string_view>& values) {
    while (!text.empty()) {
        const std::size_t end = text.find('"', 1);
        if (text.front() != '"' || end == std::string_view::npos) return false;
        values.push_back(trimmed(text.substr(1, end - 1)));
        text = trimmed(text.substr(end + 1));
        if (text.empty()) break;
        if (text.front() != ',') return false;
        text = trimmed(text.substr(1));
    }
    return !values.empty();
}

// Nothing for a condition of another form.
std::optional<Condition> conditionOf(std::string_view text) {
    Condition result;
    result.isOfRelated = text.starts_with(relatedPrefix);
    if (result.isOfRelated) text = trimmed(text.substr(relatedPrefix.size()));
    const std::size_t point = text.find('.'), equals = text.find('=');
    if (!text.starts_with(classPrefix) || point == std::string_view::npos || equals == std::string_view::npos ||
        point > equals)
        return {};
    result.entity = trimmed(text.substr(0, point));
    if (!isIdentifier(result.entity)) return {};
    const std::string_view attribute = trimmed(text.substr(point + 1, equals - point - 1));
    if (std::ranges::find(typeAttributes, attribute) == std::end(typeAttributes)) return {};
    if (!takeValues(trimmed(text.substr(equals + 1)), result.values)) return {};
    return result;
}

class ConditionReader {
public:
    ConditionReader(int line, std::vector<ApplicableClass>& classes, std::vector<DefinitionFault>& faults)
        : _line(line), _classes(classes), _faults(faults) {}

    void read(std::string_view text) {
        while (!text.empty()) {
            const std::string_view alternative = taken(text, "|");
            if (alternative.empty()) continue;
            if (alternative.find('=') == std::string_view::npos)
                readClasses(alternative);
            else
                readCondition(alternative);
        }
    }

private:
    void readClasses(std::string_view text) {
        while (!text.empty()) {
            std::string_view behind = taken(text, classSeparators);
            const std::string_view entity = taken(behind, "/");
            if (!entity.empty() && !trimmed(behind).empty()) restrict(entity, {{trimmed(behind)}});
        }
    }

    void readCondition(std::string_view text) {
        std::optional<Condition> condition = conditionOf(text);
        if (!condition) return fault(text, "left out");
        for (std::string_view& value : condition->values) {
            if (!value.ends_with('.')) continue;
            value.remove_suffix(1);
            addFault(_faults, _line, definitionfaults::strayPoint, shown(std::string(value) + '.'),
                     "read as " + std::string(value));
        }
        if (!condition->isOfRelated) {
            if (!restrict(condition->entity, condition->values)) fault(text, "left out, since it is of no class here");
            return;
        }
        const auto isHistory = [](const ApplicableClass& each) { return each.entity == performanceHistory; };
        if (std::ranges::any_of(_classes, isHistory))
            return fault(text, "left out, histories are known by their class");
        // The class of the objects says less than that of their type.
        _classes.clear();
        for (const std::string_view value : condition->values)
            _classes.push_back({std::string(condition->entity), std::string(value)});
        fault(text, "those whose type is that are meant");
    }

    // Puts a class for each predefined type in the place of one that has none; true when there is that class.
    bool restrict(std::string_view entity, const std::vector<std::string_view>& predefinedTypes) {
        const auto found = std::ranges::find_if(_classes, [&](const ApplicableClass& each) {
            return each.entity == entity && each.predefinedType.empty();
        });
        if (found == _classes.end())
            return std::ranges::find(_classes, entity, &ApplicableClass::entity) != _classes.end();
        std::vector<ApplicableClass> restricted;
        for (const std::string_view predefinedType : predefinedTypes)
            restricted.push_back({std::string(entity), std::string(predefinedType)});
        const auto place = _classes.erase(found);
        _classes.insert(place, std::make_move_iterator(restricted.begin()), std::make_move_iterator(restricted.end()));
        return true;
    }

    void fault(std::string_view text, std::string_view becomes) {
        addFault(_faults, _line, definitionfaults::condition, "the condition " + shown(text), becomes);
    }

    int _line;
    std::vector<ApplicableClass>& _classes;
    std::vector<DefinitionFault>& _faults;
};

} // namespace

void addClasses(std::string_view text, int line, std::vector<ApplicableClass>& classes,
                std::vector<DefinitionFault>& faults) {
    std::string_view rest = trimmed(text);
    if (rest.empty()) return addFault(faults, line, definitionfaults::classMissing, "an empty class", "left out");
    const bool areSeveral = namesSeveral(rest);
    if (areSeveral)
        addFault(faults, line, definitionfaults::classesInOneText, shown(rest), "each of them is taken");
    else if (rest.size() != text.size())
        addFault(faults, line, definitionfaults::blanks, shown(text), "read as " + shown(rest));
    while (!rest.empty()) {
        const std::string_view whole = areSeveral ? taken(rest, classSeparators) : std::exchange(rest, {});
        std::string_view behind = whole;
        std::string_view entity = taken(behind, "/");
        behind = trimmed(behind);
        if (behind.starts_with(classPrefix) && !entity.starts_with(classPrefix)) {
            entity = taken(behind, "/");
            behind = trimmed(behind);
            addFault(faults, line, definitionfaults::classWithSchema, shown(whole), "read as " + std::string(entity));
        }
        if (!entity.empty()) classes.push_back({std::string(entity), std::string(behind)});
    }
}

void addConditions(std::string_view text, int line, std::vector<ApplicableClass>& classes,
                   std::vector<DefinitionFault>& faults) {
    ConditionReader(line, classes, faults).read(trimmed(text));
}

} // namespace velkor::definitions
