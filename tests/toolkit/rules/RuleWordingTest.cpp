#include "RuleWording.h"
#include "ExpressReader.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace velkor::rulegen {

namespace {

/// What a rule of a wall is worded as.
std::string wordingOf(const std::string& expression) {
    express::ExpressSchema schema;
    const auto read = express::readExpress("SCHEMA IFC4; ENTITY IfcWall; Depth : REAL; WHERE WR1 : " + expression +
                                               "; END_ENTITY; ENTITY IfcRelAssociates; RelatedObjects : SET OF "
                                               "IfcWall; END_ENTITY; END_SCHEMA;",
                                           "sample.exp", schema);
    return read ? worded(*schema.entities.front().whereRules.front().expression, spelledNames(schema)) : read.error();
}

void expectWordings(std::initializer_list<std::pair<const char*, const char*>> cases) {
    for (const auto& [expression, wording] : cases) EXPECT_EQ(wordingOf(expression), wording) << expression;
}

} // namespace

TEST(RuleWording, ComparesValues) {
    expectWordings({
        {"Depth > 0.0", "Depth is above 0"},
        {"0. < SELF\\IfcBeam.Depth", "Depth is above 0"},
        {"SELF.Depth <= (Width - 2.50 * T) / 2.", "Depth is at most (Width - 2.5 * T) / 2"},
        {"A = B - (C - D) - E", "A is B - (C - D) - E"},
        {"NOT (Depth >= 1.E-6)", "Depth is below 1E-6"},
        {"{0 < SELF <= 3}", "the value is above 0 and at most 3"},
        {"{1 <= Month <= 12}", "Month is from 1 to 12"},
        {"NOT {1 <= Month <= 12}", "Month is not from 1 to 12"},
        {"SELF IN ['left', 'right', 'center']", "the value is one of \"left\", \"right\" or \"center\""},
        {"NOT (Name IN ['x'])", "Name is not \"x\""},
        {"Name LIKE '#&'", "Name matches \"#&\""},
        {"Type <> IfcWallTypeEnum.USERDEFINED", "Type is not USERDEFINED"},
        {"BLENGTH(Code) MOD 8 = 0", "the number of bits of Code is a multiple of 8"},
        {"Sense = (U2 > U1)", "Sense tells whether U2 is above U1"},
        {"SELF :<>: Whole", "Whole is not the instance itself"},
        {"Relating :=: Related", "Relating is the same instance as Related"},
        {"NOT Closed", "Closed is not TRUE"},
    });
}

TEST(RuleWording, SaysWhatThereIs) {
    expectWordings({
        {"EXISTS(Name)", "Name is given"},
        {"NOT(EXISTS(SELF\\IfcRoot.Name))", "Name is not given"},
        {"'IFC4.IFCWALL' IN TYPEOF(Item)", "Item is an IfcWall"},
        {"NOT('IFC4.' + 'IFCSLAB' IN TYPEOF(Item))", "Item is not an IFCSLAB"},
        {"SIZEOF(['IFC4.IFCWALL', 'IFC4.IFCSLAB'] * TYPEOF(Item\\IfcX.Part)) = 1",
         "Item.Part is an IfcWall or IFCSLAB"},
        {"SIZEOF(TYPEOF(Item) * ['IFC4.IFCWALL', 'IFC4.IFCSLAB']) = 0", "Item is not an IfcWall or IFCSLAB"},
        {"TYPEOF(A) <> TYPEOF(B)", "A is of another type than B"},
        {"SIZEOF(Parts) = 0", "Parts is empty"},
        {"SIZEOF(Parts) >= 1", "Parts is not empty"},
        {"HIINDEX(Parts) = 1", "Parts has 1 member"},
        {"NOT(SIZEOF(Parts) <= 2)", "Parts has more than 2 members"},
        {"SIZEOF(Slopes) = SIZEOF(Widths)", "Slopes has as many members as Widths"},
        {"SIZEOF(Knots) = Upper", "Knots has Upper members"},
        {"SIZEOF(IfcWall) <= 1", "the model has at most 1 IfcWall"},
        {"IfcUniquePropertyName(Parts)", "no two of Parts have the same name"},
        {"IfcNobodyKnows(SELF, 2)", "IfcNobodyKnows(the instance, 2) holds"},
    });
}

TEST(RuleWording, JoinsWhatHasASubjectOrPredicateInCommon) {
    expectWordings({
        {"(A < B) AND (A < C)", "A is below B and below C"},
        {"EXISTS(A) OR EXISTS(B) OR EXISTS(C)", "A, B or C is given"},
        {"EXISTS(A) AND EXISTS(B)", "A and B are given"},
        {"NOT(EXISTS(A) OR EXISTS(B))", "neither A nor B is given"},
        {"NOT(EXISTS(A)) OR (A.Dim = 3)", "A is not given, or A.Dim is 3"},
        {"(A < 1) AND ((B < 1) OR EXISTS(C))", "A is below 1, and either B is below 1 or C is given"},
        {"(A < 1) OR ((B < 1) AND (EXISTS(C) OR (D < 2)))",
         "A is below 1, or B is below 1 and (C is given or D is below 2)"},
        {"EXISTS(A) XOR EXISTS(B)", "exactly one of A and B is given"},
        {"NOT(EXISTS(A) XOR EXISTS(B))", "both or neither of A and B is given"},
        {"(A > 1) XOR EXISTS(B)", "either A is above 1, or B is given"},
        {"(EXISTS(A) AND EXISTS(B)) XOR (NOT(EXISTS(A)) AND NOT(EXISTS(B)))",
         "A and B are given, or neither A nor B is given"},
        // Each of the two may be either, but both are the same.
        {"((A = 1) AND (B = 1)) OR ((A = 2) AND (B = 2))", "A and B are 1, or A and B are 2"},
    });
}

TEST(RuleWording, LeavesOutWhatIsSaidAlready) {
    expectWordings({
        {"NOT(EXISTS(P)) OR (P <> IfcE.USERDEFINED) OR ((P = IfcE.USERDEFINED) AND EXISTS(SELF\\IfcObject.ObjectType))",
         "P is not given or not USERDEFINED, or ObjectType is given"},
        {"(P <> IfcE.USERDEFINED) OR ((P = IfcE.USERDEFINED) AND EXISTS(SELF\\IfcObject.ObjectType))",
         "P is not USERDEFINED, or ObjectType is given"},
        {"EXISTS(A) AND (NOT(EXISTS(A)) OR (B > 0)) AND EXISTS(A)", "A is given, and B is above 0"},
    });
}

TEST(RuleWording, SpeaksOfMembers) {
    expectWordings({
        {"SIZEOF(QUERY(t <* Items | 'IFC4.IFCWALL' IN TYPEOF(t))) = 0", "no member of Items is an IfcWall"},
        {"SIZEOF(QUERY(t <* Items | NOT('IFC4.IFCWALL' IN TYPEOF(t)))) = 0", "every member of Items is an IfcWall"},
        {"SIZEOF(QUERY(t <* Items | t > 0)) = SIZEOF(Items)", "every member of Items is above 0"},
        {"SIZEOF(QUERY(t <* Items | t > 0)) = SIZEOF(Others)",
         "for exactly the number of members of Others t of Items, t is above 0"},
        {"SIZEOF(QUERY(t <* Items | Items[1].Dim <> t.Dim)) = 0", "Dim of every member of Items is Items[1].Dim"},
        {"SIZEOF(QUERY(t <* Items | t.Kind = IfcE.LAST)) = 1", "exactly 1 member of Items has Kind LAST"},
        {"NOT(SIZEOF(QUERY(t <* Items | t <> 0.0)) > 0)", "every member of Items is 0"},
        {"SIZEOF(QUERY(t <* Items | t.A = t.B)) <= 2", "for at most 2 t of Items, t.A is t.B"},
        {"SIZEOF(QUERY(t <* USEDIN(SELF, 'IFC4.IFCRELASSOCIATES.RELATEDOBJECTS') | EXISTS(t.A))) > 0",
         "at least 1 user of the instance by IfcRelAssociates.RelatedObjects has A given"},
        {"SIZEOF(QUERY(t <* QUERY(u <* Items | u > 1) | t > 5)) = 0",
         "every member of the members u of Items where u is above 1 is at most 5"},
        // Whatever is above 1 need not be what is below 0.
        {"(SIZEOF(QUERY(t <* Items | t > 1)) = 1) AND (SIZEOF(QUERY(t <* Items | t < 0)) = 1)",
         "exactly 1 member of Items is above 1, and exactly 1 member of Items is below 0"},
    });
}

} // namespace velkor::rulegen
