#include "Bindings.h"
#include "Values.h"
#include "velkor/dictionaries/DictionaryDiff.h"

namespace py = pybind11;

namespace velkor::python {

namespace {

/// Owned texts, so that what was taken from a difference outlives the dictionaries.
template <class Items, class Text>
py::list textsOf(const Items& items, Text text) {
    py::list texts;
    for (const auto& item : items) texts.append(toText(text(item)));
    return texts;
}

template <class Items>
py::list namesOf(const Items& items) {
    return textsOf(items, [](std::string_view name) { return name; });
}

using Change = DictionaryDiff::Change;
using Item = DictionaryDiff::Item;

py::dict changesOf(const std::vector<Change>& changes) {
    py::dict answer;
    for (const Change& change : changes)
        answer[toText(change.name)] = py::make_tuple(toText(change.before), toText(change.after));
    return answer;
}

py::dict itemsOf(const std::vector<Item>& items) {
    py::dict answer;
    for (const Item& item : items) answer[toText(item.name)] = toText(item.description);
    return answer;
}

struct EntityDifference {
    py::str name;
    py::dict properties, added, removed, changed;
    bool isReordered;
};

struct TypeDifference {
    py::str name, kind;
    py::list added, removed;
    py::dict definition;
    bool isReordered;
};

struct Difference {
    py::list addedEntities, removedEntities, changedEntities;
    py::list addedTypes, removedTypes, changedTypes;
    py::list addedRules, removedRules;
    py::dict changedRules, renamedRules;
};

Difference differenceOf(const DictionaryDiff& diff) {
    const auto rule = [](const RuleFacts& facts) { return std::string_view(facts.name); };
    Difference answer;
    answer.addedEntities = namesOf(diff.addedEntities);
    answer.removedEntities = namesOf(diff.removedEntities);
    answer.addedTypes = namesOf(diff.addedTypes);
    answer.removedTypes = namesOf(diff.removedTypes);
    answer.addedRules = textsOf(diff.addedRules, rule);
    answer.removedRules = textsOf(diff.removedRules, rule);
    answer.changedRules = changesOf(diff.changedRules);
    for (const auto& entity : diff.changedEntities)
        answer.changedEntities.append(
            EntityDifference{toText(entity.name), changesOf(entity.properties), itemsOf(entity.addedAttributes),
                             itemsOf(entity.removedAttributes), changesOf(entity.changedAttributes), entity.reordered});
    for (const auto& type : diff.changedTypes)
        answer.changedTypes.append(TypeDifference{toText(type.name), toText(type.kind), namesOf(type.added),
                                                  namesOf(type.removed), changesOf(type.definition), type.reordered});
    for (const auto& renamed : diff.renamedRules) answer.renamedRules[toText(renamed.before)] = toText(renamed.after);
    return answer;
}

} // namespace

void declareDictionaryDiff(py::module_& module) {
    py::class_<EntityDifference>(module, "EntityDifference", "An entity that is another in the second dictionary.")
        .def_readonly("name", &EntityDifference::name)
        .def_readonly("properties", &EntityDifference::properties,
                      "'supertype', 'abstract', 'uniqueness rules': before and after.")
        .def_readonly("added_attributes", &EntityDifference::added, "Name and type, those inherited left out.")
        .def_readonly("removed_attributes", &EntityDifference::removed)
        .def_readonly("changed_attributes", &EntityDifference::changed, "Name, and types before and after.")
        .def_readonly("is_reordered", &EntityDifference::isReordered,
                      "Whether the attributes in both stand in another order.");
    py::class_<TypeDifference>(module, "TypeDifference", "A type that is another in the second dictionary.")
        .def_readonly("name", &TypeDifference::name)
        .def_readonly("kind", &TypeDifference::kind, "'enumeration', 'select' or 'type', as the second has it.")
        .def_readonly("added", &TypeDifference::added, "Enumerators or items.")
        .def_readonly("removed", &TypeDifference::removed)
        .def_readonly("definition", &TypeDifference::definition, "Of others: before and after.")
        .def_readonly("is_reordered", &TypeDifference::isReordered,
                      "Whether the enumerators in both stand in another order.");
    py::class_<Difference>(module, "DictionaryDifference",
                           "What changed from one dictionary to another, in alphabetical order.")
        .def_readonly("added_entities", &Difference::addedEntities)
        .def_readonly("removed_entities", &Difference::removedEntities)
        .def_readonly("changed_entities", &Difference::changedEntities)
        .def_readonly("added_types", &Difference::addedTypes)
        .def_readonly("removed_types", &Difference::removedTypes)
        .def_readonly("changed_types", &Difference::changedTypes)
        .def_readonly("added_rules", &Difference::addedRules, "'IfcWall.CorrectPredefinedType'.")
        .def_readonly("removed_rules", &Difference::removedRules)
        .def_readonly("changed_rules", &Difference::changedRules, "Name, and EXPRESS texts before and after.")
        .def_readonly("renamed_rules", &Difference::renamedRules, "Name before, and after.");
}

py::object differenceBetween(const sdai::SchemaDefinition& before, const sdai::SchemaDefinition& after) {
    return py::cast(differenceOf(compareDictionaries(before, after)));
}

} // namespace velkor::python
