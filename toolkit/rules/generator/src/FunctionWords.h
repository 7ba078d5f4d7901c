/// What the logical functions of the schemas say of their arguments.
#pragma once

#include <array>

namespace velkor::rulegen {

struct FunctionWords {
    /// In upper case.
    const char* function;
    /// "%1" stands for the first argument.
    const char* subject;
    const char* predicate;
    const char* opposite;
};

inline constexpr std::array<FunctionWords, 21> functionWords{{
    {"IFCCONSECUTIVESEGMENTS", "each of %1", "begins where the one before ends",
     "does not begin where the one before ends"},
    {"IFCCONSTRAINTSPARAMBSPLINE", "%1, %2, %3, %4 and %5", "fit each other as those of a B-spline do", ""},
    {"IFCCORRECTDIMENSIONS", "%2", "are the dimensions of a unit of type %1", ""},
    {"IFCCORRECTFILLAREASTYLE", "%1",
     "have at most one external hatch style, which stands alone, at most one colour, and not both hatching and tiles",
     ""},
    {"IFCCORRECTLOCALPLACEMENT", "%1", "is 2D, or as 3D as the placement in %2", ""},
    {"IFCCORRECTOBJECTASSIGNMENT", "%2", "are objects of the kind that %1 names", ""},
    {"IFCCORRECTUNITASSIGNMENT", "%1",
     "have at most one unit of each UnitType but USERDEFINED, and at most one IfcMonetaryUnit", ""},
    {"IFCCURVEWEIGHTSPOSITIVE", "every weight", "is above 0", "is not above 0"},
    {"IFCLOOPHEADTOTAIL", "every edge", "begins where the one before ends", "does not begin where the one before ends"},
    {"IFCPATHHEADTOTAIL", "every edge", "begins where the one before ends", "does not begin where the one before ends"},
    {"IFCSHAPEREPRESENTATIONTYPES", "%2", "are what a representation of type %1 may have", ""},
    {"IFCSURFACEWEIGHTSPOSITIVE", "every weight", "is above 0", "is not above 0"},
    {"IFCTAPEREDSWEPTAREAPROFILES", "%2", "is of the type of %1, or derived from it", ""},
    {"IFCTOPOLOGYREPRESENTATIONTYPES", "%2", "are what a representation of type %1 may have", ""},
    {"IFCUNIQUEDEFINITIONNAMES", "no two property sets of %1", "have the same name", ""},
    {"IFCUNIQUEPROPERTYNAME", "no two of %1", "have the same name", ""},
    {"IFCUNIQUEPROPERTYSETNAMES", "no two property sets of %1", "have the same name", ""},
    {"IFCUNIQUEPROPERTYTEMPLATENAMES", "no two of %1", "have the same name", ""},
    {"IFCUNIQUEQUANTITYNAMES", "no two of %1", "have the same name", ""},
    {"IFCVALIDCALENDARDATE", "the day", "is one that the month has", ""},
    {"IFCVALIDTIME", "a second", "is given with a minute only", ""},
}};

} // namespace velkor::rulegen
