#include "Bindings.h"
#include "Failure.h"
#include "Values.h"
#include "velkor/dictionaries/EntityFacts.h"

namespace py = pybind11;

namespace velkor::python {

namespace {

using SchemaPointer = DXSdaiDictionaryRepo::SchemaPointer;

/// The dictionary of a release.
struct Dictionary {
    SchemaPointer schema;
};

Dictionary dictionaryOf(const std::string& release) {
    const std::string meant = releaseMeant(release);
    const py::gil_scoped_release released;
    auto schema = DXSdaiDictionaryRepo::TheOne().schema(meant.empty() ? release : meant);
    if (!schema) throw Failure(schema.error(), {});
    return {*schema};
}

template <class Names>
py::list listOf(const Names& names) {
    py::list list;
    for (const auto& name : names) list.append(toText(name));
    return list;
}

py::list entities(const Dictionary& self) {
    py::list names;
    for (const sdai::EntityDefinition* entity : self.schema->entities()) names.append(toText(entity->name()));
    return names;
}

bool isSubtype(const Dictionary& self, const std::string& entity, const std::string& ancestor) {
    return entityNamed(*self.schema, entity).isKindOf(entityNamed(*self.schema, ancestor));
}

/// Facts are views into the dictionary, which they keep.
struct Entity {
    SchemaPointer schema;
    EntityFacts facts;
};

py::list attributes(const py::object& self) {
    py::list list;
    const auto& entity = self.cast<const Entity&>();
    for (const EntityFacts::Attribute& attribute : entity.facts.attributes) {
        py::object item = py::cast(attribute);
        // Names are views into the dictionary.
        py::detail::keep_alive_impl(item, self);
        list.append(item);
    }
    return list;
}

void declareEntity(py::module_& module) {
    using Attribute = EntityFacts::Attribute;
    py::class_<Attribute>(module, "Attribute", "An attribute of an entity, as its release declares it.")
        .def_property_readonly(
            "name", [](const Attribute& self) { return toText(self.name); }, "In upper case.")
        .def_property_readonly(
            "owner", [](const Attribute& self) { return toText(self.owner); }, "The entity that declares it.")
        .def_property_readonly(
            "type", [](const Attribute& self) { return toText(self.type); }, "In EXPRESS notation, without OPTIONAL.")
        .def_readonly("is_optional", &Attribute::isOptional)
        .def_readonly("is_derived", &Attribute::isDerived)
        .def_property_readonly(
            "position", [](const Attribute& self) { return numberOrNone(self.position); },
            "Place among the values of an instance, counted from 1; None when it has none there.")
        .def("__repr__",
             [](const Attribute& self) { return py::str("<velkor.Attribute {}>").format(toText(self.name)); });
    py::class_<Entity>(module, "Entity", "An entity of a release, inherited attributes included.")
        .def_property_readonly(
            "name", [](const Entity& self) { return toText(self.facts.name); }, "In upper case.")
        .def_property_readonly("is_abstract", [](const Entity& self) { return self.facts.isAbstract; })
        .def_property_readonly(
            "supertypes", [](const Entity& self) { return listOf(self.facts.supertypes); },
            "From the nearest to the root.")
        .def_property_readonly(
            "subtypes", [](const Entity& self) { return listOf(self.facts.subtypes); }, "One level down.")
        .def_property_readonly("attributes", &attributes,
                               "In the order of an instance's values; behind them those that have no value there.")
        .def("__repr__",
             [](const Entity& self) { return py::str("<velkor.Entity {}>").format(toText(self.facts.name)); });
}

} // namespace

const sdai::EntityDefinition& entityNamed(const sdai::SchemaDefinition& schema, std::string_view name) {
    if (const sdai::EntityDefinition* entity = schema.entity(name)) return *entity;
    std::string message(schema.name());
    message.append(" has no entity '").append(name).append("'");
    const auto near = nearestEntities(schema, name, 1);
    if (!near.empty()) message.append("; probably meant: ").append(near.front());
    throw Failure("unknown-entity", message);
}

void declareDictionaries(py::module_& module, ModelClass& model) {
    declareEntity(module);
    declareDictionaryDiff(module);
    py::class_<Dictionary>(module, "Dictionary",
                           "The dictionary of a release: its entities and their attributes. Letter case is ignored in "
                           "names.")
        .def(py::init(&dictionaryOf), py::arg("release"),
             "Of a release: 'IFC2X3', 'IFC4', …, what files write ('IFC2X3_TC1') or a short form ('4x3').\n"
             "Raises Error 'schema-unknown'.")
        .def_property_readonly("name", [](const Dictionary& self) { return toText(self.schema->name()); })
        .def_property_readonly("entities", &entities, "The names of all entities, in upper case.")
        .def(
            "entity",
            [](const Dictionary& self, const std::string& name) {
                return Entity{self.schema, entityFacts(entityNamed(*self.schema, name))};
            },
            py::arg("name"), "An entity by name. Raises Error 'unknown-entity'.")
        .def(
            "diff",
            [](const Dictionary& self, const Dictionary& other) {
                return differenceBetween(*self.schema, *other.schema);
            },
            py::arg("other"), "What is other in another dictionary, from this one to that.")
        .def("is_subtype", &isSubtype, py::arg("entity"), py::arg("ancestor"),
             "Whether an entity is another or one of its subtypes at any depth. Raises Error 'unknown-entity'.")
        .def(
            "__contains__",
            [](const Dictionary& self, const std::string& name) { return self.schema->entity(name) != nullptr; },
            py::arg("name"))
        .def("__repr__", [](const Dictionary& self) {
            return py::str("<velkor.Dictionary {}>").format(toText(self.schema->name()));
        });
    module.def(
        "releases", [] { return toTexts(DXSdaiDictionaryRepo::TheOne().names()); },
        "The names of all dictionaries there are.");
    model.def_property_readonly(
        "dictionary", [](const OpenModel& self) { return dictionaryOf(std::string(self.model().schema().name())); },
        "The dictionary of its release.");
}

} // namespace velkor::python
