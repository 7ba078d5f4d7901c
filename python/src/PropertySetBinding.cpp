#include "Bindings.h"
#include "Failure.h"
#include "ServiceSetup.h"
#include "Values.h"
#include "velkor/dictionaries/EntityFacts.h"
#include "velkor/propertysets/DefinitionSearch.h"
#include "velkor/propertysets/SetCatalogue.h"

#include <pybind11/stl.h>

namespace py = pybind11;

namespace velkor::python {

namespace {

/// The definitions of a release, with the dictionary that they speak of.
struct Catalogue {
    std::unique_ptr<SetLibrary> library;
    const SetCatalogue* sets = nullptr;
    DXSdaiDictionaryRepo::SchemaPointer schema;
};

std::unique_ptr<Catalogue> catalogueOf(const std::string& release, const std::string& configuration) {
    const std::string meant = releaseMeant(release);
    return withServices(configuration, [&](const PlatformSetup& setup) {
        auto schema = DXSdaiDictionaryRepo::TheOne().schema(meant.empty() ? release : meant);
        if (!schema) throw Failure(schema.error(), {});
        auto catalogue = std::make_unique<Catalogue>();
        catalogue->library = std::make_unique<SetLibrary>(definitionViews(setup));
        catalogue->sets = &catalogue->library->of((*schema)->name());
        catalogue->schema = *schema;
        return catalogue;
    });
}

SetDefinition show(const Catalogue& self, const std::string& name) {
    if (const SetDefinition* set = self.sets->find(name)) return *set;
    if (const std::string reason = self.sets->unreadable(name); !reason.empty())
        throw Failure("set-unreadable", reason, {.path = self.sets->path(name)});
    std::string message = self.sets->release();
    message.append(" defines no set '").append(name).append("'");
    if (const std::string likely = self.sets->likelyName(name); !likely.empty())
        message.append("; probably meant: ").append(likely);
    throw Failure("set-unknown", message);
}

py::list names(const Catalogue& self) {
    py::list list;
    for (const std::string_view name : self.sets->names()) list.append(toText(name));
    return list;
}

py::list applicable(const Catalogue& self, const std::string& entity, const std::string& predefinedType) {
    py::list list;
    for (const SetDefinition* set :
         self.sets->applicableTo(entityNamed(*self.schema, entity), upperCase(predefinedType)))
        list.append(toText(set->name));
    return list;
}

void declareDefinitions(py::module_& module) {
    py::class_<PropertyDefinition>(module, "Property", "What a definition says of a property or quantity.")
        .def_property_readonly("name", [](const PropertyDefinition& self) { return toText(self.name); })
        .def_property_readonly(
            "kind", [](const PropertyDefinition& self) { return toText(wordOf(self.kind)); },
            "'single', 'enumerated', 'length' …")
        .def_property_readonly(
            "value_type", [](const PropertyDefinition& self) { return textOrNone(self.valueType); },
            "The type of the values, 'IfcLabel'; None when any will do.")
        .def_property_readonly(
            "unit_type", [](const PropertyDefinition& self) { return textOrNone(self.unitType); },
            "'LENGTHUNIT'; None when the definition does not say.")
        .def_property_readonly(
            "enumerators", [](const PropertyDefinition& self) { return toTexts(self.enumerators); },
            "Of enumerated properties, in the definition's order.")
        .def_readonly("members", &PropertyDefinition::members, "Of complex properties.")
        .def("__repr__",
             [](const PropertyDefinition& self) { return py::str("<velkor.Property {}>").format(toText(self.name)); });
    py::class_<SetDefinition>(module, "PropertySet", "The definition of a property set or quantity set.")
        .def_property_readonly("name", [](const SetDefinition& self) { return toText(self.name); })
        .def_readonly("is_quantity_set", &SetDefinition::isQuantitySet)
        .def_property_readonly(
            "template_type", [](const SetDefinition& self) { return textOrNone(wordOf(self.templateType)); },
            "'type-driven-override', 'occurrence-driven' …; None when it does not say.")
        .def_property_readonly(
            "classes",
            [](const SetDefinition& self) {
                py::list list;
                for (const ApplicableClass& named : self.classes) list.append(toText(textOf(named)));
                return list;
            },
            "What it applies to: 'IfcWall', 'IfcActuator/ELECTRICACTUATOR'.")
        .def_readonly("properties", &SetDefinition::properties, "In the definition's order.")
        .def("__repr__",
             [](const SetDefinition& self) { return py::str("<velkor.PropertySet {}>").format(toText(self.name)); });
}

} // namespace

void declarePropertySets(py::module_& module) {
    declareDefinitions(module);
    py::class_<Catalogue>(module, "PropertySets", "The property sets and quantity sets that a release defines.")
        .def(py::init(&catalogueOf), py::arg("release"), py::arg("configuration") = "",
             "Of a release, as Dictionary knows it.\n"
             "configuration  -- path of a configuration file; the shipped definitions count without\n"
             "Raises Error 'schema-unknown', 'configuration-invalid'.")
        .def_property_readonly(
            "release", [](const Catalogue& self) { return toText(self.sets->release()); },
            "That of the definitions: 'IFC4X3_ADD2' for IFC4X4.")
        .def_property_readonly("names", &names, "Sorted.")
        .def("__len__", [](const Catalogue& self) { return self.sets->names().size(); })
        .def(
            "__contains__", [](const Catalogue& self, const std::string& name) { return self.sets->contains(name); },
            py::arg("name"))
        .def("show", &show, py::arg("name"),
             "The definition of a set; letter case counts. Raises Error 'set-unknown', 'set-unreadable'.")
        .def("applicable", &applicable, py::arg("entity"), py::arg("predefined_type") = "",
             "Names of the sets that apply to objects of an entity: with a predefined type those that apply to that "
             "too, without those too that apply to some type alone.\n"
             "Raises Error 'unknown-entity'.");
}

} // namespace velkor::python
