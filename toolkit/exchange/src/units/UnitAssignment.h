/// The units of a project, and those that take their place.
#pragma once

#include "ChangeList.h"
#include "units/Ratio.h"
#include "units/UnitCatalogue.h"
#include "velkor/sdai/Model.h"
#include "velkor/sdai/Part21Edit.h"
#include "velkor/units/UnitReport.h"

#include <map>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <utility>
#include <vector>

namespace velkor::exchange {

class UnitAssignment {
public:
    /// An error for a unit type or unit that is not known, and for a type that the project has no unit for.
    static tl::expected<UnitAssignment, std::string>
    read(const sdai::Model& model, const std::vector<std::pair<std::string, std::string>>& wanted);

    /// Of the unit types whose unit becomes another one.
    std::map<std::string, Ratio, std::less<>> ratios() const;
    bool isAssigned(std::string_view type) const { return _report.inForce(type) != nullptr; }
    /// Puts the new units into the assignment.
    tl::expected<void, std::string> rewrite(sdai::Part21Edit& edit, ChangeList& changes) const;

private:
    struct Exchange {
        UnitReport::Unit before;
        CatalogueUnit after;
        Ratio ratio;
    };
    UnitAssignment(const sdai::Model& model, UnitReport report) : _model(&model), _report(std::move(report)) {}
    tl::expected<void, std::string> want(const std::string& type, const std::string& name);
    bool isUsedElsewhere(std::uint64_t id) const;
    tl::expected<std::string, std::string> recordOf(const CatalogueUnit& unit, sdai::Part21Edit& edit) const;

    const sdai::Model* _model;
    UnitReport _report;
    std::vector<Exchange> _exchanges;
};

} // namespace velkor::exchange
