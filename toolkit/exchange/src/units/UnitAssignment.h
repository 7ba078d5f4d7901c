/// The units of a project, and those that take their place.
#pragma once

#include "ChangeList.h"
#include "units/Ratio.h"
#include "units/UnitCatalogue.h"
#include "units/UnitUsers.h"
#include "velkor/sdai/Model.h"
#include "velkor/sdai/Part21Edit.h"
#include "velkor/units/UnitReport.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <unordered_set>
#include <utility>
#include <vector>

namespace velkor::exchange {

class UnitAssignment {
public:
    /// An error for a unit type or unit that is not known, for a type that the project has no unit for or one that no
    /// factor is known of, and for contexts that do not agree.
    static tl::expected<UnitAssignment, std::string>
    read(const sdai::Model& model, const std::vector<std::pair<std::string, std::string>>& wanted);

    /// Of the unit types whose unit becomes another one.
    std::map<std::string, Ratio, std::less<>> ratios() const;
    bool isAssigned(std::string_view type) const { return _report.inForce(type) != nullptr; }
    /// Puts the new units into the assignments.
    tl::expected<void, std::string> rewrite(sdai::Part21Edit& edit, ChangeList& changes);

    /// Of rewrite(): instances that became others, that went with an old unit, and that were added.
    struct Counts {
        std::uint64_t converted = 0;
        std::uint64_t dropped = 0;
        std::uint64_t added = 0;
    };
    const Counts& counts() const noexcept { return _counts; }

private:
    /// A context's unit by number, in its assignment.
    struct Place {
        std::uint32_t assignment = 0;
        std::uint32_t unit = 0;
    };
    struct Exchange {
        UnitReport::Unit before;
        CatalogueUnit after;
        Ratio ratio;
        /// All contexts that have a unit of the type.
        std::vector<Place> places;
    };
    UnitAssignment(const sdai::Model& model, UnitReport report);
    tl::expected<void, std::string> want(const std::string& type, const std::string& name);
    tl::expected<void, std::string> findPlaces(Exchange& exchange) const;
    std::vector<std::uint32_t> oldUnits() const;
    std::optional<std::uint64_t> present(const CatalogueUnit& unit, const UnitUsers& users) const;
    tl::expected<std::uint64_t, std::string> add(sdai::Part21Edit& edit, std::string_view record);
    tl::expected<std::string, std::string> recordOf(const CatalogueUnit& unit, sdai::Part21Edit& edit);
    tl::expected<void, std::string> exchangeUnit(const Exchange& exchange, const UnitUsers& users,
                                                 sdai::Part21Edit& edit, ChangeList& changes);
    tl::expected<void, std::string> dropLeft(const UnitUsers& users, sdai::Part21Edit& edit);

    const sdai::Model* _model;
    UnitReport _report;
    // By number: those of the contexts.
    std::vector<std::uint32_t> _assignments;
    // Units of theirs.
    std::unordered_set<std::uint32_t> _assigned;
    std::vector<Exchange> _exchanges;
    Counts _counts;
};

} // namespace velkor::exchange
