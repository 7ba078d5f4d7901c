/// What the unit services say about a model.
///
///     const UnitReport report = unitReport(*model);
///     for (const UnitReport::Unit& unit : report.units) show(unit.name, unit.factor);
///     const double millimetres = report.lengthFactor;
#pragma once

#include "velkor/sdai/Model.h"
#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor {

struct VELKOR_TOOLKIT_API UnitReport {
    /// A unit of the assignment.
    struct Unit {
        std::uint64_t id = 0;
        std::string entity;
        /// Enumerator of the unit type; empty for units without one.
        std::string type;
        /// "MILLIMETRE", "INCH", "KILOGRAM METRE^-3".
        std::string name;
        /// Place in the library's table of global factors.
        std::optional<int> slot;
        /// SI base units in one of the unit.
        double factor = 1.0;
    };

    /// The IFCUNITASSIGNMENT of the project, or the first of the file.
    std::optional<std::uint64_t> assignment;
    std::vector<Unit> units;
    /// Millimetres per length unit, radians per plane angle unit.
    double lengthFactor = 0.0;
    double angleFactor = 0.0;
    int geometryResult = 0;
    /// Empty when the model has no length unit.
    std::string lengthUnitName;
    double lengthUnitFactor = 0.0;
    /// Factor by measure type.
    std::vector<std::pair<std::string, double>> measures;

    /// The unit of a unit type that is in force: of several the one stored last. Null when there is none.
    const Unit* inForce(std::string_view type) const;
};

/// Asks the library, instance by instance of the assignment alone. The unit services keep the model's factors
/// afterwards.
VELKOR_TOOLKIT_API UnitReport unitReport(const sdai::Model& model);

} // namespace velkor
