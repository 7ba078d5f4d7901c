// velkor units

#include "Commands.h"
#include "models/ModelWork.h"
#include "output/Json.h"
#include "output/UnitText.h"
#include "terminal/DisplayText.h"
#include "terminal/TextTable.h"
#include "velkor/sdai/Model.h"
#include "velkor/text/Wording.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

void writeText(TextSink out, const sdai::Model& model, const UnitReport& report) {
    out << model.file().name() << ", " << model.schema().name() << '\n';
    if (report.assignment)
        out << "\nUnits of #" << *report.assignment << '\n';
    else
        out << "\nThe model assigns no units; the unit services take SI units.\n";
    TextTable units({{"instance", TextTable::Right},
                     {"entity"},
                     {"unit type"},
                     {"name"},
                     {"slot", TextTable::Right},
                     {"SI factor"}});
    for (const UnitReport::Unit& unit : report.units) {
        units.add({'#' + std::to_string(unit.id), unit.entity, unit.type, unit.name,
                   unit.slot ? std::to_string(*unit.slot) : "-", text::shortest(unit.factor)});
    }
    if (!units.empty()) units.write(out, "  ");

    out << "\nGeometry\n  1 length unit = " << text::shortest(report.lengthFactor)
        << " mm\n  1 plane angle unit = " << text::shortest(report.angleFactor) << " rad\n";
    if (!report.lengthUnitName.empty()) {
        out << "  document length unit: " << shortenedOn(out, report.lengthUnitName, TextTable::widest) << ", factor "
            << text::shortest(report.lengthUnitFactor) << '\n';
    }
    out << "\nFactor to SI by measure type\n";
    TextTable measures({{"measure type"}, {"factor"}});
    for (const auto& [name, factor] : report.measures) measures.add({name, text::shortest(factor)});
    measures.write(out, "  ");
}

void runUnits(CommandContext& context, const ModelInput& input) {
    const auto model = input.openModel(context);
    if (!model) return;
    const UnitReport report = unitReport(*model);
    if (!context.json()) return writeText(context.out, *model, report);
    Json json{{"file", model->file().path()}, {"release", model->schema().name()}};
    json.update(unitReportJson(report));
    writeModelJson(context, json);
}

} // namespace

void addUnitsCommand(const Command& app, CommandContext& context) {
    const Command command = app.addCommand("units", "Units of a model and what they are worth in SI units");
    const auto models = std::make_shared<ModelArguments>();
    models->addTo(command);
    command.example("velkor units house.ifc --format json");
    const auto run = [&context, models] {
        const auto runOne = [](CommandContext& one, const ModelInput& input, Json&) { runUnits(one, input); };
        workOnModels(context, *models, {.run = runOne, .done = "read"});
    };
    context.complete(command, run, {jsonLinesFormat});
}

} // namespace velkor::host
