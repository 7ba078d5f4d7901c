#include "Bindings.h"
#include "Failure.h"
#include "ProgressCall.h"
#include "ServiceSetup.h"
#include "Values.h"
#include "velkor/dictionaries/EntityFacts.h"
#include "velkor/exchange/Conversion.h"

#include <algorithm>
#include <map>
#include <pybind11/stl.h>

namespace py = pybind11;

namespace velkor::python {

namespace {

/// What a conversion is asked for, as Python gives it.
struct Request {
    std::string path, release;
    std::map<std::string, std::string> units;
    bool repairsIdentifiers = false;
    std::string plmAttribute;
    std::string customMapping;
    bool mapsPlmAttributes = false;
    std::string timeStamp;
    std::size_t limit = 0;
};

void readUnits(const Request& request, ConversionOptions& options) {
    if (request.units.empty()) return;
    auto& units = options.units.emplace().units;
    for (const auto& [givenType, givenName] : request.units) {
        const std::string type = upperCase(givenType), name = upperCase(givenName);
        if (const auto fault = unitFault(type, name)) throw py::value_error(*fault);
        if (std::ranges::any_of(units, [&](const auto& one) { return one.first == type; }))
            throw py::value_error(type + " is given a unit twice");
        units.emplace_back(type, name);
    }
}

void readProperties(const Request& request, ConversionOptions& options) {
    if (request.customMapping.empty() && !request.mapsPlmAttributes) return;
    PropertyOptions& properties = options.properties.emplace();
    properties.plmAttributes = request.mapsPlmAttributes;
    if (request.customMapping == "import")
        properties.customMapping = MappingDirection::Import;
    else if (request.customMapping == "export")
        properties.customMapping = MappingDirection::Export;
    else if (!request.customMapping.empty())
        throw py::value_error("custom_mapping is 'import' or 'export', not '" + request.customMapping + "'");
}

ConversionOptions optionsOf(const Request& request) {
    ConversionOptions options;
    options.limit = request.limit;
    options.scratchBeside = request.path;
    if (!request.release.empty()) {
        ReleaseOptions& release = options.release.emplace();
        release.release = releaseMeant(request.release);
        if (release.release.empty()) throw Failure("schema-unknown", "there is no release '" + request.release + "'");
        release.timeStamp = request.timeStamp;
    }
    readUnits(request, options);
    if (request.repairsIdentifiers || !request.plmAttribute.empty()) {
        IdentifierOptions& identifiers = options.identifiers.emplace();
        identifiers.repair = request.repairsIdentifiers;
        identifiers.plmAttribute = request.plmAttribute;
    }
    readProperties(request, options);
    return options;
}

/// Nothing is put in the place of the file before the work has come to its end.
Converted<FullReport> convertTo(const std::string& path, const sdai::Model& model, const ConversionOptions& options,
                                const PlatformSetup& setup, const ProgressCall& progress) {
    auto output = files::OutputFile::create(QORUnicodeString(std::string_view(path)));
    if (!output) throw Failure::ofWriting(output.error(), path);
    auto report = convertModel(model, options, *output);
    if (!report || progress.isEnded()) return report;
    // The services go on without a document that they cannot read; the result would be another one.
    if (setup.hasToldErrors())
        throw Failure("mapping-unreadable", path + ": not written: a document of mappings is not readable",
                      {.path = path});
    if (const auto done = output->commit(); !done) throw Failure::ofWriting(done.error(), path);
    return report;
}

FullReport convert(const OpenModel& self, const Request& request, const std::string& configuration,
                   const py::object& callable) {
    ProgressCall progress(callable);
    ConversionOptions options = optionsOf(request);
    options.progress = progress.follower();
    auto report = withServices(configuration, [&](const PlatformSetup& setup) {
        if (options.release) options.release->setup = &setup;
        if (options.properties) options.properties->setup = &setup;
        const ModelGuard guard(self);
        return convertTo(request.path, self.model(), options, setup, progress);
    });
    progress.raise();
    if (progress.isEnded())
        throw Failure("ended", request.path + ": not written: the progress callback has ended the work");
    if (!report)
        throw Failure("not-convertible", self.path() + ": cannot be converted: " + report.error(),
                      {.path = self.path()});
    return std::move(*report);
}

void declareSteps(py::module_& module) {
    py::class_<Change>(module, "ConversionChange", "One thing that a step did.")
        .def_property_readonly(
            "instance", [](const Change& self) { return numberOrNone(self.id); },
            "Id in the model that was converted; None for the file as a whole.")
        .def_property_readonly(
            "line", [](const Change& self) { return numberOrNone(self.line); },
            "Where that instance stands, counted from 1, or None.")
        .def_property_readonly("entity", [](const Change& self) { return toText(self.entity); })
        .def_property_readonly(
            "detail", [](const Change& self) { return toText(self.detail); },
            "What became of what: 'IFCDOORSTYLE becomes IFCDOORTYPE'.");
    py::class_<RuleUse>(module, "ConversionRule", "A rule of conversion that was followed.")
        .def_property_readonly(
            "name", [](const RuleUse& self) { return toText(self.rule->name); }, "Short stable word: 'date-to-text'.")
        .def_property_readonly(
            "effect", [](const RuleUse& self) { return toText(word(self.rule->effect)); },
            "'converted', 'rebuilt', 'lost' or 'kept'.")
        .def_property_readonly(
            "what", [](const RuleUse& self) { return toText(self.rule->what); }, "What is done.")
        .def_property_readonly(
            "reason", [](const RuleUse& self) { return toText(self.rule->reason); },
            "Why it is right or why there is nothing better.")
        .def_readonly("count", &RuleUse::count, "How often it was followed.")
        .def_readonly("changes", &RuleUse::first, "The first of them in file order, no more than the limit.");
    py::class_<StepReport>(module, "ConversionStep", "What one step of a conversion did to the instances.")
        .def_property_readonly(
            "name", [](const StepReport& self) { return toText(self.step); },
            "'release', 'units', 'identifiers' or 'properties'.")
        .def_readonly("kept", &StepReport::kept, "Say in the same form what they said.")
        .def_readonly("converted", &StepReport::converted, "Say the same in another form.")
        .def_readonly("rebuilt", &StepReport::rebuilt, "Others stand in their places.")
        .def_readonly("lost", &StepReport::lost)
        .def_readonly("added", &StepReport::added, "Had no predecessor.")
        .def_readonly("rules", &StepReport::uses, "Those that were followed.")
        .def_property_readonly("is_lossless", &StepReport::isLossless, "Whether no rule took anything away.");
    using Entry = IdentifierReport::Entry;
    py::class_<Entry>(module, "IdentifierChange", "An identifier that a conversion changed.")
        .def_readonly("instance", &Entry::id, "Id of the instance.")
        .def_property_readonly("before", [](const Entry& self) { return toText(self.before); })
        .def_property_readonly("after", [](const Entry& self) { return toText(self.after); });
    py::class_<FullReport>(module, "Conversion", "What a conversion did.")
        .def_readonly("steps", &FullReport::steps, "In the order in which they were taken.")
        .def_readonly("identifiers", &FullReport::identifiers, "Every identifier that was changed, in file order.")
        .def_property_readonly("is_lossless", &FullReport::isLossless, "Whether no step took anything away.");
}

} // namespace

void declareConversion(py::module_& module, ModelClass& model) {
    declareSteps(module);
    model.def(
        "convert",
        [](const OpenModel& self, const py::object& path, const std::string& release,
           const std::map<std::string, std::string>& units, bool repairIdentifiers, const std::string& plmIdentifiers,
           const std::string& customMapping, bool plmAttributes, const std::string& timeStamp, std::size_t limit,
           const std::string& configuration, const py::object& progress) {
            const auto name = py::module_::import("os").attr("fspath")(path).cast<std::string>();
            return convert(self,
                           {name, release, units, repairIdentifiers, plmIdentifiers, customMapping, plmAttributes,
                            timeStamp, limit},
                           configuration, progress);
        },
        py::arg("path"), py::kw_only(), py::arg("release") = "",
        py::arg("units") = std::map<std::string, std::string>(), py::arg("repair_identifiers") = false,
        py::arg("plm_identifiers") = "", py::arg("custom_mapping") = "", py::arg("plm_attributes") = false,
        py::arg("time_stamp") = "", py::arg("limit") = StepOptions().limit, py::arg("configuration") = "",
        py::arg("progress") = py::none(),
        "Writes the model to a file, which appears as a whole or not at all; a copy when nothing else is asked for.\n"
        "release  -- of this release, as Dictionary knows it\n"
        "units    -- unit types and the unit to use for each: {'LENGTHUNIT': 'MILLIMETRE'}\n"
        "repair_identifiers  -- new ones for those that are malformed, missing or used before\n"
        "plm_identifiers     -- the property that holds objects' PLM identifiers, from which theirs are made\n"
        "custom_mapping      -- 'import' or 'export': sets and properties renamed as the custom mapping says\n"
        "plm_attributes      -- PLM attributes put where the PLM attribute mapping wants them\n"
        "time_stamp  -- ISO 8601, of the header; that of the source when empty\n"
        "limit  -- changes of each rule that are listed at most; all are counted\n"
        "configuration  -- path of a configuration file; the shipped mappings count without\n"
        "progress  -- as for check; when it ends the work nothing is written\n"
        "Other Python threads run meanwhile. Raises ValueError for units that are none, Error 'schema-unknown', "
        "'not-convertible', 'mapping-unreadable', 'configuration-invalid', 'ended', and what writing a file fails "
        "with.");
}

} // namespace velkor::python
