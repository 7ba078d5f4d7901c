#include "Bindings.h"
#include "CheckResult.h"
#include "Failure.h"
#include "ProgressCall.h"
#include "ServiceSetup.h"
#include "Values.h"
#include "velkor/check/ModelCheck.h"
#include "velkor/classification/ProductClasses.h"
#include "velkor/propertysets/DefinitionSearch.h"
#include "velkor/propertysets/PropertySetCheck.h"
#include "velkor/units/UnitReport.h"

#include <algorithm>
#include <pybind11/stl.h>

namespace py = pybind11;

namespace velkor::python {

std::mutex& servicesMutex() {
    static std::mutex mutex;
    return mutex;
}

Configuration configurationOf(const std::string& path) {
    Configuration configuration;
    if (!path.empty()) {
        auto reading = readConfiguration(path, nullptr);
        if (!reading) throw Failure(reading.error(), path);
        if (!reading->errors.empty()) throw Failure("configuration-invalid", reading->errors.front(), {.path = path});
        configuration = std::move(reading->configuration);
    }
    configuration.shippedResources = shippedResources();
    return configuration;
}

void warn(const std::vector<std::string>& messages) {
    for (const std::string& message : messages) {
        if (PyErr_WarnEx(PyExc_UserWarning, message.c_str(), 1) != 0) throw py::error_already_set();
    }
}

namespace {

using sdai::Problem;

/// What a check of a file or a model comes to.
struct Check {
    std::string release;
    ModelCheckResult result;
};

CheckScope scopeNamed(const std::string& name) {
    if (name == "structure") return CheckScope::Structure;
    if (name == "dictionary") return CheckScope::Dictionary;
    if (name == "everything") return CheckScope::Everything;
    throw py::value_error("scope is 'structure', 'dictionary' or 'everything', not '" + name + "'");
}

void requireCodes(const std::vector<std::string>& codes) {
    const auto known = problemCodes();
    for (const std::string& code : codes) {
        if (std::ranges::find(known, code) == known.end())
            throw py::value_error("no finding has the code '" + code + "'");
    }
}

ModelCheckOptions checkOptions(const std::string& scope, std::size_t limit, unsigned jobs,
                               const std::vector<std::string>& only, const std::vector<std::string>& ignore) {
    requireCodes(only);
    requireCodes(ignore);
    ModelCheckOptions options(CheckOptions{.limit = limit, .codes = {.only = only, .ignore = ignore}});
    options.scope = scopeNamed(scope);
    options.jobs = jobs;
    return options;
}

Check checkOpened(const OpenModel& self, const std::string& scope, std::size_t limit, unsigned jobs,
                  const std::vector<std::string>& only, const std::vector<std::string>& ignore,
                  const py::object& callable) {
    ProgressCall progress(callable);
    ModelCheckOptions options = checkOptions(scope, limit, jobs, only, ignore);
    options.progress = progress.follower();
    auto check = self.work([&](const sdai::Model& model) {
        return Check{std::string(model.schema().name()), checkModel(model, options)};
    });
    progress.raise();
    return check;
}

Check checkPath(const py::object& path, const std::string& scope, std::size_t limit, unsigned jobs,
                const std::vector<std::string>& only, const std::vector<std::string>& ignore,
                const py::object& callable) {
    const auto name = py::module_::import("os").attr("fspath")(path).cast<std::string>();
    ProgressCall progress(callable);
    ModelCheckOptions options = checkOptions(scope, limit, jobs, only, ignore);
    options.progress = progress.follower();
    auto checked = [&] {
        const py::gil_scoped_release released;
        return checkFile(name, options);
    }();
    progress.raise();
    if (!checked) throw Failure(checked.error(), name);
    return {checked->release, std::move(checked->result)};
}

PropertySetCheck validate(const OpenModel& self, std::size_t limit, const std::string& configuration,
                          const py::object& callable) {
    ProgressCall progress(callable);
    auto check = withServices(configuration, [&](const PlatformSetup& setup) {
        const ModelGuard guard(self);
        return checkPropertySets(self.model(), SetLibrary(definitionViews(setup)),
                                 CheckOptions{.limit = limit, .progress = progress.follower()});
    });
    progress.raise();
    return check;
}

struct ClassifiedProduct {
    Instance instance;
    std::string neutralId, plmType, reason;
};

struct ClassifiedModel {
    std::string document;
    std::vector<ClassifiedProduct> products;
    std::uint64_t unclassified = 0;
    bool isComplete = true;
};

ClassifiedModel classifyOpened(const SharedModel& self, const std::string& configuration, const py::object& callable) {
    ProgressCall progress(callable);
    auto answer = withServices(configuration, [&](const PlatformSetup& setup) {
        const ModelGuard guard(*self);
        auto classified = classifyAsConfigured(self->model(), setup, progress.follower());
        if (!classified) throw Failure("no-classification", classified.error(), {.path = self->path()});
        const Classification& result = classified->classification;
        ClassifiedModel classes{classified->documentPath, {}, result.unclassified, result.isComplete};
        classes.products.reserve(result.products.size());
        for (const Classification::Product& product : result.products) {
            const Classification::Decision& decision = result.decisions[product.decision];
            classes.products.push_back({{self, self->model().instanceAt(product.number)},
                                        decision.neutralId,
                                        decision.plmType,
                                        decision.reason});
        }
        return classes;
    });
    progress.raise();
    return answer;
}

UnitReport unitsOf(const OpenModel& self) {
    requireNoCall();
    const py::gil_scoped_release released;
    const std::lock_guard services(servicesMutex());
    const ModelGuard guard(self);
    return unitReport(self.model());
}

const char* severityOf(const Problem& problem) {
    return problem.severity == sdai::Severity::Error ? "error" : "warning";
}

template <class Class, class Get>
void addProblem(Class& type, Get problem) {
    using Self = typename Class::type;
    type.def_property_readonly(
            "code", [=](const Self& self) { return toText(problem(self).code); }, "Short stable word.")
        .def_property_readonly(
            "severity", [=](const Self& self) { return severityOf(problem(self)); }, "'error' or 'warning'.")
        .def_property_readonly(
            "line", [=](const Self& self) { return problem(self).line; }, "Counted from 1.")
        .def_property_readonly(
            "instance", [=](const Self& self) { return numberOrNone(problem(self).instance); },
            "Id of the instance; None outside any.")
        .def_property_readonly(
            "message", [=](const Self& self) { return toText(problem(self).message); },
            "What was expected and what was found.")
        .def("__repr__", [=](const Self& self) {
            return py::str("<velkor.{} {} in line {}: {}>")
                .format(py::type::of<Self>().attr("__name__"), toText(problem(self).code), problem(self).line,
                        toText(problem(self).message));
        });
}

void declareFindings(py::module_& module) {
    py::class_<Problem> finding(module, "Finding", "One thing found wrong in a file.");
    addProblem(finding, [](const Problem& self) -> const Problem& { return self; });
    finding.def_property_readonly(
        "rule", [](const Problem& self) { return textOrNone(self.rule); },
        "The rule that is broken, 'IfcWall.CorrectPredefinedType'; None when it is none.");
    py::class_<SetFinding> setFinding(module, "SetFinding", "One thing wrong with one property set or quantity set.");
    addProblem(setFinding, [](const SetFinding& self) -> const Problem& { return self.problem; });
    setFinding
        .def_property_readonly(
            "set", [](const SetFinding& self) { return toText(self.set); }, "Its name.")
        .def_property_readonly(
            "property", [](const SetFinding& self) { return textOrNone(self.property); },
            "The property concerned; None when the set is.")
        .def_property_readonly(
            "object", [](const SetFinding& self) { return numberOrNone(self.object); },
            "Id of the first object that has the set; None when none has.")
        .def_property_readonly(
            "nearest", [](const SetFinding& self) { return textOrNone(self.nearest); },
            "The name that was probably meant, or None.");
    py::class_<Check> check(module, "CheckResult", "What a check found.");
    declareResult(check);
    check.def_property_readonly(
        "release", [](const Check& self) { return textOrNone(self.release); },
        "The dictionary that was judged by; None when none was.");
    py::class_<PropertySetCheck>(module, "Validation", "Property sets and quantity sets against their definitions.")
        .def_property_readonly(
            "defined_by", [](const PropertySetCheck& self) { return toText(self.definedBy); },
            "The release of the definitions.")
        .def_readonly("has_definitions", &PropertySetCheck::hasDefinitions)
        .def_readonly("sets", &PropertySetCheck::sets, "How many were looked at.")
        .def_readonly("properties", &PropertySetCheck::properties)
        .def_readonly("checked_sets", &PropertySetCheck::checkedSets, "How many have a definition.")
        .def_readonly("checked_properties", &PropertySetCheck::checkedProperties)
        .def_readonly("findings", &PropertySetCheck::findings, "In file order, no more than the limit.")
        .def_readonly("total", &PropertySetCheck::total, "Their full count.")
        .def_readonly("is_complete", &PropertySetCheck::isComplete,
                      "False when the progress callback has ended the check.");
}

void declareClassification(py::module_& module) {
    py::class_<ClassifiedProduct>(module, "ClassifiedProduct", "A product with what the services make of it.")
        .def_readonly("instance", &ClassifiedProduct::instance)
        .def_property_readonly(
            "neutral_id", [](const ClassifiedProduct& self) { return textOrNone(self.neutralId); },
            "The neutral identifier; None without one.")
        .def_property_readonly(
            "plm_type", [](const ClassifiedProduct& self) { return textOrNone(self.plmType); },
            "The PLM type; None without one.")
        .def_property_readonly(
            "reason", [](const ClassifiedProduct& self) { return textOrNone(self.reason); },
            "Why there is no neutral identifier; None when there is one.");
    py::class_<ClassifiedModel>(module, "ClassificationResult", "The products of a model, classified.")
        .def_property_readonly(
            "document", [](const ClassifiedModel& self) { return toText(self.document); },
            "The mapping document that decided.")
        .def_readonly("products", &ClassifiedModel::products, "In file order.")
        .def_readonly("unclassified", &ClassifiedModel::unclassified, "How many have no neutral identifier.")
        .def_readonly("is_complete", &ClassifiedModel::isComplete, "False when the progress callback has ended it.");
}

void declareUnits(py::module_& module) {
    using Unit = UnitReport::Unit;
    const auto ofGeometry = [](double UnitReport::*factor) {
        return [factor](const UnitReport& self) -> std::optional<double> {
            if (self.geometryResult < 0) return std::nullopt;
            return self.*factor;
        };
    };
    py::class_<Unit>(module, "Unit", "A unit of the model's assignment.")
        .def_readonly("id", &Unit::id)
        .def_property_readonly("entity", [](const Unit& self) { return toText(self.entity); })
        .def_property_readonly(
            "type", [](const Unit& self) { return textOrNone(self.type); },
            "'LENGTHUNIT'; None for a unit without a type, such as money.")
        .def_property_readonly(
            "name", [](const Unit& self) { return toText(self.name); }, "'MILLIMETRE', 'INCH'.")
        .def_readonly("factor", &Unit::factor, "SI base units in one of the unit.");
    py::class_<UnitReport>(module, "Units", "The units of a model.")
        .def_readonly("units", &UnitReport::units, "In the order of the assignment.")
        .def_property_readonly("length_factor", ofGeometry(&UnitReport::lengthFactor),
                               "Millimetres in a length unit; None when the units give no factors.")
        .def_property_readonly("angle_factor", ofGeometry(&UnitReport::angleFactor),
                               "Radians in a plane angle unit; None when the units give no factors.")
        .def_property_readonly(
            "measures",
            [](const UnitReport& self) {
                py::dict measures;
                for (const auto& [name, factor] : self.measures) measures[toText(name)] = factor;
                return measures;
            },
            "Factor to SI base units by measure type: 'IFCAREAMEASURE'.");
}

} // namespace

void declareJudgement(py::module_& module, ModelClass& model) {
    declareFindings(module);
    declareClassification(module);
    declareUnits(module);
    const std::vector<std::string> none;
    module.def("check", &checkPath, py::arg("path"), py::arg("scope") = "everything", py::arg("limit") = defaultLimit,
               py::arg("jobs") = 0, py::arg("only") = none, py::arg("ignore") = none, py::arg("progress") = py::none(),
               "Judges a file as Model.check does, also one whose release is unknown: its structure, then.\n"
               "Raises Error when it cannot be read, ValueError for an unknown scope or code.");
    model
        .def("check", &checkOpened, py::arg("scope") = "everything", py::arg("limit") = defaultLimit,
             py::arg("jobs") = 0, py::arg("only") = none, py::arg("ignore") = none, py::arg("progress") = py::none(),
             "Everything wrong with the model: scope 'structure' looks at the exchange structure, 'dictionary' at "
             "the instances as well, 'everything' at the rules of the release too.\n"
             "limit  -- findings that are listed at most; all are counted\n"
             "jobs   -- threads, 0 for as many as there are cores\n"
             "only, ignore  -- codes of findings that count, or do not\n"
             "progress  -- called with what is done, how much of it and of how much; False or an exception ends the "
             "work\n"
             "Other Python threads run meanwhile. Raises ValueError for an unknown scope or code.")
        .def("validate", &validate, py::arg("limit") = defaultLimit, py::arg("configuration") = "",
             py::arg("progress") = py::none(),
             "Judges property sets and quantity sets by the definitions of the release.\n"
             "configuration  -- path of a configuration file; the shipped definitions count without\n"
             "progress  -- as for check\n"
             "Other Python threads run meanwhile. Raises Error 'configuration-invalid'.")
        .def(
            "classify",
            [](const std::shared_ptr<OpenModel>& self, const std::string& configuration, const py::object& progress) {
                return classifyOpened(self, configuration, progress);
            },
            py::arg("configuration") = "", py::arg("progress") = py::none(),
            "Gives every product its neutral identifier and PLM type.\n"
            "configuration  -- path of a configuration file; the shipped mapping counts without\n"
            "progress  -- as for check\n"
            "Other Python threads run meanwhile. Raises Error 'no-classification', 'configuration-invalid'.")
        .def("units", &unitsOf, "The units of the model with their factors.");
}

} // namespace velkor::python
