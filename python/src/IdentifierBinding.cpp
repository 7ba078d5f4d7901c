#include "Bindings.h"
#include "CheckResult.h"
#include "Failure.h"
#include "ProgressCall.h"
#include "QORIFCExportServices.h"
#include "ServiceSetup.h"
#include "Values.h"
#include "velkor/identifiers/GuidCheck.h"
#include "velkor/identifiers/GuidText.h"

#include <pybind11/stl.h>

namespace py = pybind11;

namespace velkor::python {

namespace {

guid::GuidCheck checkIdentifiers(const OpenModel& self, std::size_t limit, const py::object& callable) {
    ProgressCall progress(callable);
    auto check = self.work([&](const sdai::Model& model) {
        return guid::checkGuids(model, CheckOptions{.limit = limit, .progress = progress.follower()});
    });
    progress.raise();
    return check;
}

/// What the services answer, one piece of work at a time.
template <class Make>
py::str made(Make make) {
    requireNoCall();
    QORUnicodeString identifier;
    {
        const py::gil_scoped_release released;
        const std::lock_guard services(servicesMutex());
        make(identifier);
    }
    return toText(identifier.utf8());
}

py::str fromPlm(const std::string& plm) {
    // Different objects would have the same identifier.
    if (plm.empty()) throw py::value_error("a PLM identifier has characters");
    return made([&](QORUnicodeString& identifier) {
        QORIFCExportServices::ConvertPLMIDToGUID(QORUnicodeString(std::string_view(plm)), identifier);
    });
}

py::str given(const tl::expected<std::string, std::string>& text) {
    if (!text) throw py::value_error(text.error());
    return toText(*text);
}

} // namespace

void declareIdentifiers(py::module_& module, ModelClass& model) {
    using Check = guid::GuidCheck;
    py::class_<Check> check(module, "IdentifierCheck", "What a check of identifiers found.");
    declareResult(check);
    check.def_readonly("count", &Check::count, "Instances that have a GlobalId and were looked at.");
    model.def("check_identifiers", &checkIdentifiers, py::arg("limit") = defaultLimit, py::arg("progress") = py::none(),
              "Whether every GlobalId is well-formed and used once.\n"
              "limit  -- findings that are listed at most; all are counted\n"
              "progress  -- as for check\n"
              "Other Python threads run meanwhile.");
    module.def(
        "new_identifier",
        [] { return made([](QORUnicodeString& text) { QORIFCExportServices::GenerateIFCGUID(text); }); },
        "A new GlobalId of 22 characters.");
    module.def("identifier_from_plm", &fromPlm, py::arg("plm"),
               "The GlobalId that is a function of a PLM identifier, the same for ever. Raises ValueError for an empty "
               "one.");
    module.def(
        "identifier_fault",
        [](const std::string& identifier) -> py::object {
            const auto fault = guid::faultOf(identifier);
            if (!fault) return py::none();
            return py::make_tuple(toText(fault->code), toText(fault->message));
        },
        py::arg("identifier"),
        "Code and message of the first fault of a GlobalId; None when it is well-formed. Codes are 'guid-length', "
        "'guid-character' and 'guid-first-character'.");
    module.def(
        "expand_identifier", [](const std::string& identifier) { return given(guid::expanded(identifier)); },
        py::arg("identifier"),
        "A GlobalId as hexadecimal text of 36 characters in lower case. Raises ValueError for one that is not "
        "well-formed.");
    module.def(
        "compress_identifier", [](const std::string& text) { return given(guid::compressed(text)); }, py::arg("text"),
        "Hexadecimal text, in any letter case and with or without braces, as a GlobalId. Raises ValueError for "
        "text that is none.");
}

} // namespace velkor::python
