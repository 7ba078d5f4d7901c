#include "output/UnitText.h"

#include "velkor/text/Wording.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

std::string unitWorth(const UnitReport& report, std::string_view type, double factor, const char* siUnit) {
    const auto* unit = report.inForce(type);
    return "1 model unit = " + text::shortest(factor) + siUnit +
           (unit != nullptr && !unit->name.empty() ? " (" + unit->name + ")" : std::string());
}

} // namespace

Json unitReportJson(const UnitReport& report) {
    Json units = Json::array();
    for (const UnitReport::Unit& unit : report.units) {
        units.push_back({{"id", unit.id},
                         {"entity", textOrNull(unit.entity)},
                         {"unit_type", textOrNull(unit.type)},
                         {"name", textOrNull(unit.name)},
                         {"slot", unit.slot ? Json(*unit.slot) : Json()},
                         {"factor", unit.factor}});
    }
    Json measures = Json::object();
    for (const auto& [name, factor] : report.measures) measures[name] = factor;
    const bool hasLengthUnit = !report.lengthUnitName.empty();
    return {{"assignment", report.assignment ? Json(*report.assignment) : Json()},
            {"units", std::move(units)},
            {"geometry",
             {{"length_factor_mm", report.lengthFactor},
              {"angle_factor_rad", report.angleFactor},
              {"result", report.geometryResult}}},
            {"document_length_unit",
             {{"name", textOrNull(report.lengthUnitName)},
              {"factor", hasLengthUnit ? Json(report.lengthUnitFactor) : Json()}}},
            {"measures", std::move(measures)}};
}

void writeUnits(Page& page, const UnitReport& report) {
    if (!report.assignment) {
        page.section("Units", "none in the file", Page::Style::Doubtful);
        return;
    }
    page.section("Units",
                 '#' + std::to_string(*report.assignment) + ", " + text::counted(report.units.size(), "unit", "units"));
    page.entry("Length", unitWorth(report, "LENGTHUNIT", report.lengthFactor, " mm"));
    page.entry("Plane angle", unitWorth(report, "PLANEANGLEUNIT", report.angleFactor, " rad"));
    std::string others;
    for (const UnitReport::Unit& unit : report.units) {
        if (unit.type == "LENGTHUNIT" || unit.type == "PLANEANGLEUNIT" || unit.name.empty()) continue;
        if (!others.empty()) others += ", ";
        others += unit.name;
    }
    if (!others.empty()) page.entry("Others", others);
}

} // namespace velkor::host
