#include "output/Csv.h"
#include "output/SetCatalogueText.h"
#include "velkor/text/Wording.h"

#include <nlohmann/json.hpp>
#include <string>

namespace velkor::host {

namespace {

std::string statedText(const std::string& text) {
    return text.empty() ? "not stated" : text;
}

std::string typeText(const PropertyDefinition& property) {
    std::string text(wordOf(property.kind));
    if (!property.valueType.empty()) text.append(" ").append(property.valueType);
    return text;
}

void writeNames(TextSink out, const char* title, const std::vector<const SetDefinition*>& sets) {
    if (sets.empty()) return;
    out << '\n' << title << '\n';
    for (const SetDefinition* set : sets) out << "  " << set->name << '\n';
}

template <class Range, class Word>
void writeList(TextSink out, const char* heading, const Range& items, Word word) {
    if (!items.empty()) out << heading << text::joined(items, ", ", word) << '\n';
}

void writeChanges(TextSink out, const std::vector<SetDifference::Change>& changes) {
    for (const auto& change : changes)
        out << change.what << ' ' << statedText(change.before) << " -> " << statedText(change.after) << '\n';
}

void writeSet(TextSink out, const SetDifference& set) {
    const auto classText = [](const ApplicableClass* one) { return textOf(*one); };
    out << "  " << set.name << '\n';
    for (const auto& change : set.changes) {
        out << "    ~ ";
        writeChanges(out, {change});
    }
    writeList(out, "    + applies to ", set.addedClasses, classText);
    writeList(out, "    - applies to ", set.removedClasses, classText);
    writeList(out, "    + methods of measurement ", set.addedMethods, std::identity());
    writeList(out, "    - methods of measurement ", set.removedMethods, std::identity());
    for (const auto& property : set.addedProperties)
        out << "    + " << property.name << ": " << typeText(*property.definition) << '\n';
    for (const auto& property : set.removedProperties)
        out << "    - " << property.name << ": " << typeText(*property.definition) << '\n';
    for (const auto& property : set.changedProperties) {
        for (const auto& change : property.changes) {
            out << "    ~ " << property.name << ": ";
            writeChanges(out, {change});
        }
        const std::string name = "    ~ " + property.name;
        if (!property.addedEnumerators.empty())
            out << name << ": values added " << text::joined(property.addedEnumerators) << '\n';
        if (!property.removedEnumerators.empty())
            out << name << ": values removed " << text::joined(property.removedEnumerators) << '\n';
    }
}

Json namesJson(const std::vector<const SetDefinition*>& sets) {
    Json result = Json::array();
    for (const SetDefinition* set : sets) result.push_back(set->name);
    return result;
}

Json changesJson(const std::vector<SetDifference::Change>& changes) {
    Json result = Json::array();
    for (const auto& change : changes)
        result.push_back(
            {{"what", change.what}, {"before", textOrNull(change.before)}, {"after", textOrNull(change.after)}});
    return result;
}

Json classesJson(const std::vector<const ApplicableClass*>& classes) {
    Json result = Json::array();
    for (const ApplicableClass* one : classes) result.push_back(textOf(*one));
    return result;
}

Json propertiesJson(const std::vector<SetDifference::Property>& properties) {
    Json result = Json::array();
    for (const auto& property : properties)
        result.push_back({{"name", property.name},
                          {"kind", wordOf(property.definition->kind)},
                          {"value_type", textOrNull(property.definition->valueType)}});
    return result;
}

Json setJson(const SetDifference& set) {
    Json changed = Json::array();
    for (const auto& property : set.changedProperties)
        changed.push_back({{"name", property.name},
                           {"changes", changesJson(property.changes)},
                           {"added_values", property.addedEnumerators},
                           {"removed_values", property.removedEnumerators}});
    return {{"name", set.name},
            {"changes", changesJson(set.changes)},
            {"added_classes", classesJson(set.addedClasses)},
            {"removed_classes", classesJson(set.removedClasses)},
            {"added_methods", set.addedMethods},
            {"removed_methods", set.removedMethods},
            {"added_properties", propertiesJson(set.addedProperties)},
            {"removed_properties", propertiesJson(set.removedProperties)},
            {"changed_properties", std::move(changed)}};
}

/// Lines of one set.
class CsvLines {
public:
    CsvLines(TextSink out, std::string_view set) : _out(out), _set(csvField(set)) {}

    void add(std::string_view property, std::string_view change, std::string_view before, std::string_view after) {
        _out << _set << ',' << csvField(property) << ',' << change << ',' << csvField(before) << ',' << csvField(after)
             << "\r\n";
    }
    void addAll(const SetDifference& set) {
        for (const auto& change : set.changes) add({}, change.what, change.before, change.after);
        for (const ApplicableClass* one : set.addedClasses) add({}, "class", {}, textOf(*one));
        for (const ApplicableClass* one : set.removedClasses) add({}, "class", textOf(*one), {});
        for (const std::string_view method : set.addedMethods) add({}, "method", {}, method);
        for (const std::string_view method : set.removedMethods) add({}, "method", method, {});
        for (const auto& one : set.addedProperties) add(one.name, "property", {}, typeText(*one.definition));
        for (const auto& one : set.removedProperties) add(one.name, "property", typeText(*one.definition), {});
        for (const auto& property : set.changedProperties) {
            for (const auto& change : property.changes) add(property.name, change.what, change.before, change.after);
            for (const std::string_view value : property.addedEnumerators) add(property.name, "value", {}, value);
            for (const std::string_view value : property.removedEnumerators) add(property.name, "value", value, {});
        }
    }

private:
    TextSink _out;
    std::string _set;
};

} // namespace

void writeSetDifferences(TextSink out, std::string_view before, std::string_view after,
                         const CatalogueDifference& difference) {
    out << before << " -> " << after << '\n'
        << "sets: " << difference.added.size() << " added, " << difference.removed.size() << " removed, "
        << difference.changed.size() << " changed, " << difference.unchanged << " the same\n";
    writeNames(out, "added sets", difference.added);
    writeNames(out, "removed sets", difference.removed);
    if (!difference.changed.empty()) out << "\nchanged sets\n";
    for (const SetDifference& set : difference.changed) writeSet(out, set);
}

Json setDifferencesJson(std::string_view before, std::string_view after, const CatalogueDifference& difference) {
    Json changed = Json::array();
    for (const SetDifference& set : difference.changed) changed.push_back(setJson(set));
    return {{"before", before},
            {"after", after},
            {"added", namesJson(difference.added)},
            {"removed", namesJson(difference.removed)},
            {"changed", std::move(changed)},
            {"unchanged", difference.unchanged}};
}

void writeSetDifferencesCsv(TextSink out, const CatalogueDifference& difference) {
    out << "set,property,change,before,after\r\n";
    for (const SetDefinition* set : difference.added) CsvLines(out, set->name).add({}, "set", {}, set->name);
    for (const SetDefinition* set : difference.removed) CsvLines(out, set->name).add({}, "set", set->name, {});
    for (const SetDifference& set : difference.changed) CsvLines(out, set.name).addAll(set);
}

} // namespace velkor::host
