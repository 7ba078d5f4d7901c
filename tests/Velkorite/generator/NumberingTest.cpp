#include "DictionaryLists.h"
#include "ExpressReader.h"
#include "Matchers.h"

#include <algorithm>
#include <cstdio>

namespace velkor::dictgen {

using namespace express;

namespace {

tl::expected<DictionaryLists, std::string> numbered(const std::string& source) {
    ExpressSchema schema;
    const auto read = readExpress(source, "s.exp", schema);
    if (!read) return tl::unexpected("unreadable: " + read.error());
    return numberSchema("S", schema);
}

DictionaryLists listsOf(const std::string& source) {
    const auto lists = numbered(source);
    EXPECT_TRUE(lists) << lists.error();
    return lists.value_or(DictionaryLists{});
}

// No text holds a blank.
std::string joined(const std::vector<std::string>& texts) {
    std::string result;
    for (const std::string& text : texts) (result += text) += ' ';
    return result;
}

} // namespace

TEST(Numbering, SortsTypesInThreeGroupsAndDeclaresFirstWhatTheyNeed) {
    const DictionaryLists lists = listsOf(R"(
        TYPE Choice = SELECT (Param, Kind); END_TYPE; TYPE Kind = ENUMERATION OF (One, TWO); END_TYPE;
        TYPE Param = INTEGER; END_TYPE; TYPE Pair = ARRAY [1:2] OF OPTIONAL UNIQUE PHt; END_TYPE;
        TYPE Table = LIST [0:?] OF SET [1:3] OF Param; END_TYPE; TYPE PHt = REAL; END_TYPE;
        TYPE Alias = PARAM; END_TYPE; TYPE AKind = ENUMERATION OF (ONE); END_TYPE;)");
    // Upper case sorts before lower case: PHt before Pair.
    EXPECT_EQ(joined(lists.declarations),
              "Schema(S) DefinedType(PARAM,IntegerType) DefinedType(ALIAS,#2) DefinedType(PHT,RealType(8)) "
              "ArrayType(#4,1,2,UNIQ,OPT) DefinedType(PAIR,#5) SetType(#2,1,3) ListType(#7,0,-1,DUPL) "
              "DefinedType(TABLE,#8) EnumerationType(ONE) DefinedType(AKIND,#10) EnumerationType(ONE,TWO) "
              "DefinedType(KIND,#12) SelectType(#2,#13) DefinedType(CHOICE,#14) ");
    EXPECT_EQ(joined(lists.statements), "#1.SchemaVersionRelease(1,1) #1.DefTypes(#3,#4,#6,#2,#9,#11,#13,#15) ");
}

TEST(Numbering, DeclaresASelectTwiceThatItsItemsLeadBackTo) {
    const DictionaryLists lists = listsOf(R"(
        TYPE Operand = SELECT (Solid, Size); END_TYPE; TYPE Size = REAL; END_TYPE;
        TYPE Extent = SELECT (Operand, Size); END_TYPE;
        ENTITY Solid; Left : Operand; Right : Operand; Other : Extent; END_ENTITY;)");
    // Extent comes first, and Operand is reached through it.
    EXPECT_EQ(joined(lists.declarations),
              "Schema(S) DefinedType(SIZE,RealType(8)) Entity(SOLID,INSTANTIABLE,SIMPLE,INDEPENDENT) "
              "ExplicitAttr(LEFT) SelectType(#3,#2) DefinedType(OPERAND,#5) ExplicitAttr(RIGHT) "
              "ExplicitAttr(OTHER) SelectType(#6,#2) DefinedType(EXTENT,#9) SelectType(#3,#2) "
              "DefinedType(OPERAND,#11) SelectType(#12,#2) DefinedType(EXTENT,#13) ");
    EXPECT_EQ(joined(lists.statements), "#1.SchemaVersionRelease(1,1) #3.Composition(#3) #4.ExplAttrInfos(#6,REQ) "
                                        "#7.ExplAttrInfos(#6,REQ) #8.ExplAttrInfos(#10,REQ) #3.Attributes(#4,#7,#8) "
                                        "#1.DefTypes(#2,#14,#12) #1.Entities(#3) ");
}

TEST(Numbering, ReachesEntitiesThroughTypes) {
    const DictionaryLists lists = listsOf(R"(
        TYPE Things = SET [1:?] OF Thing; END_TYPE; TYPE Operand = SELECT (Thing); END_TYPE;
        ENTITY Thing SUBTYPE OF (Base); Left : OPTIONAL Operand; END_ENTITY;
        ENTITY Base ABSTRACT; Next : OPTIONAL Things; END_ENTITY;)");
    // Base leads back to Things, which unlike a select is declared there only. Operand is first reached from
    // its item, which is declared by then.
    EXPECT_EQ(joined(lists.declarations),
              "Schema(S) Entity(THING,INSTANTIABLE,SIMPLE,INDEPENDENT) "
              "Entity(BASE,ABSTRACT,SIMPLE,INDEPENDENT) ExplicitAttr(NEXT) SetType(#2,1,-1) "
              "DefinedType(THINGS,#5) ExplicitAttr(LEFT) SelectType(#2) DefinedType(OPERAND,#8) ");
    EXPECT_EQ(joined(lists.statements),
              "#1.SchemaVersionRelease(1,1) #3.Composition(#3) #4.ExplAttrInfos(#6,OPT) #3.Attributes(#4) "
              "#2.Supertypes(#3) #2.Composition(#3,#2) #7.ExplAttrInfos(#9,OPT) #2.Attributes(#7) "
              "#1.DefTypes(#6,#9) #1.Entities(#3,#2) ");
}

TEST(Numbering, DeclaresAnEntityBeforeItsSupertypesAndTheseBeforeItsAttributes) {
    const DictionaryLists lists = listsOf(R"(
        TYPE Size = INTEGER; END_TYPE; ENTITY Point; Owner : BSpline; END_ENTITY;
        ENTITY Curve ABSTRACT SUPERTYPE OF (ONEOF (Bounded));
          Name : STRING(22) FIXED; Length : OPTIONAL REAL; Next : OPTIONAL Curve; END_ENTITY;
        ENTITY Bounded ABSTRACT SUPERTYPE OF (ONEOF (BSpline)) SUBTYPE OF (Curve); END_ENTITY;
        ENTITY BSpline SUBTYPE OF (Bounded); Points : LIST [2:?] OF Point;
          Knots : SET [0:5] OF LIST [1:?] OF UNIQUE INTEGER; Weights : LIST [1:?] OF UNIQUE INTEGER;
         DERIVE Dim : Size := 3; SELF\Curve.Length : REAL := 1.0;
         UNIQUE UR1 : Knots, SELF\Curve.Name; ur2 : Points; END_ENTITY;)");
    EXPECT_EQ(joined(lists.declarations),
              "Schema(S) DefinedType(SIZE,IntegerType) Entity(BSPLINE,INSTANTIABLE,SIMPLE,INDEPENDENT) "
              "Entity(BOUNDED,ABSTRACT,SIMPLE,INDEPENDENT) Entity(CURVE,ABSTRACT,SIMPLE,INDEPENDENT) "
              "ExplicitAttr(NAME) ExplicitAttr(LENGTH) ExplicitAttr(NEXT) ExplicitAttr(POINTS) "
              "Entity(POINT,INSTANTIABLE,SIMPLE,INDEPENDENT) ExplicitAttr(OWNER) ListType(#10,2,-1,DUPL) "
              "ExplicitAttr(KNOTS) ListType(IntegerType,1,-1,UNIQ) SetType(#14,0,5) ExplicitAttr(WEIGHTS) "
              "ListType(IntegerType,1,-1,UNIQ) DerivedAttr(DIM) DerivedAttr(LENGTH) UniquenessRule(UR1) "
              "UniquenessRule(UR2) ");
    // A composition is sorted by upper-case names: BOUNDED, BSPLINE, CURVE.
    EXPECT_EQ(joined(lists.statements),
              "#1.SchemaVersionRelease(1,1) #1.DefTypes(#2) #5.Composition(#5) "
              "#6.ExplAttrInfos(StringType(22,FIXED),REQ) #7.ExplAttrInfos(RealType(8),OPT) "
              "#8.ExplAttrInfos(#5,OPT) #5.Attributes(#6,#7,#8) #4.Supertypes(#5) #4.Composition(#4,#5) "
              "#3.Supertypes(#4) #3.Composition(#4,#3,#5) #10.Composition(#10) #11.ExplAttrInfos(#3,REQ) "
              "#10.Attributes(#11) #9.ExplAttrInfos(#12,REQ) #13.ExplAttrInfos(#15,REQ) "
              "#16.ExplAttrInfos(#17,REQ) #18.DerivAttrInfos(#2) #19.DerivAttrInfos(RealType(8)) "
              "#3.Attributes(#9,#13,#16,#18,#19) #20.UniqRuleInfos(#13,#6) #21.UniqRuleInfos(#9) "
              "#3.Uniqueness_rules(#20,#21) #1.Entities(#3,#4,#5,#10) ");
}

TEST(Numbering, StatesAHundredEntitiesAtATime) {
    for (const int count : {0, 1, 100, 101, 200, 250}) {
        std::string source;
        std::vector<std::string> expected;
        for (int i = 0; i < count; ++i) {
            // Each needs the next, so that the visit of the first has done all.
            const std::string next = i + 1 < count ? " SUBTYPE OF (E" + std::to_string(1001 + i) + ")" : "";
            source += "ENTITY E" + std::to_string(1000 + i) + next + "; END_ENTITY;";
            if (i % 100 == 0) expected.push_back("#1.Entities(");
            expected.back() += '#' + std::to_string(2 + i) + (i % 100 == 99 || i + 1 == count ? ")" : ",");
        }
        std::vector<std::string> statements = listsOf(source).statements;
        std::erase_if(statements, [](const std::string& text) { return !text.starts_with("#1.Entities("); });
        EXPECT_EQ(statements, expected) << count;
    }
}

TEST(Numbering, NamesTheDeclarationAtFault) {
    const std::pair<const char*, const char*> cases[] = {
        {"ENTITY A; B : Lost; END_ENTITY;", "A needs Lost, which is not declared"},
        {"TYPE T = LIST OF Lost; END_TYPE;", "T needs Lost, which is not declared"},
        {"TYPE T = REAL; END_TYPE; ENTITY A SUBTYPE OF (T); END_ENTITY;", "A needs T to be an entity"},
        {"ENTITY A; END_ENTITY; TYPE T = A; END_TYPE;", "T needs A to be a type"},
        {"ENTITY Ab; END_ENTITY; TYPE aB = REAL; END_TYPE;", "AB is declared twice"},
        {"ENTITY A SUBTYPE OF (B); END_ENTITY; ENTITY B SUBTYPE OF (A); END_ENTITY;", "is a supertype of itself"},
        {"TYPE A = B; END_TYPE; TYPE B = LIST OF A; END_TYPE;", "is defined by itself"},
        {"TYPE S = SELECT (S); END_TYPE;", "S is defined by itself"},
        {"TYPE T = ENUMERATION OF (RED, red); END_TYPE;", "T has RED twice"},
        {"ENTITY A; B, b : REAL; END_ENTITY;", "A has B twice"},
        {"ENTITY A; B : REAL; DERIVE B : REAL := 1; END_ENTITY;", "A declares B, which is a derived attribute"},
        {"ENTITY A; DERIVE B : REAL := 1; END_ENTITY; ENTITY C SUBTYPE OF (A); B : REAL; END_ENTITY;",
         "C declares B, which is a derived attribute"},
        {"ENTITY A; B : REAL; UNIQUE UR1 : B, C; END_ENTITY;", "a uniqueness rule of A names C"}};
    for (const auto& [source, expected] : cases) {
        const auto lists = numbered(source);
        EXPECT_THAT(lists ? "no error" : lists.error(), HasSubstr(expected)) << source;
    }
}

} // namespace velkor::dictgen
