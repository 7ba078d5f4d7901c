#include "Bindings.h"
#include "ColumnReader.h"
#include "Failure.h"
#include "ProgressCall.h"
#include "Values.h"

#include <pybind11/stl.h>
#include <type_traits>

namespace py = pybind11;

namespace velkor::python {

namespace {

using SharedColumn = std::shared_ptr<Column>;

/// Part of a column as the buffer protocol has it, without a copy.
struct Buffer {
    SharedColumn column;
    py::buffer_info info;
};

/// As numpy has its own types: of two with 64 bits the one that it calls int64.
template <class Number>
std::string formatOf() {
    return std::is_same_v<Number, long> ? "l" : py::format_descriptor<Number>::format();
}

template <class Number>
py::buffer_info infoOf(const std::vector<Number>& numbers, const std::string& format = formatOf<Number>()) {
    // Numbers of an empty vector have no address.
    static Number none{};
    return {const_cast<Number*>(numbers.empty() ? &none : numbers.data()),
            sizeof(Number),
            format,
            1,
            {static_cast<py::ssize_t>(numbers.size())},
            {static_cast<py::ssize_t>(sizeof(Number))},
            true};
}

py::buffer_info valuesOf(const Column& column) {
    switch (column.kind()) {
    case Column::Kind::Integer:
    case Column::Kind::Reference:
        return infoOf(column.integers());
    case Column::Kind::Logical:
        return infoOf(column.logicals());
    case Column::Kind::Text:
        return infoOf(column.codes());
    default:
        return infoOf(column.reals());
    }
}

const char* kindOf(const Column& column) {
    switch (column.kind()) {
    case Column::Kind::Integer:
        return "integer";
    case Column::Kind::Reference:
        return "reference";
    case Column::Kind::Logical:
        return "logical";
    case Column::Kind::Text:
        return "text";
    default:
        return "real";
    }
}

const char* dtypeOf(const Column& column) {
    switch (column.kind()) {
    case Column::Kind::Integer:
    case Column::Kind::Reference:
        return "int64";
    case Column::Kind::Logical:
        return "int8";
    case Column::Kind::Text:
        return "int32";
    default:
        return "float64";
    }
}

py::object valueAt(const Column& column, std::size_t place) {
    switch (column.kind()) {
    case Column::Kind::Integer:
    case Column::Kind::Reference:
        return py::int_(column.integers()[place]);
    case Column::Kind::Logical: {
        const std::int8_t logical = column.logicals()[place];
        if (logical < 0) return py::none();
        if (logical > 1) return toText("UNKNOWN");
        return py::bool_(logical == 1);
    }
    case Column::Kind::Text: {
        const std::int32_t code = column.codes()[place];
        if (code < 0) return py::none();
        return toText(column.text(static_cast<std::size_t>(code)));
    }
    default:
        return py::float_(column.reals()[place]);
    }
}

py::list toList(const Column& column) {
    py::list rows;
    for (std::size_t row = 0; row < column.rowCount(); ++row) {
        if (column.valid()[row] == 0) {
            rows.append(py::none());
        } else if (!column.isList()) {
            rows.append(valueAt(column, row));
        } else {
            py::list members;
            for (auto place = column.offsets()[row]; place < column.offsets()[row + 1]; ++place)
                members.append(valueAt(column, static_cast<std::size_t>(place)));
            rows.append(std::move(members));
        }
    }
    return rows;
}

py::object categories(const Column& column) {
    if (column.kind() != Column::Kind::Text) return py::none();
    py::list texts;
    for (std::size_t code = 0; code < column.textCount(); ++code) texts.append(toText(column.text(code)));
    return texts;
}

py::dict toColumns(const OpenModel& self, const std::string& entity, const std::vector<std::string>& attributes,
                   const py::object& callable) {
    ProgressCall progress(callable);
    const sdai::EntityDefinition& definition = entityNamed(self.model().schema(), entity);
    Columns columns = self.work(
        [&](const sdai::Model& model) { return readColumns(model, definition, attributes, progress.follower()); });
    progress.raise();
    if (progress.isEnded()) throw Failure("ended", "the progress callback has ended the work", {.path = self.path()});
    py::dict answer;
    for (std::size_t i = 0; i < columns.size(); ++i)
        answer[toText(attributes[i])] = py::cast(SharedColumn(std::move(columns[i])));
    return answer;
}

void declareBuffer(py::module_& module) {
    py::class_<Buffer>(
        module, "Buffer", py::buffer_protocol(),
        "Part of a column, for what takes buffers: numpy.asarray(…), memoryview(…). It cannot be changed.")
        .def_buffer([](Buffer& self) {
            const py::buffer_info& info = self.info;
            return py::buffer_info(info.ptr, info.itemsize, info.format, info.ndim, info.shape, info.strides, true);
        })
        .def("__len__", [](const Buffer& self) { return self.info.size; });
}

} // namespace

void declareColumns(py::module_& module, ModelClass& model) {
    declareBuffer(module);
    const auto bufferOf = [](const SharedColumn& self, py::buffer_info info) {
        return std::make_unique<Buffer>(Buffer{self, std::move(info)});
    };
    py::class_<Column, SharedColumn>(
        module, "Column", py::buffer_protocol(),
        "A value for each of many instances, for what takes buffers: numpy.asarray(column), memoryview(column). The "
        "buffer holds the values by kind; of lists those of all rows one behind the other. It cannot be changed.")
        .def_buffer([](Column& self) { return valuesOf(self); })
        .def("__len__", &Column::rowCount)
        .def_property_readonly(
            "kind", [](const Column& self) { return toText(kindOf(self)); },
            "'real': double, NaN when unset. 'integer' and 'reference' (ids): int64, 0 when unset. "
            "'logical': int8, 0, 1, 2 for UNKNOWN, -1 when unset. 'text': int32, places in "
            "categories, -1 when unset.")
        .def_property_readonly(
            "dtype", [](const Column& self) { return toText(dtypeOf(self)); },
            "The values as numpy names them: 'float64', 'int64', 'int32', 'int8'.")
        .def_property_readonly("is_list", &Column::isList, "Whether each row is a list of values.")
        .def_property_readonly(
            "valid", [bufferOf](const SharedColumn& self) { return bufferOf(self, infoOf(self->valid(), "?")); },
            "A bool for each row: whether it is set.")
        .def_property_readonly(
            "offsets",
            [bufferOf](const SharedColumn& self) -> std::unique_ptr<Buffer> {
                if (!self->isList()) return nullptr;
                return bufferOf(self, infoOf(self->offsets()));
            },
            "Of lists: int64, where the values of each row begin, and one more for the end. None for others.")
        .def_property_readonly("categories", &categories,
                               "Of texts: the different ones, in the order of first appearance. None for others.")
        .def_property_readonly(
            "category_bytes",
            [bufferOf](const SharedColumn& self) {
                const std::string& texts = self->texts();
                return bufferOf(self, py::buffer_info(reinterpret_cast<std::uint8_t*>(const_cast<char*>(texts.data())),
                                                      static_cast<py::ssize_t>(texts.size()), true));
            },
            "The categories in UTF-8, one behind the other.")
        .def_property_readonly(
            "category_offsets",
            [bufferOf](const SharedColumn& self) { return bufferOf(self, infoOf(self->textOffsets())); },
            "int64, where each of the categories begins in the bytes, and one more for the end.")
        .def_property_readonly("damaged", &Column::damagedCount,
                               "How many values are not of their type or refer to nothing; they count as unset.")
        .def("to_list", &toList, "The rows as Python values, None for those that are unset.")
        .def("__repr__", [](const Column& self) {
            return py::str("<velkor.Column of {} {}{}>")
                .format(self.rowCount(), kindOf(self), self.isList() ? " lists" : "s");
        });
    model.def(
        "to_columns", &toColumns, py::arg("entity"), py::arg("attributes"), py::arg("progress") = py::none(),
        "Whole columns without a Python object for each value, by the names that were asked for: a row for each "
        "instance of the entity and its subtypes in file order.\n"
        "attributes  -- names of attributes, which are unset where an instance has none of the name; 'Set.Property' "
        "for single values, quantities and enumerated properties with one value, of the objects themselves or of "
        "their types; '#id' and '#entity'\n"
        "progress  -- as for check\n"
        "Selected values lose the names of their types; those of different kinds become texts. Other Python threads "
        "run meanwhile. Raises Error 'unknown-entity', 'unknown-attribute', 'unsupported' for lists of lists, "
        "'ended'.");
}

} // namespace velkor::python
