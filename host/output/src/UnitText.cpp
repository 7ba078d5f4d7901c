#include "output/UnitText.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

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

} // namespace velkor::host
