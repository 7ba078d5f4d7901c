#include "UnitRules.h"

namespace velkor::exchange {

namespace unitrule {

const ConversionRule unitReplaced = {
    "unit-replaced", Effect::Converted, "The unit of the assignment becomes the one asked for",
    "Nothing else uses the old one: the instance stays what others refer to, and what only it needed goes with it"};

const ConversionRule unitAdded = {
    "unit-added", Effect::Converted, "The assignment takes the unit asked for in the place of the old one",
    "Values with a unit of their own, derived units and map units use the old one still, and keep their meaning"};

const ConversionRule measure = {
    "measure-converted", Effect::Converted, "Values of measures of the unit are converted",
    "The declared or chosen type of a value says what it measures; a measure whose own unit type the project does not "
    "assign is in the units that its definition is made of"};

const ConversionRule hiddenMeasure = {
    "hidden-length-converted", Effect::Converted, "Numbers that are lengths without being declared so are converted",
    "The precision of a context is a distance, attenuations of a lamp are per distance, and the coefficients of a "
    "polynomial curve are lengths per power of a length"};

const ConversionRule curveParameter = {
    "curve-parameter-converted", Effect::Converted, "Parameters on circles and ellipses follow the plane angle unit",
    "ISO 10303-42 parametrises conics by an angle, which is in the unit of plane angles; those of other curves are "
    "numbers of segments or multiples of a vector, which scales with the model"};

const ConversionRule surfaceParameter = {"surface-parameter-converted", Effect::Converted,
                                         "Curves and bounds on surfaces follow the surface's parameters",
                                         "ISO 10303-42 parametrises planes by two lengths, cylinders and cones by an "
                                         "angle and a length, spheres and tori by "
                                         "two angles; on other surfaces parameters are numbers without a unit"};

const ConversionRule mapScale = {"map-scale-adjusted", Effect::Converted,
                                 "The scale of a map conversion takes up what the units have changed",
                                 "It leads from project lengths to those of the map, and eastings and northings stay "
                                 "in the map's unit where the map "
                                 "has one of its own"};

const ConversionRule numberUnreadable = {"number-kept", Effect::Lost,
                                         "Values that are no numbers, or have none in the new unit, stay as they are",
                                         "Nothing that could be written in their place would be right"};

const ConversionRule notWhole = {"whole-number-kept", Effect::Lost,
                                 "Whole numbers that would need a fraction in the new unit stay as they are",
                                 "Their type is INTEGER, and another count would be another value"};

const ConversionRule notUnderstood = {
    "statement-kept", Effect::Lost, "Statements that the dictionary does not explain stay as they are",
    "Without the entity and the right number of attributes nobody can say what a number measures"};

const ConversionRule parameterShared = {"shared-parameter-curve", Effect::Lost,
                                        "A curve on a surface could not follow its parameters in full",
                                        "The two parameters change differently, which no line, circle or vector can "
                                        "follow, or its points stand for lengths "
                                        "elsewhere as well"};

} // namespace unitrule

std::span<const ConversionRule* const> unitRules() {
    static constexpr const ConversionRule* rules[] = {
        &unitrule::unitReplaced,   &unitrule::unitAdded,        &unitrule::measure,        &unitrule::hiddenMeasure,
        &unitrule::curveParameter, &unitrule::surfaceParameter, &unitrule::mapScale,       &unitrule::numberUnreadable,
        &unitrule::notWhole,       &unitrule::notUnderstood,    &unitrule::parameterShared};
    return rules;
}

} // namespace velkor::exchange
