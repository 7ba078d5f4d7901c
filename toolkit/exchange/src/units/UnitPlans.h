/// Where the attributes of entities have values of the units that are exchanged.
#pragma once

#include "units/MeasureRatios.h"
#include "velkor/sdai/Dictionary.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace velkor::exchange {

struct UnitPlan {
    enum class Form : std::uint8_t {
        Other,      ///< nothing to convert
        Numbers,    ///< a number, or numbers at any depth, all of one measure
        Whole,      ///< the same of INTEGER
        Typed,      ///< typed values at any depth: their keywords say what they measure
        Parameters, ///< along curves or on surfaces: what they are says the curve or surface
        Powers,     ///< coefficients of a polynomial that gives lengths
    };
    struct Slot {
        Form form = Form::Other;
        RatioNumber ratio = stays;
        /// Values stay when this attribute is set; -1 for none.
        int ownUnit = -1;
        /// No measure is declared, though it is one.
        bool isHidden = false;
    };
    enum class Kind : std::uint8_t { Plain, Point, CoordinateOperation, TableRow };
    Kind kind = Kind::Plain;
    std::vector<Slot> slots;
    bool hasAny = false;
};

class UnitPlans {
public:
    explicit UnitPlans(MeasureRatios& ratios) : _ratios(ratios) {}

    const UnitPlan& plan(const sdai::EntityDefinition& entity);

private:
    UnitPlan::Slot slotOf(const sdai::EntityDefinition& entity, const sdai::Attribute& attribute);
    UnitPlan::Slot slotOf(const sdai::Type& type, RatioNumber ratio, int depth);
    bool mayMeasure(const sdai::Type& type, int depth) const;
    void takeHidden(const sdai::EntityDefinition& entity, std::string_view attribute, UnitPlan::Slot& slot);

    MeasureRatios& _ratios;
    std::unordered_map<const sdai::EntityDefinition*, std::unique_ptr<UnitPlan>> _plans;
};

} // namespace velkor::exchange
