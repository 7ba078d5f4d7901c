#include "Bindings.h"
#include "Failure.h"
#include "Values.h"

#include <pybind11/operators.h>

namespace py = pybind11;

namespace velkor::python {

namespace {

std::shared_ptr<OpenModel> openModel(const py::object& path) {
    const auto name = py::module_::import("os").attr("fspath")(path).cast<std::string>();
    const py::gil_scoped_release released;
    auto model = sdai::Model::open(name);
    if (!model) throw Failure(model.error(), name);
    return std::make_shared<OpenModel>(std::move(*model), name);
}

py::object instanceAt(const SharedModel& model, std::uint32_t number) {
    const ModelLock lock = model->lock();
    return py::cast(Instance{model, model->model().instanceAt(number)});
}

/// Instances of a model in file order, each made when it is asked for.
struct InstanceList {
    SharedModel model;
    std::vector<std::uint32_t> numbers;

    py::object at(py::ssize_t index) const {
        const auto count = static_cast<py::ssize_t>(numbers.size());
        const py::ssize_t place = index < 0 ? index + count : index;
        if (place < 0 || place >= count) throw py::index_error("no such instance in the list");
        return instanceAt(model, numbers[static_cast<std::size_t>(place)]);
    }
};

struct InstanceIterator {
    SharedModel model;
    std::uint32_t next = 0;

    py::object advance() {
        if (next >= model->model().file().instanceCount()) throw py::stop_iteration();
        return instanceAt(model, next++);
    }
};

InstanceList byEntity(const SharedModel& model, const std::string& name, bool subtypes) {
    const sdai::EntityDefinition& entity = entityNamed(model->model().schema(), name);
    auto numbers = model->work([&](const sdai::Model& opened) {
        auto found = opened.numbersOf(entity.name());
        if (!subtypes) std::erase_if(found, [&](std::uint32_t number) { return opened.entityAt(number) != &entity; });
        return found;
    });
    return {model, std::move(numbers)};
}

py::object byId(const SharedModel& model, std::uint64_t id) {
    const ModelLock lock = model->lock();
    DXSdaiAppInstance* instance = model->model().instance(id);
    if (instance == nullptr) throw py::key_error(("there is no instance #" + std::to_string(id)).c_str());
    return py::cast(Instance{model, instance});
}

/// Nothing when the entity has no attribute of the name.
std::optional<py::object> attributeNamed(const Instance& self, const std::string& name) {
    const ModelLock lock = self.model->lock();
    const sdai::EntityDefinition* entity = self.instance->entity();
    if (entity == nullptr) {
        const std::string upper = upperCase(name);
        const sdai::Primitive value = self.instance->GetAttr(upper);
        if (value.declaredType() == nullptr) return std::nullopt;
        return toPython(self, value, upper);
    }
    const int index = entity->attributeIndex(name);
    if (index < 0) return std::nullopt;
    const auto place = static_cast<std::size_t>(index);
    return toPython(self, self.instance->attribute(place), entity->attributes()[place].attribute->name());
}

std::string noAttribute(const Instance& self, const std::string& name) {
    return entityName(*self.instance) + " has no attribute '" + name + "' that a file holds a value of";
}

py::dict attributes(const Instance& self) {
    const ModelLock lock = self.model->lock();
    const sdai::EntityDefinition* entity = self.instance->entity();
    if (entity == nullptr)
        throw Failure("no-single-entity",
                      "the dictionary has no single entity for #" + std::to_string(self.instance->id()) +
                          ": its attributes are to be had by name alone",
                      {.path = self.model->path(), .instance = self.instance->id()});
    py::dict values;
    for (std::size_t i = 0; i < entity->attributes().size(); ++i) {
        const std::string_view name = entity->attributes()[i].attribute->name();
        values[toText(name)] = toPython(self, self.instance->attribute(i), name);
    }
    return values;
}

bool isA(const Instance& self, const std::string& name) {
    const sdai::EntityDefinition& entity = entityNamed(self.model->model().schema(), name);
    return self.instance->IsKindOf(entity.name());
}

void declareInstance(py::module_& module) {
    py::class_<Instance>(module, "Instance",
                         "An instance of a model. Its attributes are read by name, letter case ignored: wall.Name.\n"
                         "It keeps its model open. Two are equal when they are the same instance of the same open "
                         "model.")
        .def_property_readonly(
            "id", [](const Instance& self) { return self.instance->id(); }, "Its number in the file, without '#'.")
        .def_property_readonly(
            "entity", [](const Instance& self) { return toText(entityName(*self.instance)); },
            "The entity in upper case, 'IFCWALL'; '(…)' for a complex instance.")
        .def_property_readonly(
            "attributes", &attributes,
            "All explicit attributes by name in upper case, in the order of the file.\n"
            "Raises Error as reading each of them does, and 'no-single-entity' for complex instances "
            "and unknown entities.")
        .def_property_readonly(
            "model", [](const Instance& self) { return std::const_pointer_cast<OpenModel>(self.model); },
            "The model that it is of.")
        .def("is_a", &isA, py::arg("entity"),
             "Whether it is of an entity or of one of its subtypes. Letter case is ignored.\n"
             "Raises Error 'unknown-entity' for a name that the release does not have.")
        .def("__getattr__",
             [](const Instance& self, const std::string& name) {
                 auto value = attributeNamed(self, name);
                 if (!value) throw py::attribute_error(noAttribute(self, name));
                 return *value;
             })
        .def(
            "__getitem__",
            [](const Instance& self, const std::string& name) {
                auto value = attributeNamed(self, name);
                if (!value) throw py::key_error(noAttribute(self, name));
                return *value;
            },
            py::arg("name"), "The attribute of a name; KeyError when the entity has none.")
        .def("__eq__",
             [](const Instance& self, const py::object& other) {
                 return py::isinstance<Instance>(other) && self == other.cast<const Instance&>();
             })
        .def("__hash__", [](const Instance& self) { return std::hash<const void*>()(self.instance); })
        .def("__repr__", [](const Instance& self) {
            return toText("<#" + std::to_string(self.instance->id()) + "=" + entityName(*self.instance) + ">");
        });
}

void declareLists(py::module_& module) {
    py::class_<InstanceList>(module, "InstanceList", "Instances in file order, each made when it is asked for.")
        .def("__len__", [](const InstanceList& self) { return self.numbers.size(); })
        .def("__getitem__", &InstanceList::at, py::arg("index"))
        .def("__iter__",
             [](const py::object& self) { return py::reinterpret_steal<py::object>(PySeqIter_New(self.ptr())); });
    py::class_<InstanceIterator>(module, "InstanceIterator", "All instances of a model in file order.")
        .def("__iter__", [](py::object self) { return self; })
        .def("__next__", &InstanceIterator::advance);
}

void declareHeader(py::module_& module) {
    using sdai::FileHeader;
    const auto texts = [](auto member) {
        return [member](const FileHeader& header) { return toTexts(header.*member); };
    };
    const auto text = [](auto member) { return [member](const FileHeader& header) { return toText(header.*member); }; };
    py::class_<FileHeader>(module, "Header", "The header of a file; what the file leaves out is empty.")
        .def_property_readonly("description", texts(&FileHeader::description), "The entries of FILE_DESCRIPTION.")
        .def_property_readonly("implementation_level", text(&FileHeader::implementationLevel))
        .def_property_readonly("name", text(&FileHeader::name))
        .def_property_readonly("time_stamp", text(&FileHeader::timeStamp), "As the file writes it: ISO 8601.")
        .def_property_readonly("author", texts(&FileHeader::author))
        .def_property_readonly("organization", texts(&FileHeader::organization))
        .def_property_readonly("preprocessor_version", text(&FileHeader::preprocessorVersion))
        .def_property_readonly("originating_system", text(&FileHeader::originatingSystem))
        .def_property_readonly("authorization", text(&FileHeader::authorization))
        .def_property_readonly("schemas", texts(&FileHeader::schemas), "What FILE_SCHEMA names.");
}

} // namespace

void declareModel(py::module_& module, ModelClass& model) {
    declareHeader(module);
    declareInstance(module);
    declareLists(module);
    module.def("open", &openModel, py::arg("path"),
               "Opens an IFC file (ISO 10303-21). Other Python threads run meanwhile.\n"
               "Raises Error: 'file-missing', 'file-denied', 'no-exchange-structure', 'schema-unknown' …");
    model
        .def_property_readonly(
            "path", [](const OpenModel& self) { return toText(self.path()); }, "As it was opened.")
        .def_property_readonly(
            "release", [](const OpenModel& self) { return toText(self.model().schema().name()); },
            "The dictionary that is used: 'IFC4'.")
        .def_property_readonly("header", [](const OpenModel& self) { return self.model().header(); })
        .def("__len__", [](const OpenModel& self) { return self.model().file().instanceCount(); })
        .def("__iter__", [](const std::shared_ptr<OpenModel>& self) { return InstanceIterator{self}; })
        .def(
            "__contains__",
            [](const OpenModel& self, std::uint64_t id) { return self.model().file().find(id).has_value(); },
            py::arg("id"))
        .def("__contains__",
             [](const OpenModel& self, const Instance& instance) { return instance.model.get() == &self; })
        .def("__contains__", [](const OpenModel&, const py::object&) { return false; })
        .def(
            "__getitem__", [](const std::shared_ptr<OpenModel>& self, std::uint64_t id) { return byId(self, id); },
            py::arg("id"), "The instance of an id; KeyError when the file has none.")
        .def(
            "by_id", [](const std::shared_ptr<OpenModel>& self, std::uint64_t id) { return byId(self, id); },
            py::arg("id"), "The instance of an id; KeyError when the file has none.")
        .def(
            "by_entity",
            [](const std::shared_ptr<OpenModel>& self, const std::string& entity, bool subtypes) {
                return byEntity(self, entity, subtypes);
            },
            py::arg("entity"), py::arg("subtypes") = true,
            "The instances of an entity and, unless told otherwise, of its subtypes, in file order. Letter case is "
            "ignored.\n"
            "Raises Error 'unknown-entity' for a name that the release does not have.")
        .def("__repr__", [](const OpenModel& self) {
            return py::str("<velkor.Model {!r}, {}, {} instances>")
                .format(toText(self.path()), toText(self.model().schema().name()), self.model().file().instanceCount());
        });
}

} // namespace velkor::python
