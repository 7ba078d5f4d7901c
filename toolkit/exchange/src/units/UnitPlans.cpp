#include "units/UnitPlans.h"

namespace velkor::exchange {

using sdai::EntityDefinition;
using sdai::Type;
using Form = UnitPlan::Form;

namespace {

/// Attributes that name the unit of others of the instance.
struct OwnUnit {
    const char* entity;
    /// Null for all.
    const char* values;
    const char* unit;
};

constexpr OwnUnit ownUnits[] = {
    {"IFCPHYSICALSIMPLEQUANTITY", nullptr, "UNIT"},
    {"IFCPROPERTYSINGLEVALUE", nullptr, "UNIT"},
    {"IFCPROPERTYBOUNDEDVALUE", nullptr, "UNIT"},
    {"IFCPROPERTYLISTVALUE", nullptr, "UNIT"},
    {"IFCPROPERTYENUMERATION", nullptr, "UNIT"},
    {"IFCPROPERTYTABLEVALUE", "DEFININGVALUES", "DEFININGUNIT"},
    {"IFCPROPERTYTABLEVALUE", "DEFINEDVALUES", "DEFINEDUNIT"},
    {"IFCMEASUREWITHUNIT", nullptr, "UNITCOMPONENT"},
};

/// Numbers that are lengths to a power without being declared so.
struct HiddenLength {
    const char* entity;
    const char* attribute;
    int exponent;
};

constexpr HiddenLength hiddenLengths[] = {
    {"IFCGEOMETRICREPRESENTATIONCONTEXT", "PRECISION", 1},
    {"IFCLIGHTSOURCEPOSITIONAL", "DISTANCEATTENUATION", -1},
    {"IFCLIGHTSOURCEPOSITIONAL", "QUADRICATTENUATION", -2},
};

/// Parameters whose measure the curve or surface says.
struct Parameter {
    const char* entity;
    const char* attribute;
};

constexpr Parameter parameters[] = {
    {"IFCTRIMMEDCURVE", "TRIM1"},
    {"IFCTRIMMEDCURVE", "TRIM2"},
    {"IFCPOINTONCURVE", "POINTPARAMETER"},
    {"IFCPOINTBYDISTANCEEXPRESSION", "DISTANCEALONG"},
    {"IFCCURVESEGMENT", "SEGMENTSTART"},
    {"IFCCURVESEGMENT", "SEGMENTLENGTH"},
    {"IFCSWEPTDISKSOLID", "STARTPARAM"},
    {"IFCSWEPTDISKSOLID", "ENDPARAM"},
    {"IFCDIRECTRIXCURVESWEPTAREASOLID", "STARTPARAM"},
    {"IFCDIRECTRIXCURVESWEPTAREASOLID", "ENDPARAM"},
    {"IFCSURFACECURVESWEPTAREASOLID", "STARTPARAM"},
    {"IFCSURFACECURVESWEPTAREASOLID", "ENDPARAM"},
    {"IFCFIXEDREFERENCESWEPTAREASOLID", "STARTPARAM"},
    {"IFCFIXEDREFERENCESWEPTAREASOLID", "ENDPARAM"},
    {"IFCRECTANGULARTRIMMEDSURFACE", "U1"},
    {"IFCRECTANGULARTRIMMEDSURFACE", "U2"},
    {"IFCRECTANGULARTRIMMEDSURFACE", "V1"},
    {"IFCRECTANGULARTRIMMEDSURFACE", "V2"},
    {"IFCPOINTONSURFACE", "POINTPARAMETERU"},
    {"IFCPOINTONSURFACE", "POINTPARAMETERV"},
};

/// Selects and aggregates lead to others a few times at most.
constexpr int deepest = 12;

} // namespace

const UnitPlan& UnitPlans::plan(const EntityDefinition& entity) {
    auto& plan = _plans[&entity];
    if (plan != nullptr) return *plan;
    plan = std::make_unique<UnitPlan>();
    for (const sdai::AttributeSlot& slot : entity.attributes()) plan->slots.push_back(slotOf(entity, *slot.attribute));
    for (const UnitPlan::Slot& slot : plan->slots) plan->hasAny = plan->hasAny || slot.form != Form::Other;
    if (entity.isKindOf("IFCCARTESIANPOINT")) plan->kind = UnitPlan::Kind::Point;
    if (entity.isKindOf("IFCCOORDINATEOPERATION")) plan->kind = UnitPlan::Kind::CoordinateOperation;
    if (entity.isKindOf("IFCTABLEROW")) plan->kind = UnitPlan::Kind::TableRow;
    return *plan;
}

UnitPlan::Slot UnitPlans::slotOf(const EntityDefinition& entity, const sdai::Attribute& attribute) {
    UnitPlan::Slot slot = slotOf(attribute.type(), stays, 0);
    takeHidden(entity, attribute.name(), slot);
    if (slot.form == Form::Other) return slot;
    for (const OwnUnit& own : ownUnits)
        if ((own.values == nullptr || attribute.name() == own.values) && entity.isKindOf(own.entity))
            slot.ownUnit = entity.attributeIndex(own.unit);
    return slot;
}

void UnitPlans::takeHidden(const EntityDefinition& entity, std::string_view attribute, UnitPlan::Slot& slot) {
    for (const HiddenLength& hidden : hiddenLengths) {
        if (attribute != hidden.attribute || !entity.isKindOf(hidden.entity)) continue;
        slot = {Form::Numbers, _ratios.lengthPower(hidden.exponent), -1, true};
        if (_ratios[slot.ratio].isOne()) slot = {};
    }
    // What a load changes the temperature by.
    if (entity.isKindOf("IFCSTRUCTURALLOADTEMPERATURE") && slot.form == Form::Numbers)
        slot.ratio = _ratios.difference(slot.ratio);
    const bool isPolynomial = entity.isKindOf("IFCPOLYNOMIALCURVE") && attribute.starts_with("COEFFICIENTS");
    if (isPolynomial && _ratios.length() != stays) slot = {Form::Powers, stays, -1, true};
    // Where a release declares a length along the curve, it is one.
    if (slot.form == Form::Numbers || (_ratios.length() == stays && _ratios.planeAngle() == stays)) return;
    for (const Parameter& parameter : parameters)
        if (attribute == parameter.attribute && entity.isKindOf(parameter.entity))
            slot = {Form::Parameters, stays, -1, false};
}

UnitPlan::Slot UnitPlans::slotOf(const Type& type, RatioNumber ratio, int depth) {
    if (depth > deepest) return {};
    if (const auto* defined = type.asDefined()) {
        const RatioNumber own = _ratios.of(*defined);
        return slotOf(defined->underlying(), own != stays ? own : ratio, depth + 1);
    }
    if (const auto* aggregate = type.asAggregate()) return slotOf(aggregate->element(), ratio, depth + 1);
    if (type.asSelect() != nullptr) return {mayMeasure(type, depth) ? Form::Typed : Form::Other, stays, -1, false};
    if (ratio == stays || _ratios[ratio].isOne()) return {};
    if (type.kind() == sdai::TypeKind::Real) return {Form::Numbers, ratio, -1, false};
    return {type.kind() == sdai::TypeKind::Integer ? Form::Whole : Form::Other, ratio, -1, false};
}

bool UnitPlans::mayMeasure(const Type& type, int depth) const {
    if (depth > deepest) return false;
    if (const auto* select = type.asSelect()) {
        for (const Type* item : select->items())
            if (mayMeasure(*item, depth + 1)) return true;
        return false;
    }
    const auto* defined = type.asDefined();
    if (defined == nullptr) return false;
    return _ratios.of(*defined) != stays || mayMeasure(defined->underlying(), depth + 1);
}

} // namespace velkor::exchange
