#include "Values.h"

#include "Failure.h"

#include <algorithm>

namespace py = pybind11;

namespace velkor::python {

namespace {

// Deeper than any type of a release; what a file nests beyond that is none of its values.
constexpr int mostNested = 32;

class Conversion {
public:
    Conversion(const Instance& owner, std::string_view attribute) : _owner(owner), _attribute(attribute) {}

    py::object value(const sdai::Primitive& primitive, int depth = 0) const {
        if (!primitive.isSet()) return py::none();
        const sdai::Type* declared = primitive.declaredType();
        if (declared == nullptr || depth > mostNested) fail("wrong-type", primitive);
        const sdai::Type& type = declared->resolved();
        if (type.isAggregate()) return members(primitive, depth);
        switch (type.kind()) {
        case sdai::TypeKind::Entity:
            return reference(primitive);
        case sdai::TypeKind::Select:
            return selected(primitive, depth);
        default:
            return simple(primitive, type.kind());
        }
    }

private:
    [[noreturn]] void fail(const char* code, const sdai::Primitive& primitive) const {
        constexpr std::size_t shown = 60;
        std::string text(primitive.encoded().substr(0, shown));
        if (primitive.encoded().size() > shown) text += "…";
        const sdai::Part21File& file = _owner.model->model().file();
        const std::uint64_t id = _owner.instance->id();
        const auto number = file.find(id);
        std::string message = file.name();
        message.append(": #").append(std::to_string(id)).append(".").append(_attribute).append(": ");
        if (std::string_view(code) == "dangling-reference")
            message.append("there is no instance ").append(text);
        else
            message.append(text).append(" is no value of its type");
        throw Failure(
            code, message,
            {.path = _owner.model->path(), .line = number ? file.line(file.offset(*number)) : 0, .instance = id});
    }

    template <class Value>
    py::object given(const std::optional<Value>& value, const sdai::Primitive& primitive) const {
        if (!value) fail("wrong-type", primitive);
        return py::cast(*value);
    }

    py::object members(const sdai::Primitive& primitive, int depth) const {
        const sdai::Aggregate aggregate = primitive.asAggregate();
        if (aggregate.isNull()) fail("wrong-type", primitive);
        py::list list;
        for (const sdai::Primitive member : aggregate) list.append(value(member, depth + 1));
        return list;
    }

    py::object reference(const sdai::Primitive& primitive) const {
        if (DXSdaiAppInstance* instance = primitive.asInstance()) return py::cast(Instance{_owner.model, instance});
        fail(primitive.encoded().starts_with('#') ? "dangling-reference" : "wrong-type", primitive);
    }

    py::object selected(const sdai::Primitive& primitive, int depth) const {
        if (primitive.encoded().starts_with('#')) return reference(primitive);
        const sdai::Select select = primitive.asSelect();
        const sdai::DefinedType* type = select.chosenType() != nullptr ? select.chosenType()->asDefined() : nullptr;
        if (select.isNull() || type == nullptr) {
            // A select of entities may stand around an aggregate without a keyword, as sets of definitions do.
            const sdai::Aggregate aggregate = select.underlyingValue().asAggregate();
            if (!aggregate.isNull()) return members(select.underlyingValue(), depth);
            fail("wrong-type", primitive);
        }
        return py::cast(TypedValue{std::string(type->name()), value(select.underlyingValue(), depth + 1)});
    }

    py::object simple(const sdai::Primitive& primitive, sdai::TypeKind kind) const {
        const std::string_view encoded = primitive.encoded();
        switch (kind) {
        case sdai::TypeKind::Integer:
            return given(primitive.asInteger(), primitive);
        case sdai::TypeKind::Real:
            return given(primitive.asReal(), primitive);
        case sdai::TypeKind::Boolean:
            return given(primitive.asBoolean(), primitive);
        case sdai::TypeKind::Logical: {
            const auto logical = primitive.asLogical();
            if (!logical) fail("wrong-type", primitive);
            if (*logical == sdai::Logical::Unknown) return toText("UNKNOWN");
            return py::bool_(*logical == sdai::Logical::True);
        }
        case sdai::TypeKind::String:
            if (!encoded.starts_with('\'')) fail("wrong-type", primitive);
            return toText(primitive.asString());
        case sdai::TypeKind::Binary:
            if (!encoded.starts_with('"')) fail("wrong-type", primitive);
            return toText(primitive.asBinary());
        case sdai::TypeKind::Enumeration: {
            const sdai::Enumeration enumeration = primitive.asEnumeration();
            if (enumeration.type == nullptr) fail("wrong-type", primitive);
            return toText(enumeration.text());
        }
        default:
            fail("wrong-type", primitive);
        }
    }

    const Instance& _owner;
    std::string_view _attribute;
};

bool sameValue(const TypedValue& left, const TypedValue& right) {
    return left.type == right.type && left.value.equal(right.value);
}

} // namespace

py::str toText(std::string_view text) {
    return py::reinterpret_steal<py::str>(
        PyUnicode_DecodeUTF8(text.data(), static_cast<py::ssize_t>(text.size()), "replace"));
}

py::list toTexts(const std::vector<std::string>& texts) {
    py::list list;
    for (const std::string& text : texts) list.append(toText(text));
    return list;
}

py::object textOrNone(std::string_view text) {
    if (text.empty()) return py::none();
    return toText(text);
}

py::object numberOrNone(std::uint64_t number) {
    if (number == 0) return py::none();
    return py::int_(number);
}

std::string upperCase(std::string_view name) {
    std::string upper(name);
    std::ranges::transform(upper, upper.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return upper;
}

std::string entityName(const DXSdaiAppInstance& instance) {
    if (instance.entity() != nullptr) return std::string(instance.entity()->name());
    const sdai::Part21File& file = instance.model().file();
    const auto number = file.find(instance.id());
    const std::uint16_t keyword = number ? file.keyword(*number) : sdai::Part21File::complexKeyword;
    return keyword < file.keywords().size() ? file.keywords()[keyword] : "(…)";
}

py::object toPython(const Instance& owner, const sdai::Primitive& value, std::string_view attributeName) {
    return Conversion(owner, attributeName).value(value);
}

void declareValues(py::module_& module) {
    py::class_<TypedValue>(module, "TypedValue",
                           "A value with its defined type, where an attribute allows several types.")
        .def_property_readonly(
            "type", [](const TypedValue& typed) { return toText(typed.type); },
            "The defined type in upper case: 'IFCLABEL'.")
        .def_readonly("value", &TypedValue::value, "The value itself, in the model's own units.")
        .def("__eq__",
             [](const TypedValue& left, const py::object& right) {
                 return py::isinstance<TypedValue>(right) && sameValue(left, right.cast<const TypedValue&>());
             })
        .def("__hash__", [](const TypedValue& typed) { return py::hash(py::make_tuple(typed.type, typed.value)); })
        .def("__repr__", [](const TypedValue& typed) {
            return py::str("TypedValue({!r}, {!r})").format(toText(typed.type), typed.value);
        });
}

} // namespace velkor::python
